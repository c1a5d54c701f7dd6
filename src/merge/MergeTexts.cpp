// SPDX-License-Identifier: MIT
#include "merge/MergeTexts.h"

#include "scripting/TextLiteral.h"

#include <algorithm>
#include <array>
#include <numeric>
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

std::string ofKept(const MergedValue& value) {
    return std::string(words.at(static_cast<std::size_t>(value.property))) + " of kept";
}

std::string valueText(const MergedValue& value) {
    const std::string word(words.at(static_cast<std::size_t>(value.property)));
    return set(ofKept(value),
               value.from ? word + " of " + otherName(*value.from) : std::to_string(value.sum));
}

/// The copies of which the text says more than their places.
std::set<std::size_t> othersOf(const SongMerge& song, MergeRoad road) {
    std::set<std::size_t> others;
    for (const MergedValue& value : song.values) {
        if (value.from) others.insert(*value.from);
        for (std::size_t copy = 0; road == MergeRoad::iTunes && !value.from && copy < song.removed.size();
             ++copy)
            others.insert(copy);
    }
    return others;
}

/// "set played count of kept to (played count of kept) + (played count of other1)"
std::string addedText(const MergedValue& value, const SongMerge& song) {
    const std::string word(words.at(static_cast<std::size_t>(value.property)));
    std::string sum = "(" + ofKept(value) + ")";
    for (std::size_t copy = 0; copy < song.removed.size(); ++copy)
        sum += " + (" + word + " of " + otherName(copy) + ")";
    return set(ofKept(value), sum);
}

std::string valuesText(const SongMerge& song, MergeRoad road) {
    std::string text;
    for (const MergedValue& value : song.values)
        text += value.from || road == MergeRoad::libraryFile ? valueText(value) : addedText(value, song);
    return text;
}

/// At the end of the playlist.
std::string placesAtEndText(const SongsToMerge::Song& copies, const MergedPlaces& places) {
    std::string text =
        set("place", "(first user playlist whose persistent ID is \"" + places.playlistId + "\")");
    for (std::size_t i = 0; i < places.givenUp; ++i)
        text += "delete (last track of place whose persistent ID is \"" + escapedWords(copies.kept.pid) +
                "\") \n";
    const auto taken = std::accumulate(places.taken.begin(), places.taken.end(), std::size_t{0});
    for (std::size_t i = 0; i < taken; ++i)
        text += "duplicate kept to place \n";
    return text;
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

std::string mergeSong(const SongMerge& song, MergeRoad road) {
    std::string text =
        "tell application \"iTunes\" \ntry \n" + set("kept", trackOf("first", 1, song.copies.kept.pid));
    for (const std::size_t copy : othersOf(song, road))
        text += set(otherName(copy), trackOf("first", 1, song.copies.removed[copy].pid));
    text += valuesText(song, road);
    for (const MergedPlaces& places : song.places)
        text += road == MergeRoad::iTunes ? placesAtEndText(song.copies, places)
                                          : placesText(song.copies, places);
    return text + "return \"\" \non error reason \nreturn reason \nend try \nend tell";
}

} // namespace songsweep::mergeTexts
