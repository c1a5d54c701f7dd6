// SPDX-License-Identifier: MIT
#include "merge/MergeTexts.h"

#include "scripting/TextLiteral.h"

#include <algorithm>
#include <array>
#include <set>
#include <string_view>

namespace songsweep::mergeTexts {

namespace {

constexpr std::array<std::string_view, 15> words{
    "played count", "skipped count", "rating",   "album rating", "played date",
    "skipped date", "date added",    "loved",    "enabled",      "genre",
    "year",         "comment",       "composer", "track number", "disc number"};

std::string otherName(std::size_t copy) { return "other" + std::to_string(copy + 1); }

/// "(first track of playlist 3 whose persistent ID is "00A1")"
std::string trackOf(std::string_view which, std::size_t playlist, Text pid) {
    return "(" + std::string(which) + " track of playlist " + std::to_string(playlist) +
           " whose persistent ID is \"" + escapedWords(pid) + "\")";
}

std::string set(const std::string& what, const std::string& value) {
    return "set " + what + " to " + value + " \n";
}

std::string valueText(const MergedValue& value) {
    const std::string word(words.at(static_cast<std::size_t>(value.property)));
    return set(word + " of kept",
               value.from ? word + " of " + otherName(*value.from) : std::to_string(value.sum));
}

/// The later items go first: where the kept copy has got others, they are not its last ones any more.
std::string placesText(const SongsToMerge::Song& copies, const MergedPlaces& places) {
    std::string text;
    for (std::size_t i = 0; i < places.givenUp; ++i)
        text += "delete " + trackOf("last", places.playlist, copies.kept.pid) + " \n";
    for (std::size_t copy = 0; copy < places.taken.size(); ++copy)
        for (std::size_t i = 0; i < places.taken[copy]; ++i)
            text +=
                "duplicate kept to " + trackOf("first", places.playlist, copies.removed[copy].pid) + " \n";
    return text;
}

} // namespace

std::string mergeSong(const SongMerge& song) {
    std::set<std::size_t> others;
    for (const MergedValue& value : song.values)
        if (value.from) others.insert(*value.from);
    std::string text =
        "tell application \"iTunes\" \ntry \n" + set("kept", trackOf("first", 1, song.copies.kept.pid));
    for (const std::size_t copy : others)
        text += set(otherName(copy), trackOf("first", 1, song.copies.removed[copy].pid));
    for (const MergedValue& value : song.values)
        text += valueText(value);
    for (const MergedPlaces& places : song.places)
        text += placesText(song.copies, places);
    return text + "return \"\" \non error reason \nreturn reason \nend try \nend tell";
}

} // namespace songsweep::mergeTexts
