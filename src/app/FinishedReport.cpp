// SPDX-License-Identifier: MIT
#include "app/FinishedReport.h"

namespace songsweep {

namespace {

DeleteOutcome::Track trackOf(RecordedOutcome::Track track) {
    if (track == RecordedOutcome::Track::deleted) return DeleteOutcome::Track::deleted;
    return track == RecordedOutcome::Track::failed ? DeleteOutcome::Track::failed
                                                   : DeleteOutcome::Track::notAttempted;
}

DeleteOutcome::File fileOf(RecordedOutcome::File file) {
    switch (file) {
    case RecordedOutcome::File::trashed:
        return DeleteOutcome::File::trashed;
    case RecordedOutcome::File::missing:
        return DeleteOutcome::File::missing;
    case RecordedOutcome::File::kept:
        return DeleteOutcome::File::kept;
    case RecordedOutcome::File::notAsked:
    case RecordedOutcome::File::putBack:
        break;
    }
    return DeleteOutcome::File::notAsked;
}

/// A file that was to stay has no path in the plan.
bool isDealtWith(const RecordedOutcome& outcome, const RecordedTrack& plan) {
    return outcome.track == RecordedOutcome::Track::deleted &&
           (outcome.file != RecordedOutcome::File::kept || plan.path.empty());
}

DeleteOutcome outcomeOf(const RecordedCleanup::Track& track) {
    const RecordedOutcome recorded = track.outcome.value_or(RecordedOutcome());
    DeleteOutcome outcome;
    outcome.track = trackOf(recorded.track);
    outcome.file = fileOf(recorded.file);
    outcome.reason = recorded.reason;
    outcome.pid = track.plan.persistentId;
    outcome.name = track.plan.name;
    outcome.artist = track.plan.artist;
    outcome.location = track.plan.path;
    if (outcome.file == DeleteOutcome::File::trashed) outcome.trash = track.trash;
    outcome.dealtWith = isDealtWith(recorded, track.plan);
    return outcome;
}

} // namespace

DeleteReport finishedReport(const RecordedCleanup& cleanup) {
    DeleteReport report;
    report.backup = cleanup.heading.backup;
    report.record = cleanup.path;
    report.notes = cleanup.notes;
    report.outcomes.reserve(cleanup.tracks.size());
    for (const RecordedCleanup::Track& track : cleanup.tracks)
        report.outcomes.push_back(outcomeOf(track));
    return report;
}

} // namespace songsweep
