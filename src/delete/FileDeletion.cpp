// SPDX-License-Identifier: MIT
#include "delete/FileDeletion.h"

#include "delete/DeleteTexts.h"
#include "delete/Obstacles.h"
#include "platform/Files.h"
#include "platform/LocalName.h"
#include "scripting/AppleScript.h"

#include <exception>

namespace songsweep {

void FileDeletion::deleteFileOf(const TrackRecord& record, DeleteOutcome& outcome) {
    try {
        decide(record, outcome);
    } catch (const std::exception& exception) {
        outcome.keepFile(exception.what());
    }
}

void FileDeletion::decide(const TrackRecord& record, DeleteOutcome& outcome) {
    const std::string file = fileOf(record);
    const std::string planned = plannedFileOf(record);
    if (file != planned && m_trashed.contains(planned)) {
        outcome.file = DeleteOutcome::File::trashed;
    } else if (file.empty()) {
        outcome.file = DeleteOutcome::File::missing;
    } else if (isKeptByPlan(record, m_plan, outcome)) {
        return;
    } else if (file != planned) {
        outcome.keepFile("it is not the file that was looked at");
    } else if (const char* const obstacle = obstacleOf(record)) {
        outcome.keepFile(obstacle);
    } else {
        trash(record, file, outcome);
    }
}

void FileDeletion::trash(const TrackRecord& record, const std::string& file, DeleteOutcome& outcome) {
    const std::string name = m_files.localPath(record.location.string());
    const std::string hfs = nameableHfsPath(record.location).value();
    const Result<void> trashed = tellFinder(deleteTexts::deleteFile(hfs));
    // The location itself may lead to another file now.
    if (isNameTaken(name)) {
        outcome.keepFile(trashed ? "it is still there" : trashed.error().message);
        return;
    }
    outcome.file = DeleteOutcome::File::trashed;
    if (!isNameTaken(file)) m_trashed.insert(file); // Of a link, the file is still there.
}

/// The file that the location leads to at this moment, "" where it leads to none. A location that is no path,
/// as that of a track without a file, names nothing.
std::string FileDeletion::fileOf(const TrackRecord& record) const {
    const std::string path = record.location.string();
    return isPath(path) && m_files.exists(path) ? canonicalPath(m_files.localPath(path)) : std::string();
}

/// Looked at once more: a folder may have taken the place of the file since.
const char* FileDeletion::obstacleOf(const TrackRecord& record) const {
    const auto attributes = m_files.attributes(record.location.string());
    return fileObstacle(record.location, attributes ? attributes->kind : FileAttributes::Kind::other);
}

/// What tracks that share a file have in common; "" where there was no file.
std::string FileDeletion::plannedFileOf(const TrackRecord& record) const {
    const auto planned = m_plan.files.find(&record);
    return planned == m_plan.files.end() ? std::string() : planned->second.path;
}

/// What is thrown meanwhile is the reason, if the file stays.
Result<void> FileDeletion::tellFinder(const std::string& text) {
    try {
        const Result<Descriptor> result = m_scripts.executeAndReturnError(text);
        return result ? Result<void>() : Result<void>(result.error());
    } catch (const std::exception& exception) {
        return Error{Error::Code::failed, exception.what()};
    }
}

} // namespace songsweep
