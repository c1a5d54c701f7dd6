// SPDX-License-Identifier: MIT
#include "delete/SharedIds.h"

#include "delete/Obstacles.h"
#include "library/PersistentId.h"
#include "library/QuotedTrack.h"

#include <algorithm>
#include <utility>

namespace songsweep {

namespace {

constexpr std::size_t mostNamed = 3; // tracks, in one reason

/// "“One” by X, “Two” by Y, “Three” by Z and 12 more"
std::string listOf(const std::vector<std::string>& tracks) {
    std::string list;
    const std::size_t named = std::min(mostNamed, tracks.size());
    for (std::size_t track = 0; track < named; ++track)
        list += (list.empty() ? "" : ", ") + tracks[track];
    if (tracks.size() > named) list += " and " + std::to_string(tracks.size() - named) + " more";
    return list;
}

} // namespace

SharedIds::SharedIds(const std::vector<TrackRecord*>& rows, TracksOfId tracksOfId)
    : m_tracksOfId(std::move(tracksOfId)) {
    for (const TrackRecord* const row : rows)
        if (row->checkbox && !trackObstacle(row->pid)) ++m_rows[PersistentId::of(row->pid).value].marked;
    for (const TrackRecord* const row : rows) {
        const auto same = row->checkbox ? m_rows.end() : m_rows.find(PersistentId::of(row->pid).value);
        if (same != m_rows.end()) same->second.unmarked = row;
    }
}

std::string SharedIds::reasonToKeep(const TrackRecord& record) {
    const auto same = m_rows.find(PersistentId::of(record.pid).value);
    if (same == m_rows.end()) return {};
    if (!same->second.reason) same->second.reason = reasonOf(record, same->second);
    return *same->second.reason;
}

std::string SharedIds::reasonOf(const TrackRecord& record, const Rows& same) const {
    if (const TrackRecord* const other = same.unmarked)
        return quotedTrack(other->name, other->artist) + ", which is not marked, has its persistent ID, too";
    const auto tracks = m_tracksOfId ? m_tracksOfId(record.pid) : std::vector<std::string>();
    if (tracks.size() <= same.marked) return {};
    return std::to_string(tracks.size()) + " tracks of the library have its persistent ID (" +
           listOf(tracks) + "), of which " + std::to_string(same.marked) +
           (same.marked == 1 ? " is marked" : " are marked");
}

} // namespace songsweep
