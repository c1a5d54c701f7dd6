// SPDX-License-Identifier: MIT
#include "delete/DeletePrediction.h"

#include "delete/Obstacles.h"
#include "delete/StayingFiles.h"
#include "library/QuotedTrack.h"

#include <filesystem>
#include <system_error>
#include <unordered_map>

namespace songsweep {

namespace {

/// The first of the tracks whose file goes, by the file; a link goes by itself.
class GoingFiles {
  public:
    void tellOfOther(const TrackRecord& record, const PlannedFile& file, DeleteOutcome& outcome) {
        std::error_code error;
        if (std::filesystem::is_symlink(record.location.string(), error)) return;
        const auto [first, isFirst] = m_first.emplace(file.path, &record);
        if (!isFirst)
            outcome.addReason("it is the file of " + quotedTrack(first->second->name, first->second->artist) +
                              ", too");
    }

  private:
    std::unordered_map<std::string, const TrackRecord*> m_first;
};

void predictFile(const TrackRecord& record, const DeletePlan& plan, const StayingFiles& staying,
                 GoingFiles& going, DeleteOutcome& outcome) {
    using File = DeleteOutcome::File;
    const auto file = plan.files.find(&record);
    if (file == plan.files.end()) {
        outcome.file = File::missing;
    } else if (isKeptByPlan(record, plan, outcome)) {
        return;
    } else if (file->second.obstacle) {
        outcome.keepFile(file->second.obstacle);
    } else if (const std::string reason = staying.reasonToKeep(file->second); !reason.empty()) {
        outcome.keepFile(reason);
    } else if (!file->second.refusal.empty()) {
        outcome.keepFile(file->second.refusal);
    } else {
        outcome.file = File::trashed;
        going.tellOfOther(record, file->second, outcome);
    }
}

/// `plan` where files go, too.
void predictTrack(const TrackRecord& record, SharedIds& ids, const DeletePlan* plan, DeleteOutcome& outcome) {
    const char* obstacle = trackObstacle(record.pid);
    if (!obstacle && plan) obstacle = nameObstacle(record, *plan);
    const std::string reason = obstacle ? obstacle : ids.reasonToKeep(record);
    outcome.track = reason.empty() ? DeleteOutcome::Track::deleted : DeleteOutcome::Track::failed;
    outcome.dealtWith = reason.empty();
    if (!reason.empty()) outcome.addReason(reason);
}

/// The file of a track that stays stays with it.
void predictKeptFile(const TrackRecord& record, const DeletePlan& plan, DeleteOutcome& outcome) {
    outcome.file = plan.files.contains(&record) ? DeleteOutcome::File::kept : DeleteOutcome::File::missing;
}

} // namespace

DeleteReport predictedReport(const std::vector<TrackRecord*>& rows, bool isDelFile, const DeletePlan& plan,
                             const TracksOfId& tracksOfId) {
    DeleteReport report;
    SharedIds ids(rows, tracksOfId);
    const StayingFiles staying = isDelFile ? StayingFiles(rows, plan, ids) : StayingFiles();
    GoingFiles going;
    for (const TrackRecord* const record : rows) {
        if (!record->checkbox) continue;
        DeleteOutcome& outcome = report.outcomes.emplace_back(outcomeOf(*record));
        predictTrack(*record, ids, isDelFile ? &plan : nullptr, outcome);
        const auto given = plan.merge.given.find(record);
        if (given != plan.merge.given.end() && outcome.track == DeleteOutcome::Track::deleted)
            outcome.merged = given->second;
        if (!isDelFile) continue;
        if (outcome.track == DeleteOutcome::Track::deleted) {
            predictFile(*record, plan, staying, going, outcome);
        } else {
            predictKeptFile(*record, plan, outcome);
        }
    }
    report.merge = plan.merge.counts;
    return report;
}

} // namespace songsweep
