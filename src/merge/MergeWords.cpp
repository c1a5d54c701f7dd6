// SPDX-License-Identifier: MIT
#include "merge/MergeWords.h"

#include "library/ValueFormats.h"

#include <array>
#include <string_view>

namespace songsweep {

namespace {

constexpr std::array<std::string_view, 15> words{
    "plays",   "skips", "rating", "album rating", "last played", "last skipped", "date added", "loved",
    "enabled", "genre", "year",   "comment",      "composer",    "track number", "disc number"};

void addTo(std::string& list, const std::string& word) {
    if (word.empty()) return;
    if (!list.empty()) list += ", ";
    list += word;
}

std::string countedOrNothing(std::size_t count, std::string_view noun) {
    return count > 0 ? counted(count, noun) : std::string();
}

} // namespace

MergedCopy mergedCopy(const SongMerge& song, std::size_t copy) {
    MergedCopy merged{song.copies.kept.pid.string(), 0, 0, {}};
    for (const MergedPlaces& places : song.places)
        merged.places += places.taken[copy];
    for (const MergedValue& value : song.values) {
        const CopyFacts& facts = song.removed[copy];
        if (value.property == MergedProperty::plays) merged.plays = facts.plays;
        const bool isSource =
            value.from == copy || (value.property == MergedProperty::skips && facts.skips > 0);
        if (isSource) addTo(merged.values, std::string(words.at(static_cast<std::size_t>(value.property))));
    }
    return merged;
}

std::string wordsOf(const MergedCopy& copy) {
    std::string list = countedOrNothing(copy.places, "place");
    addTo(list, countedOrNothing(static_cast<std::size_t>(copy.plays), "play"));
    addTo(list, copy.values);
    return list;
}

std::string wordsOf(const MergeCounts& counts) {
    std::string list = placesWords(counts);
    addTo(list, historyWords(counts));
    addTo(list, fillInWords(counts));
    return list;
}

std::string placesWords(const MergeCounts& counts) {
    if (counts.places == 0) return {};
    const std::string places = counted(counts.places, "place");
    return counts.playlists == 0 ? places : places + " in " + counted(counts.playlists, "playlist");
}

std::string historyWords(const MergeCounts& counts) {
    std::string list = countedOrNothing(static_cast<std::size_t>(counts.plays), "play");
    addTo(list, countedOrNothing(counts.ratings, "rating"));
    return list;
}

std::string fillInWords(const MergeCounts& counts) { return countedOrNothing(counts.fillIns, "value"); }

std::string leftWords(const MergeCounts& counts) {
    std::string text;
    if (counts.keepSeveral > 0)
        text = counted(counts.keepSeveral, "song") + (counts.keepSeveral == 1 ? " keeps" : " keep") +
               " two copies or more: not merged";
    if (counts.unclear > 0) {
        if (!text.empty()) text += "; ";
        text += counted(counts.unclear, "song") + (counts.unclear == 1 ? " has" : " have") +
                " a copy that cannot be told from another: not merged";
    }
    return text;
}

} // namespace songsweep
