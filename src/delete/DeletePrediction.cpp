// SPDX-License-Identifier: MIT
#include "delete/DeletePrediction.h"

#include "delete/DeleteTexts.h"

namespace songsweep {

namespace {

void predictFile(const TrackRecord& record, const DeletePlan& plan, DeleteOutcome& outcome) {
    outcome.file = DeleteOutcome::File::kept;
    if (!plan.files.contains(&record)) {
        outcome.file = DeleteOutcome::File::missing;
    } else if (plan.shared.contains(&record)) {
        outcome.reason = reasonToLeave(plan);
    } else if (!canNameFile(record.location)) {
        outcome.reason = fileCannotBeNamed;
        outcome.dealtWith = false;
    } else {
        outcome.file = DeleteOutcome::File::trashed;
    }
}

} // namespace

DeleteReport predictedReport(const std::vector<TrackRecord*>& rows, bool isDelFile, const DeletePlan& plan) {
    DeleteReport report;
    for (const TrackRecord* const record : rows) {
        if (!record->checkbox) continue;
        DeleteOutcome outcome = outcomeOf(*record);
        outcome.track = DeleteOutcome::Track::deleted;
        outcome.dealtWith = true;
        if (isDelFile) predictFile(*record, plan, outcome);
        report.outcomes.push_back(std::move(outcome));
    }
    return report;
}

} // namespace songsweep
