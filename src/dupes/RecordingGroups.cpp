// SPDX-License-Identifier: MIT
#include "dupes/RecordingGroups.h"

#include "library/Groups.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <utility>

namespace songsweep {

namespace {

/// By number, with those that have none at the end.
std::int32_t rank(const SoundPlace& place) {
    return place.set == 0 ? std::numeric_limits<std::int32_t>::max() : place.set;
}

} // namespace

std::vector<std::size_t> recordingOrder(const std::vector<TrackRecord*>& rows, const ComparedSounds& sounds) {
    std::vector<std::size_t> order(rows.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    for (const RowGroup group : groupsOf(rows))
        std::stable_sort(
            order.begin() + static_cast<std::ptrdiff_t>(group.first),
            order.begin() + static_cast<std::ptrdiff_t>(group.end),
            [&](std::size_t a, std::size_t b) { return rank(sounds.places[a]) < rank(sounds.places[b]); });
    return order;
}

ComparedSounds arranged(const ComparedSounds& sounds, const std::vector<std::size_t>& order) {
    ComparedSounds result;
    result.places.reserve(order.size());
    result.verdicts.reserve(order.size());
    for (const std::size_t row : order) {
        result.places.push_back(sounds.places[row]);
        result.verdicts.push_back(sounds.verdicts[row]);
    }
    return result;
}

RecordingGroups::RecordingGroups(const std::vector<TrackRecord*>& rows, ComparedSounds sounds)
    : m_rows(rows)
    , m_sounds(std::move(sounds)) {
    m_gids.reserve(rows.size());
    m_songs.reserve(rows.size());
    std::int32_t song = 0;
    for (std::size_t row = 0; row < rows.size(); ++row) {
        m_gids.push_back(rows[row]->gid);
        const std::int32_t set = m_sounds.places[row].set;
        const bool goesOn =
            row > 0 && set != 0 && m_gids[row] == m_gids[row - 1] && set == m_sounds.places[row - 1].set;
        m_songs.push_back(goesOn ? song : ++song);
    }
}

void RecordingGroups::split() {
    for (std::size_t row = 0; row < m_rows.size(); ++row)
        m_rows[row]->gid = m_songs[row];
}

void RecordingGroups::join() {
    for (std::size_t row = 0; row < m_rows.size(); ++row)
        m_rows[row]->gid = m_gids[row];
}

void RecordingGroups::keepLastCopies() {
    for (const RowGroup song : groupsOf(m_rows)) {
        const auto first = m_rows.begin() + static_cast<std::ptrdiff_t>(song.first);
        const auto end = m_rows.begin() + static_cast<std::ptrdiff_t>(song.end);
        if (!std::all_of(first, end, [](const TrackRecord* record) { return record->checkbox; })) continue;
        std::for_each(first, end, [](TrackRecord* record) { record->checkbox = false; });
    }
}

std::string RecordingGroups::keptReason(std::size_t row) const {
    if (m_rows[row]->checkbox) return {};
    if (m_sounds.verdicts[row] == SoundVerdict::notReadable) return "kept: its sound could not be compared";
    const std::string kept =
        m_sounds.verdicts[row] == SoundVerdict::unsure ? "kept: perhaps another" : "kept: another";
    if (isNeighbourOfOther(row, row + 1)) return kept + " recording than the copy below";
    return row > 0 && isNeighbourOfOther(row, row - 1) ? kept + " recording than the copy above" : "";
}

bool RecordingGroups::isNeighbourOfOther(std::size_t row, std::size_t other) const {
    return other < m_rows.size() && m_gids[row] == m_gids[other] && m_songs[row] != m_songs[other];
}

} // namespace songsweep
