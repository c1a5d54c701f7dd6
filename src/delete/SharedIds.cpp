// SPDX-License-Identifier: MIT
#include "delete/SharedIds.h"

#include "delete/Obstacles.h"
#include "library/PersistentId.h"
#include "library/QuotedTrack.h"

#include <utility>

namespace songsweep {

namespace {

std::string listOf(const std::vector<std::string>& tracks) {
    std::string list;
    for (const std::string& track : tracks)
        list += (list.empty() ? "" : ", ") + track;
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

std::string SharedIds::reasonToKeep(const TrackRecord& record) const {
    const auto same = m_rows.find(PersistentId::of(record.pid).value);
    if (same == m_rows.end()) return {};
    if (const TrackRecord* const other = same->second.unmarked)
        return quotedTrack(other->name, other->artist) + ", which is not marked, has its persistent ID, too";
    const auto tracks = m_tracksOfId ? m_tracksOfId(record.pid) : std::vector<std::string>();
    if (tracks.size() <= same->second.marked) return {};
    return std::to_string(tracks.size()) + " tracks of the library have its persistent ID (" +
           listOf(tracks) + "), of which " + std::to_string(same->second.marked) +
           (same->second.marked == 1 ? " is marked" : " are marked");
}

} // namespace songsweep
