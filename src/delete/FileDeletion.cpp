// SPDX-License-Identifier: MIT
#include "delete/FileDeletion.h"

#include "delete/Cleanup.h"
#include "delete/DeleteTexts.h"
#include "delete/Obstacles.h"
#include "platform/Files.h"
#include "platform/LocalName.h"
#include "scripting/AppleScript.h"

#include <exception>
#include <filesystem>

namespace songsweep {

namespace {

bool isLink(const std::string& path) {
    std::error_code error;
    return std::filesystem::is_symlink(path, error);
}

} // namespace

void FileDeletion::deleteFileOf(const TrackRecord& record, DeleteOutcome& outcome, std::size_t number) {
    try {
        decide(record, outcome, number);
    } catch (const std::exception& exception) {
        outcome.keepFile(exception.what());
    }
}

void FileDeletion::decide(const TrackRecord& record, DeleteOutcome& outcome, std::size_t number) {
    const std::string file = fileOf(record);
    const std::string planned = plannedFileOf(record);
    const auto told = m_names.find(planned);
    if (file != planned && told != m_names.end()) {
        m_told.push_back({number, told->second, {}});
    } else if (file.empty()) {
        outcome.file = DeleteOutcome::File::missing;
    } else if (isKeptByPlan(record, m_plan, outcome)) {
        return;
    } else if (file != planned) {
        outcome.keepFile("it is not the file that was looked at");
    } else if (const char* const obstacle = obstacleOf(record)) {
        outcome.keepFile(obstacle);
    } else {
        trash(record, file, number);
    }
}

void FileDeletion::trash(const TrackRecord& record, const std::string& file, std::size_t number) {
    const std::string name = m_files.localPath(record.location.string());
    const std::string hfs = nameableHfsPath(record.location).value();
    if (!isLink(name)) m_names.emplace(file, name); // Of a link, the file is still there afterwards.
    m_told.push_back({number, name, tellFinder(deleteTexts::deleteFile(hfs))});
}

void FileDeletion::keepFileOf(const TrackRecord& record, DeleteOutcome& outcome) const {
    outcome.file = fileOf(record).empty() ? DeleteOutcome::File::missing : DeleteOutcome::File::kept;
}

void FileDeletion::settle(std::vector<DeleteOutcome>& outcomes, Cleanup& cleanup) const {
    for (const Told& told : m_told) {
        DeleteOutcome& outcome = outcomes[told.outcome];
        // The location itself may lead to another file now.
        const bool isThere = isNameTaken(told.name);
        const auto fate = cleanup.fateOfFile(told.name);
        const Result<void>& result = fate ? *fate : told.result;
        if (!isThere) {
            outcome.file = DeleteOutcome::File::trashed;
        } else if (outcome.track != DeleteOutcome::Track::deleted) {
            outcome.file = DeleteOutcome::File::kept; // with its track, for the track's reason
        } else {
            outcome.keepFile(result ? "it is still there" : result.error().message);
        }
    }
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
