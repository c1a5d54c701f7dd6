// SPDX-License-Identifier: MIT
#include "restore/CleanupFinish.h"

#include "libraryfile/CleanupHistory.h"
#include "libraryfile/CleanupLock.h"
#include "libraryfile/CleanupRecord.h"
#include "libraryfile/LibraryDocument.h"
#include "libraryfile/LibraryTransaction.h"
#include "restore/RemainingFiles.h"
#include "scan/PlaylistRewriting.h"

#include <algorithm>
#include <utility>

namespace songsweep {

namespace {

constexpr std::size_t filesABatch = 64; // that are written down, on the disk, before they are moved

std::vector<std::size_t> tracksOf(std::span<const RemainingFiles::File> files) {
    std::vector<std::size_t> tracks;
    for (const RemainingFiles::File& file : files)
        tracks.insert(tracks.end(), file.tracks.begin(), file.tracks.end());
    return tracks;
}

Result<TrashedFile> moveToTrash(const RemainingFiles::File& file, const RecordedTrack& plan, Trash& trash) {
    if (!isAsPlanned(file.path, plan.file))
        return Error{Error::Code::busy, "it is not the file any more that it was"};
    return trash.moveToTrash(file.path);
}

/// Lines for what the record has not yet; places that were only found, too.
Result<void> writeEnd(const RecordedCleanup& before, const RemainingFiles& remaining, CleanupRecord& record) {
    for (std::size_t track = 0; track < before.tracks.size(); ++track)
        if (!before.tracks[track].outcome) record.outcome(track, *remaining.tracks[track].outcome);
    return record.end(RecordEnd::How::complete, {});
}

/// Files that a killed program had moved and could not tell of.
void noteFoundPlaces(const RecordedCleanup& before, const RemainingFiles& remaining, CleanupRecord& record) {
    for (std::size_t track = 0; track < before.tracks.size(); ++track)
        if (remaining.tracks[track].trash && !before.tracks[track].trash)
            record.trashed(track, *remaining.tracks[track].trash);
}

/// Of the tracks that the library names no more.
std::vector<std::string> pathsOfGone(const RemainingFiles& remaining) {
    std::vector<std::string> paths;
    for (const RecordedCleanup::Track& track : remaining.tracks)
        if (track.outcome && track.outcome->track == RecordedOutcome::Track::deleted)
            paths.push_back(track.plan.path);
    return paths;
}

} // namespace

Result<RecordedCleanup> CleanupFinish::interrupted() const {
    auto cleanup = RecordedCleanup::read(m_record);
    if (!cleanup) return cleanup;
    if (cleanup.value().end || cleanup.value().heading.kind != RecordHeading::Kind::cleanup)
        return Error{Error::Code::invalid,
                     "\"" + cleanupName(m_record) + "\" is no deletion that was interrupted"};
    return cleanup;
}

Result<RemainingFiles> CleanupFinish::look(const RecordedCleanup& cleanup) const {
    const auto library = LibraryDocument::open(m_library);
    if (!library) return library.error();
    return lookForRemainingFiles(cleanup, *library.value(), m_files, m_trash);
}

/// Where the folder takes no lock file, nobody is at it.
Result<RecordedCleanup> CleanupFinish::foresee() const {
    const auto lock = CleanupLock::acquire(m_library, {"a look at its records", {}});
    if (!lock && lock.error().code == Error::Code::busy) return lock.error();
    auto cleanup = interrupted();
    if (!cleanup) return cleanup;
    auto remaining = look(cleanup.value());
    if (!remaining) return remaining.error();
    cleanup.value().tracks = std::move(remaining.value().tracks);
    return cleanup;
}

Result<RecordedCleanup> CleanupFinish::carryOut(const RestoreTask& task) const {
    const auto lock = LibraryTransaction::begin(m_library, {task.purpose, {}}, Backup::Purpose::deletion);
    if (!lock) return lock.error();
    auto cleanup = interrupted();
    if (!cleanup) return cleanup;
    auto remaining = look(cleanup.value());
    if (!remaining) return remaining.error();
    auto record = CleanupRecord::resume(cleanup.value(), task.program);
    if (!record) return record.error();
    noteFoundPlaces(cleanup.value(), remaining.value(), record.value());
    const Result<bool> all = moveFiles(remaining.value(), record.value(), task);
    if (!all) return all.error();
    cleanup.value().notes = rewritePlaylists(m_library, pathsOfGone(remaining.value()), record.value());
    if (all.value())
        if (auto ended = writeEnd(cleanup.value(), remaining.value(), record.value()); !ended)
            return ended.error();
    cleanup.value().tracks = std::move(remaining.value().tracks);
    if (all.value()) cleanup.value().end = RecordEnd();
    return cleanup;
}

/// False where it was stopped; what is left stays as it is then.
Result<bool> CleanupFinish::moveFiles(RemainingFiles& remaining, CleanupRecord& record,
                                      const RestoreTask& task) const {
    const std::vector<RemainingFiles::File> files = std::exchange(remaining.files, {});
    for (std::size_t i = 0; i < files.size(); ++i) {
        task.progress(i, files.size());
        if (task.isCancelled()) {
            const Error left{Error::Code::failed, "it was not attempted"};
            for (const RemainingFiles::File& file : std::span(files).subspan(i))
                remaining.settle(file, left);
            return false;
        }
        const std::size_t ahead = std::min(filesABatch, files.size() - i);
        if (i % filesABatch == 0)
            if (const auto told = record.trashing(tracksOf(std::span(files).subspan(i, ahead))); !told)
                return told.error();
        const RemainingFiles::File& file = files[i];
        const auto moved = moveToTrash(file, remaining.tracks[file.tracks.front()].plan, m_trash);
        remaining.settle(file, moved);
        if (moved)
            for (const std::size_t track : file.tracks)
                record.trashed(track, moved.value());
    }
    return true;
}

} // namespace songsweep
