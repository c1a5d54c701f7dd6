// SPDX-License-Identifier: MIT
#include "sound/SoundComparison.h"

#include "sound/SoundSets.h"

#include <cmath>
#include <cstddef>
#include <unordered_map>

namespace songsweep {

namespace {

SoundVerdict verdictOf(const SoundPlace& place, int copiesOfSet) {
    if (place.set == 0) return SoundVerdict::notReadable;
    if (copiesOfSet > 1) return SoundVerdict::same;
    return place.isUnsure ? SoundVerdict::unsure : SoundVerdict::differs;
}

/// Rounded down, so that nothing is called 100 % that is less.
std::uint8_t percentOf(double agreement) {
    constexpr double whole = 100;
    return static_cast<std::uint8_t>(std::floor(agreement * whole));
}

void appendFindings(std::vector<SoundFinding>& findings, const std::vector<SoundPlace>& places) {
    std::unordered_map<std::int32_t, int> copiesOfSet;
    for (const SoundPlace& place : places)
        ++copiesOfSet[place.set];
    for (const SoundPlace& place : places)
        findings.push_back({place.set, verdictOf(place, copiesOfSet[place.set]), percentOf(place.agreement)});
}

} // namespace

std::vector<ComparedCopy> comparedCopies(const std::vector<TrackRecord*>& rows) {
    std::vector<ComparedCopy> copies;
    copies.reserve(rows.size());
    for (const TrackRecord* const row : rows)
        copies.push_back({row->location.string(), row->timev, row->gid});
    return copies;
}

Result<ComparedSounds> compareSounds(const std::vector<ComparedCopy>& copies, Listening& listening,
                                     const ListeningWatch& watch) {
    std::vector<std::string> paths;
    paths.reserve(copies.size());
    for (const ComparedCopy& copy : copies)
        paths.push_back(copy.location);
    const Result<std::vector<Listening::Heard>> heard = listening.hear(paths, watch);
    if (!heard) return heard.error();
    ComparedSounds compared;
    compared.findings.reserve(copies.size());
    std::vector<HeardCopy> group;
    for (std::size_t i = 0; i < copies.size(); ++i) {
        const Result<Fingerprint>& sound = *heard.value()[i];
        group.push_back({sound ? &sound.value() : nullptr, copies[i].seconds});
        if (!sound) compared.unread.push_back(copies[i].location + ": " + sound.error().message);
        if (i + 1 < copies.size() && copies[i + 1].gid == copies[i].gid) continue;
        appendFindings(compared.findings, soundSets(group));
        group.clear();
    }
    return compared;
}

void keepFindings(const std::vector<TrackRecord*>& rows, const std::vector<SoundFinding>& findings) {
    for (std::size_t i = 0; i < rows.size() && i < findings.size(); ++i)
        rows[i]->sound = findings[i];
}

} // namespace songsweep
