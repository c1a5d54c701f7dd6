// SPDX-License-Identifier: MIT
#include "delete/FileDeletion.h"

#include "delete/Cleanup.h"
#include "delete/DeleteTexts.h"
#include "delete/MarkedFiles.h"
#include "library/QuotedTrack.h"
#include "platform/Files.h"
#include "platform/LocalName.h"
#include "scripting/AppleScript.h"

#include <charconv>
#include <exception>
#include <filesystem>

namespace songsweep {

namespace {

bool isLink(const std::string& path) {
    std::error_code error;
    return std::filesystem::is_symlink(path, error);
}

/// As far as the record knows it.
std::int64_t trackIdOf(const TrackRecord& record) {
    std::int64_t id = -1;
    const std::string_view text = record.trackid;
    std::from_chars(text.data(), text.data() + text.size(), id);
    return id;
}

/// Why a file stays that Finder was told of.
std::string reasonOf(const Result<void>& told, const std::optional<Result<TrashedFile>>& fate) {
    if (fate && !*fate) return fate->error().message;
    return told ? "it is still there" : told.error().message;
}

} // namespace

RecordedTrack FileDeletion::planFor(const TrackRecord& record, bool withFile) const {
    RecordedTrack track;
    track.persistentId = record.pid.string();
    track.trackId = trackIdOf(record);
    track.name = record.name.string();
    track.artist = record.artist.string();
    const PlannedFile* const file = withFile ? plannedFileOf(record) : nullptr;
    DeleteOutcome outcome;
    if (file == nullptr) return track;
    track.kept = isKeptByPlan(record, m_plan, outcome) ? outcome.reason
                 : file->obstacle                      ? file->obstacle
                                                       : file->refusal;
    if (outcome.file == DeleteOutcome::File::kept) return track;
    track.path = m_files.localPath(record.location.string()); // What is foreseen may turn out otherwise.
    track.file = file->stamp;
    return track;
}

void FileDeletion::deleteFileOf(const TrackRecord& record, DeleteOutcome& outcome, std::size_t number) {
    try {
        decide(record, outcome, number);
    } catch (const std::exception& exception) {
        outcome.keepFile(exception.what());
    }
}

void FileDeletion::decide(const TrackRecord& record, DeleteOutcome& outcome, std::size_t number) {
    const std::optional<FileAttributes> file = fileOf(record);
    const PlannedFile* const planned = plannedFileOf(record);
    const bool isPlanned = file && planned && stampOf(*file) == planned->stamp;
    const auto told = planned && !isPlanned ? m_names.find(planned->path) : m_names.end();
    if (told != m_names.end()) {
        m_told.push_back({number, told->second, {}});
    } else if (!file) {
        outcome.file = DeleteOutcome::File::missing;
    } else if (isKeptByPlan(record, m_plan, outcome)) {
        return;
    } else if (const char* const obstacle = kindObstacle(file->kind)) {
        outcome.keepFile(obstacle);
    } else if (!isPlanned) {
        outcome.keepFile("it is not the file that was looked at");
    } else if (const std::string reason = m_staying.reasonToKeep(*planned); !reason.empty()) {
        outcome.keepFile(reason);
    } else if (const auto hfs = nameableHfsPath(record.location)) {
        trash(record, *hfs, number);
    } else {
        outcome.keepFile(unnameable);
    }
}

void FileDeletion::trash(const TrackRecord& record, const std::string& hfs, std::size_t number) {
    const std::string& file = plannedFileOf(record)->path;
    const std::string name = m_files.localPath(record.location.string());
    if (name == file || !isLink(name))
        m_names.emplace(file, name); // Of a link, the file is still there afterwards.
    m_told.push_back({number, name, tellFinder(deleteTexts::deleteFile(hfs))});
}

void FileDeletion::keepFileOf(const TrackRecord& record, DeleteOutcome& outcome) const {
    outcome.file = fileOf(record) ? DeleteOutcome::File::kept : DeleteOutcome::File::missing;
}

void FileDeletion::settle(std::vector<DeleteOutcome>& outcomes, Cleanup& cleanup) const {
    std::unordered_map<std::string, std::size_t> first; // outcome of each name
    for (const Told& told : m_told) {
        DeleteOutcome& outcome = outcomes[told.outcome];
        const auto fate = cleanup.fateOfFile(told.outcome);
        // The location itself may lead to another file now.
        const bool isGone = fate ? fate->hasValue() : !isNameTaken(told.name);
        if (isGone) {
            outcome.file = DeleteOutcome::File::trashed;
            if (fate) outcome.trash = fate->value();
            const auto [other, isFirst] = first.emplace(told.name, told.outcome);
            if (!isFirst) tellOfOther(outcomes[other->second], told, outcome);
        } else if (outcome.track != DeleteOutcome::Track::deleted) {
            outcome.file = DeleteOutcome::File::kept; // with its track, for the track's reason
        } else {
            outcome.keepFile(reasonOf(told.result, fate));
        }
    }
}

/// One file went for both tracks.
void FileDeletion::tellOfOther(const DeleteOutcome& other, const Told& told, DeleteOutcome& outcome) const {
    const std::string own = m_files.localPath(outcome.location);
    const bool isLeftLink = own != told.name && isLink(own);
    if (!outcome.trash) outcome.trash = other.trash;
    outcome.addReason(std::string(isLeftLink ? "it is a link, which is left; " : "") + "it is the file of " +
                      quotedTrack(other.name, other.artist) + ", too");
}

/// The file that the location leads to at this moment. A location that is no path, as that of a track without
/// a file, names nothing.
std::optional<FileAttributes> FileDeletion::fileOf(const TrackRecord& record) const {
    const std::string path = record.location.string();
    return isPath(path) ? m_files.attributes(path) : std::nullopt;
}

/// Null where there was no file.
const PlannedFile* FileDeletion::plannedFileOf(const TrackRecord& record) const {
    const auto planned = m_plan.files.find(&record);
    return planned == m_plan.files.end() ? nullptr : &planned->second;
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
