// SPDX-License-Identifier: MIT
#include "delete/StayingFiles.h"

#include "delete/DeletePlan.h"
#include "delete/Obstacles.h"
#include "delete/SharedIds.h"
#include "library/QuotedTrack.h"

namespace songsweep {

StayingFiles::StayingFiles(const std::vector<TrackRecord*>& rows, const DeletePlan& plan, SharedIds& ids) {
    for (const TrackRecord* const record : rows) {
        if (!record->checkbox) continue;
        const auto file = plan.files.find(record);
        if (file == plan.files.end()) continue;
        if (!trackObstacle(record->pid) && ids.reasonToKeep(*record).empty()) continue;
        m_byPath.emplace(file->second.path, record);
        m_byStamp.emplace(file->second.stamp, record);
    }
}

std::string StayingFiles::reasonToKeep(const PlannedFile& file) const {
    const TrackRecord* const user = userOf(file);
    return user == nullptr ? "" : quotedTrack(user->name, user->artist) + ", which stays, uses it too";
}

const TrackRecord* StayingFiles::userOf(const PlannedFile& file) const {
    if (const auto same = m_byPath.find(file.path); same != m_byPath.end()) return same->second;
    const auto same = m_byStamp.find(file.stamp);
    return same == m_byStamp.end() ? nullptr : same->second;
}

} // namespace songsweep
