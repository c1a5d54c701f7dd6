// SPDX-License-Identifier: MIT
#include "delete/DeletePrediction.h"

#include "delete/Obstacles.h"

namespace songsweep {

namespace {

void predictFile(const TrackRecord& record, const DeletePlan& plan, DeleteOutcome& outcome) {
    using File = DeleteOutcome::File;
    const auto file = plan.files.find(&record);
    if (file == plan.files.end()) {
        outcome.file = File::missing;
    } else if (isKeptByPlan(record, plan, outcome)) {
        return;
    } else if (!file->second.obstacle.empty()) {
        outcome.keepFile(file->second.obstacle);
    } else {
        outcome.file = File::trashed;
    }
}

DeleteOutcome predictedOutcome(const TrackRecord& record, bool isDelFile, const DeletePlan& plan) {
    DeleteOutcome outcome = outcomeOf(record);
    const char* const obstacle = trackObstacle(record.pid);
    outcome.track = obstacle ? DeleteOutcome::Track::failed : DeleteOutcome::Track::deleted;
    outcome.dealtWith = !obstacle;
    if (obstacle) outcome.addReason(obstacle);
    if (isDelFile) predictFile(record, plan, outcome);
    return outcome;
}

} // namespace

DeleteReport predictedReport(const std::vector<TrackRecord*>& rows, bool isDelFile, const DeletePlan& plan) {
    DeleteReport report;
    for (const TrackRecord* const record : rows) {
        if (record->checkbox) report.outcomes.push_back(predictedOutcome(*record, isDelFile, plan));
    }
    return report;
}

} // namespace songsweep
