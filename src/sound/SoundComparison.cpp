// SPDX-License-Identifier: MIT
#include "sound/SoundComparison.h"

#include "library/Groups.h"

#include <unordered_map>

namespace songsweep {

namespace {

std::vector<HeardCopy> copiesOf(const std::vector<TrackRecord*>& rows, const RowGroup& group,
                                const std::vector<Listening::Heard>& heard) {
    std::vector<HeardCopy> copies;
    copies.reserve(group.size());
    for (std::size_t row = group.first; row < group.end; ++row) {
        const Result<Fingerprint>& sound = *heard[row];
        copies.push_back({sound ? &sound.value() : nullptr, rows[row]->timev});
    }
    return copies;
}

void appendVerdicts(std::vector<SoundVerdict>& verdicts, const std::vector<SoundPlace>& places) {
    std::unordered_map<std::int32_t, int> copiesOfSet;
    for (const SoundPlace& place : places)
        ++copiesOfSet[place.set];
    for (const SoundPlace& place : places) {
        if (place.set == 0)
            verdicts.push_back(SoundVerdict::notReadable);
        else if (copiesOfSet[place.set] > 1)
            verdicts.push_back(SoundVerdict::same);
        else
            verdicts.push_back(place.isUnsure ? SoundVerdict::unsure : SoundVerdict::differs);
    }
}

} // namespace

Result<ComparedSounds> compareSounds(const std::vector<TrackRecord*>& rows, Listening& listening,
                                     const ListeningWatch& watch) {
    std::vector<std::string> paths;
    paths.reserve(rows.size());
    for (const TrackRecord* const row : rows)
        paths.push_back(row->location.string());
    const Result<std::vector<Listening::Heard>> heard = listening.hear(paths, watch);
    if (!heard) return heard.error();
    ComparedSounds compared;
    for (const RowGroup group : groupsOf(rows)) {
        const std::vector<SoundPlace> places = soundSets(copiesOf(rows, group, heard.value()));
        compared.places.insert(compared.places.end(), places.begin(), places.end());
        appendVerdicts(compared.verdicts, places);
    }
    return compared;
}

const char* soundWord(SoundVerdict verdict) {
    switch (verdict) {
    case SoundVerdict::same:
        return "same";
    case SoundVerdict::differs:
        return "differs";
    case SoundVerdict::unsure:
        return "unsure";
    case SoundVerdict::notReadable:
        return "not readable";
    }
    return "";
}

} // namespace songsweep
