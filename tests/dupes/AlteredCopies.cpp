// SPDX-License-Identifier: MIT
#include "AlteredCopies.h"

#include <algorithm>
#include <array>
#include <random>
#include <utility>

namespace songsweep::test {

namespace {

void replace(std::string& text, const std::string& from, const std::string& to) {
    for (auto at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
}

void upperCase(std::string& text) {
    std::transform(text.begin(), text.end(), text.begin(), [](char letter) {
        return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 32) : letter;
    });
}

/// As old Japanese programs write Latin letters.
void widen(std::string& text) {
    std::string wide;
    for (const char letter : text) {
        if (letter >= '!' && letter <= '~') {
            const int code = 0xFF01 + (letter - '!');
            wide += {static_cast<char>(0xE0 | code >> 12), static_cast<char>(0x80 | (code >> 6 & 0x3F)),
                     static_cast<char>(0x80 | (code & 0x3F))};
        } else {
            wide += letter;
        }
    }
    text = wide;
}

struct Alteration {
    const char* name;
    void (*prepare)(KnownTrack& recording); ///< gives the recording what the alteration changes
    void (*change)(KnownTrack& copy);
};

void leave(KnownTrack& /*recording*/) {}

constexpr std::array<Alteration, 24> alterations = {{
    {"another file alone", leave, [](KnownTrack&) {}},
    {"capital letters", leave, [](KnownTrack& copy) { upperCase(copy.name); }},
    {"artist in capital letters", leave, [](KnownTrack& copy) { upperCase(copy.artist); }},
    {"another album", leave, [](KnownTrack& copy) { copy.album = "Greatest Hits"; }},
    {"no album", leave, [](KnownTrack& copy) { copy.album.clear(); }},
    {"another track number", leave, [](KnownTrack& copy) { copy.trackNumber += 3; }},
    {"no track number", leave, [](KnownTrack& copy) { copy.trackNumber = 0; }},
    {"album with a disc", leave, [](KnownTrack& copy) { copy.album += " (Disc 2)"; }},
    {"1 s longer", leave, [](KnownTrack& copy) { copy.seconds += 1; }},
    {"2 s shorter", leave, [](KnownTrack& copy) { copy.seconds -= 2; }},
    {"accents dropped", [](KnownTrack& recording) { recording.name += " Fiancée"; },
     [](KnownTrack& copy) { replace(copy.name, "é", "e"); }},
    {"full width", leave, [](KnownTrack& copy) { widen(copy.name); }},
    {"another apostrophe", [](KnownTrack& recording) { recording.name += " Can't"; },
     [](KnownTrack& copy) { replace(copy.name, "'", "’"); }},
    {"punctuation dropped", [](KnownTrack& recording) { recording.name += ", Oh!"; },
     [](KnownTrack& copy) { replace(copy.name, ", Oh!", " Oh"); }},
    {"underscores", leave, [](KnownTrack& copy) { replace(copy.name, " ", "_"); }},
    {"and for &", [](KnownTrack& recording) { recording.artist += " & Sons"; },
     [](KnownTrack& copy) { replace(copy.artist, "&", "and"); }},
    {"artist without The", [](KnownTrack& recording) { recording.artist = "The " + recording.artist; },
     [](KnownTrack& copy) { copy.artist = copy.artist.substr(4); }},
    {"artist, The", [](KnownTrack& recording) { recording.artist = "The " + recording.artist; },
     [](KnownTrack& copy) { copy.artist = copy.artist.substr(4) + ", The"; }},
    {"number before the name", leave,
     [](KnownTrack& copy) { copy.name = "0" + std::to_string(copy.trackNumber) + " - " + copy.name; }},
    {"(Remastered 2009)", leave, [](KnownTrack& copy) { copy.name += " (Remastered 2009)"; }},
    {"- Remaster", leave, [](KnownTrack& copy) { copy.name += " - Remaster"; }},
    {"guest in the name", leave, [](KnownTrack& copy) { copy.name += " (feat. Ruby Tarn)"; }},
    {"6 s longer", leave, [](KnownTrack& copy) { copy.seconds += 6; }},
    {"mistyped", leave, [](KnownTrack& copy) { std::swap(copy.name[1], copy.name[2]); }},
}};

constexpr std::array versions = {" (Live)", " (Remix)",  " (Acoustic)",   " (Instrumental)", " (Demo)",
                                 " - Live", " (Part 2)", " (Radio Edit)", " [Live at Rondo]"};

class Maker {
  public:
    KnownTrack recording(int number) {
        KnownTrack track = {.name = words(1 + m_random() % 3),
                            .artist = m_artists[m_random() % m_artists.size()],
                            .album = words(2),
                            .seconds = static_cast<int>(90 + m_random() % 330),
                            .trackNumber = static_cast<std::int16_t>(1 + m_random() % 9),
                            .recording = number};
        return track;
    }
    KnownTrack version(const KnownTrack& of, int number) {
        KnownTrack track = of;
        track.name += versions[m_random() % versions.size()];
        track.seconds += static_cast<int>(m_random() % 4);
        track.recording = number;
        return track;
    }
    KnownTrack performance(const KnownTrack& of, int number) {
        KnownTrack track = of;
        track.seconds += static_cast<int>(12 + m_random() % 60);
        track.recording = number;
        return track;
    }
    void makeArtists() {
        for (std::string& artist : m_artists)
            artist = words(2);
    }

  private:
    std::string words(std::size_t count) {
        constexpr std::array syllables = {"ba",  "lor", "min", "ta",  "ven", "sio", "ra",   "kel",
                                          "un",  "dor", "es",  "pri", "gal", "o",   "tam",  "lin",
                                          "mar", "the", "ro",  "vi",  "an",  "cu",  "ster", "fi",
                                          "wen", "hol", "jas", "ne",  "qui", "zel"};
        std::string text;
        for (std::size_t word = 0; word < count; ++word) {
            std::string made;
            while (made.size() < 4)
                made += syllables[m_random() % syllables.size()];
            made[0] = static_cast<char>(made[0] - 32);
            text += (word == 0 ? "" : " ") + made;
        }
        return text;
    }

    std::mt19937 m_random{20240917};
    std::array<std::string, 900> m_artists;
};

} // namespace

int alterationCount() { return static_cast<int>(alterations.size()); }
const char* alterationName(int alteration) {
    return alterations.at(static_cast<std::size_t>(alteration)).name;
}

std::vector<KnownTrack> alteredCopies(int recordings) {
    Maker maker;
    maker.makeArtists();
    std::vector<KnownTrack> tracks;
    int alteration = 0;
    for (int number = 0; number < recordings; ++number) {
        KnownTrack track = maker.recording(number);
        if (number % 10 == 9) track = maker.version(tracks.back(), number);
        if (number % 50 == 48) track = maker.performance(tracks.back(), number);
        if (number % 5 >= 2) {
            tracks.push_back(std::move(track));
            continue;
        }
        const Alteration& way = alterations[static_cast<std::size_t>(alteration)];
        way.prepare(track);
        tracks.push_back(track);
        way.change(track);
        track.alteration = alteration;
        tracks.push_back(std::move(track));
        alteration = (alteration + 1) % alterationCount();
    }
    return tracks;
}

} // namespace songsweep::test
