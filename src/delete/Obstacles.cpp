// SPDX-License-Identifier: MIT
#include "delete/Obstacles.h"

#include "delete/DeleteTexts.h"
#include "scripting/TextLiteral.h"

namespace songsweep {

const char* trackObstacle(std::string_view pid) {
    if (pid.empty() || pid == "0") return "it has no persistent ID";
    return canStandInText(pid) ? nullptr : "its persistent ID cannot be told to iTunes";
}

const char* kindObstacle(FileAttributes::Kind kind) {
    switch (kind) {
    case FileAttributes::Kind::file:
        return nullptr;
    case FileAttributes::Kind::folder:
        return "it is a folder";
    case FileAttributes::Kind::other:
        break;
    }
    return "it is no regular file";
}

const char* nameObstacle(const TrackRecord& record, const DeletePlan& plan) {
    const bool hasFile = plan.files.contains(&record);
    return hasFile && !canNameFile(record.location) ? "its file's name cannot be told to Finder" : nullptr;
}

const char* fileObstacle(std::string_view location, FileAttributes::Kind kind) {
    if (const char* const obstacle = kindObstacle(kind)) return obstacle;
    return canNameFile(location) ? nullptr : unnameable;
}

bool isKeptByPlan(const TrackRecord& record, const DeletePlan& plan, DeleteOutcome& outcome) {
    if (trackObstacle(record.pid)) {
        outcome.file = DeleteOutcome::File::kept; // with its track, for the track's reason
        return true;
    }
    if (!plan.shared.contains(&record)) return false;
    if (plan.libraryUnknown) {
        outcome.keepFile("other tracks that use it could not be looked for");
    } else {
        outcome.file = DeleteOutcome::File::kept;
        outcome.addReason("a track that is not marked uses it too");
    }
    return true;
}

} // namespace songsweep
