// SPDX-License-Identifier: MIT
#include "sample-library/Variations.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace songsweep::sample {

namespace {

constexpr std::int64_t day = 86400;

/// Accents written as a letter and a combining mark: other bytes, the same text.
void decompose(std::string& text) {
    constexpr std::array<std::pair<std::string_view, std::string_view>, 12> letters = {{
        {"é", "e\u0301"},
        {"É", "E\u0301"},
        {"è", "e\u0300"},
        {"À", "A\u0300"},
        {"ü", "u\u0308"},
        {"û", "u\u0302"},
        {"å", "a\u030A"},
        {"Å", "A\u030A"},
        {"ï", "i\u0308"},
        {"ñ", "n\u0303"},
        {"ç", "c\u0327"},
        {"à", "a\u0300"},
    }};
    for (const auto& [composed, decomposed] : letters) {
        for (auto at = text.find(composed); at != std::string::npos; at = text.find(composed, at)) {
            text.replace(at, composed.size(), decomposed);
        }
    }
}

void upperCase(std::string& text) {
    std::transform(text.begin(), text.end(), text.begin(), [](char letter) {
        return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 32) : letter;
    });
}

void setBitRate(SampleTrack& copy, int bitRate) {
    copy.bitRate = bitRate;
    copy.size = copy.totalTime * bitRate / 8;
}

} // namespace

const Variation& variation(int number) {
    static const std::array<Variation, 14> variations = {{
        {CopyFile::own, [](SampleTrack& copy) { setBitRate(copy, 128); }},
        {CopyFile::own, [](SampleTrack& copy) { upperCase(copy.name); }},
        {CopyFile::same, [](SampleTrack& copy) { copy.playCount += 3; }},
        {CopyFile::missing, [](SampleTrack& copy) { copy.artworkCount = 0; }},
        {CopyFile::own, [](SampleTrack& copy) { copy.rating = copy.rating == 100 ? 20 : copy.rating + 20; }},
        {CopyFile::own, [](SampleTrack& copy) { copy.dateAdded += 400 * day; }},
        {CopyFile::own, [](SampleTrack& copy) { decompose(copy.name), decompose(copy.artist); }},
        {CopyFile::own, [](SampleTrack& copy) { copy.totalTime += 7000, setBitRate(copy, copy.bitRate); }},
        {CopyFile::own, [](SampleTrack& copy) { copy.artworkCount = 1 - copy.artworkCount; }},
        {CopyFile::own, [](SampleTrack& copy) { copy.playCount = 0, copy.album += " (Deluxe Edition)"; }},
        {CopyFile::hardLink, [](SampleTrack& copy) { copy.dateAdded += 30 * day; }},
        {CopyFile::own, [](SampleTrack& copy) { upperCase(copy.artist), setBitRate(copy, 320); }},
        {CopyFile::missing, [](SampleTrack& copy) { copy.location.clear(); }},
        {CopyFile::own, [](SampleTrack& copy) { copy.size += 150000, copy.playCount += 40; }},
    }};
    return variations[static_cast<std::size_t>(number) % variations.size()];
}

} // namespace songsweep::sample
