// SPDX-License-Identifier: MIT
#include "sample-library/BulkTracks.h"

#include <array>
#include <string_view>
#include <utility>

namespace songsweep::sample {

namespace {

constexpr std::array<std::string_view, 32> firstWords = {
    "Amber", "Broken",  "Café",   "Distant", "Électrique", "Falling",  "Golden", "Hollow",
    "Inner", "Jade",    "Kindly", "Little",  "Midnight",   "Northern", "Open",   "Paper",
    "Quiet", "Rolling", "Silver", "Tender",  "Über",       "Velvet",   "Winter", "Young",
    "Zero",  "夜の",    "Ash",    "Blue",    "Crystal",    "Drifting", "Early",  "First"};
constexpr std::array<std::string_view, 32> secondWords = {
    "Anthem", "Bridge",  "Clouds", "Dance & Sing", "Echo",     "Fire",   "Garden", "Harbour",
    "Island", "Journey", "Kite",   "Letters",      "Mirror",   "Night",  "Ocean",  "Promise",
    "Queen",  "River",   "Shadow", "Train",        "Umbrella", "Voices", "Wind",   "Years",
    "Zephyr", "Avenue",  "Bells",  "City",         "Dreams",   "Engine", "Forest", "Ghost"};
constexpr std::array<std::string_view, 8> genres = {"Rock", "Pop",      "Jazz",       "Classical",
                                                    "Folk", "R&B/Soul", "Electronic", "Soundtrack"};
constexpr std::array<int, 5> bitRates = {128, 160, 192, 256, 320};

std::string padded(int value) { return (value < 10 ? "0" : "") + std::to_string(value); }

} // namespace

BulkTracks::BulkTracks(std::uint64_t seed, std::string musicFolder)
    : m_seed(seed)
    , m_musicFolder(std::move(musicFolder)) {}

std::string BulkTracks::artistFolder(int artist) const {
    return m_musicFolder + "/Artist " + std::to_string(artist);
}

std::string BulkTracks::albumFolder(int album) { return "Album No. " + std::to_string(album + 1); }

std::string BulkTracks::fileName(int number) { return padded(number + 1) + " Song.wav"; }

/// A well-mixed number, the same for the same index, purpose and seed (SplitMix64's finisher).
std::uint64_t BulkTracks::random(int index, unsigned purpose) const {
    auto value = m_seed * 0x9E3779B97F4A7C15U + static_cast<std::uint64_t>(index) * 16 + purpose;
    value = (value ^ (value >> 30U)) * 0xBF58476D1CE4E5B9U;
    value = (value ^ (value >> 27U)) * 0x94D049BB133111EBU;
    return value ^ (value >> 31U);
}

int BulkTracks::original(int index) const {
    if (!isDuplicate(index)) return index;
    const auto earlier = static_cast<int>(random(index, 0) % static_cast<unsigned>(index));
    return isDuplicate(earlier) ? earlier - 1 : earlier;
}

SampleTrack BulkTracks::track(int index) const {
    const int artist = index / tracksOfArtist;
    const int album = index % tracksOfArtist / tracksOfAlbum;
    const int number = index % tracksOfAlbum;
    SampleTrack track;
    track.trackId = 2 * index + 101;
    track.persistentId = random(index, 1) | 1U;
    track.trackNumber = number + 1;
    track.location = artistFolder(artist) + '/' + albumFolder(album) + '/' + fileName(number);
    describe(track, original(index));
    measure(track, index);
    return track;
}

void BulkTracks::describe(SampleTrack& track, int index) const {
    const auto words = random(index, 2);
    const int artist = index / tracksOfArtist;
    track.name = firstWords[words % firstWords.size()];
    track.name += ' ';
    track.name += secondWords[(words >> 8U) % secondWords.size()];
    track.name += ", No. " + std::to_string(index % tracksOfArtist + 1); // no two by chance
    track.artist = "The ";
    track.artist += secondWords[random(artist, 3) % secondWords.size()];
    track.artist += " of " + std::to_string(artist);
    track.album = firstWords[random(index / tracksOfAlbum, 4) % firstWords.size()];
    track.album += " Hours ";
    track.album += static_cast<char>('A' + index / tracksOfAlbum % albumsOfArtist);
    track.totalTime = 90000 + static_cast<std::int64_t>(random(index, 5) % 300000);
}

void BulkTracks::measure(SampleTrack& track, int index) const {
    const auto chance = random(index, 6);
    track.genre = genres[chance % genres.size()];
    track.kind = "WAV audio file";
    track.bitRate = bitRates[(chance >> 8U) % bitRates.size()];
    track.size = track.totalTime * track.bitRate / 8;
    track.year = 1960 + static_cast<int>((chance >> 16U) % 60);
    track.dateAdded =
        1104537600 + static_cast<std::int64_t>((chance >> 24U) % 315360000); // ten years from 2005
    track.playCount = static_cast<int>((chance >> 52U) % 30);
    track.rating = static_cast<int>((chance >> 57U) % 6) * 20;
    track.artworkCount = static_cast<int>(chance >> 63U);
}

} // namespace songsweep::sample
