// SPDX-License-Identifier: MIT
#include "delete/KeptIds.h"

#include "delete/DeletePlan.h"
#include "delete/Obstacles.h"
#include "library/PersistentId.h"

#include <unordered_map>

namespace songsweep {

namespace {

struct Marked {
    std::string_view pid;
    std::size_t tracks = 0;
};

} // namespace

KeptIds::KeptIds(const SurveyedRows& rows, const TracksOfId& tracksOfId,
                 const std::function<bool()>& isStopped) {
    std::unordered_map<std::uint64_t, Marked> marked;
    for (const SurveyedRows::Track& track : rows.marked) {
        if (trackObstacle(track.pid)) continue;
        Marked& same = marked[PersistentId::of(track.pid).value];
        same = {track.pid, same.tracks + 1};
    }
    for (const SurveyedRows::Other& other : rows.others) {
        const std::uint64_t id = PersistentId::of(other.pid).value;
        if (!trackObstacle(other.pid) && marked.contains(id)) m_values.insert(id);
    }
    if (!tracksOfId) return;
    for (const auto& [id, same] : marked) {
        if (isStopped()) return;
        if (tracksOfId(same.pid).size() > same.tracks) m_values.insert(id);
    }
}

bool KeptIds::contains(std::string_view pid) const {
    return !m_values.empty() && !trackObstacle(pid) && m_values.contains(PersistentId::of(pid).value);
}

} // namespace songsweep
