// SPDX-License-Identifier: MIT
#include "restore/CleanupRestore.h"

#include "libraryfile/CleanupForesight.h"
#include "libraryfile/CleanupHistory.h"
#include "libraryfile/CleanupRecord.h"
#include "libraryfile/LibraryRestore.h"
#include "restore/FileReturn.h"
#include "restore/RestoreRun.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <unordered_set>
#include <utility>

namespace songsweep {

namespace {

/// Where a clean-up was killed, nothing tells which tracks the written library was without.
bool isWanted(const RecordedCleanup::Track& track, const RecordedCleanup& cleanup) {
    if (track.outcome) return track.outcome->track == RecordedOutcome::Track::deleted;
    return track.trash || (!cleanup.end && cleanup.writesBegun > 0);
}

RestoreReport reportFor(const RecordedCleanup& cleanup, const LibraryRestore::Outcome& outcome,
                        const std::vector<FileReturn>& files) {
    RestoreReport report;
    for (const RecordedCleanup::Track& track : cleanup.tracks)
        report.tracks.push_back({track.plan, {}, {}, {}});
    report.setEntries(outcome);
    report.setFiles(files, RestoredTrack::File::putBack);
    return report;
}

/// Takes tracks out of a clean-up, and the merges of which not all copies are left. Gives the number of
/// these.
template <class Test>
std::size_t takeOut(RecordedCleanup& cleanup, const Test& goes) {
    constexpr auto gone = static_cast<std::size_t>(-1);
    std::vector<std::size_t> numbers(cleanup.tracks.size(), gone);
    std::vector<RecordedCleanup::Track> left;
    for (std::size_t track = 0; track < cleanup.tracks.size(); ++track) {
        if (goes(cleanup.tracks[track])) continue;
        numbers[track] = left.size();
        left.push_back(std::move(cleanup.tracks[track]));
    }
    cleanup.tracks = std::move(left);
    for (RecordedMerge& merge : cleanup.merges)
        for (std::size_t& track : merge.removed)
            track = numbers[track];
    return std::erase_if(cleanup.merges, [&](const RecordedMerge& merge) {
        return std::ranges::find(merge.removed, gone) != merge.removed.end();
    });
}

/// Takes the tracks out of the clean-up whose files are lost; a second track of one file has no fate of its
/// own.
std::vector<RestoredTrack> takeOutLost(RecordedCleanup& cleanup, Trash& trash, std::size_t& mergesLeft) {
    const std::vector<FileReturn> files = lookForFiles(cleanup, trash);
    std::unordered_set<std::string> lost;
    for (std::size_t i = 0; i < files.size(); ++i)
        if (files[i].fate == FileReturn::Fate::isGone) lost.insert(cleanup.tracks[i].plan.path);
    std::vector<RestoredTrack> leftOut;
    mergesLeft = takeOut(cleanup, [&](const RecordedCleanup::Track& track) {
        if (!lost.contains(track.plan.path)) return false;
        leftOut.push_back({track.plan, RestoredTrack::Entry::leftOut, {}, {}});
        leftOut.back().setFileGone();
        return true;
    });
    return leftOut;
}

LibraryRestore::Wanted wantedOf(const RecordedCleanup& cleanup) {
    LibraryRestore::Wanted wanted{cleanup.heading.backup, {}, LibraryRestore::OwnBackup::always};
    for (const RecordedCleanup::Track& track : cleanup.tracks)
        wanted.tracks.push_back(track.plan);
    wanted.merges = cleanup.merges;
    return wanted;
}

RecordHeading headingOf(const LibraryRestore& restore, const RecordedCleanup& cleanup,
                        const std::string& program) {
    RecordHeading heading;
    heading.kind = RecordHeading::Kind::restore;
    heading.program = program;
    heading.library = restore.library();
    heading.backup = restore.backup();
    heading.version = restore.version();
    heading.tracks = cleanup.tracks.size();
    heading.withFiles = cleanup.heading.withFiles;
    heading.isNarrowed = restore.isNarrowed();
    heading.restores = cleanupName(cleanup.path);
    return heading;
}

/// That of a restore that never began.
void removeBackup(const LibraryRestore& restore) {
    std::error_code ignored; // It does no harm.
    std::filesystem::remove(restore.backup(), ignored);
}

} // namespace

CleanupRestore::CleanupRestore(std::string library, RecordedCleanup cleanup, Trash& trash,
                               LostFiles lostFiles)
    : m_library(std::move(library))
    , m_cleanup(std::move(cleanup))
    , m_trash(trash) {
    (void)takeOut(m_cleanup, [this](const auto& track) { return !isWanted(track, m_cleanup); });
    if (lostFiles == LostFiles::tracksStayAway) m_leftOut = takeOutLost(m_cleanup, trash, m_mergesLeft);
}

RestoreReport CleanupRestore::withLeftOut(RestoreReport report) const {
    report.tracks.insert(report.tracks.end(), m_leftOut.begin(), m_leftOut.end());
    if (m_mergesLeft > 0)
        report.notes.push_back("songs of which not every copy comes back, where the copies that stayed keep "
                               "what they were given: " +
                               std::to_string(m_mergesLeft));
    return report;
}

Result<RestoreReport> CleanupRestore::foresee() const {
    const auto outcome = LibraryRestore::foresee(m_library, wantedOf(m_cleanup));
    if (!outcome) return outcome.error();
    RestoreReport report = reportFor(m_cleanup, outcome.value(), lookForFiles(m_cleanup, m_trash));
    report.setPlaylists(PlaylistRestoring(m_cleanup.playlists, report.filesThere()).foresee());
    return withLeftOut(std::move(report));
}

Result<void> CleanupRestore::foreseeWriting(const RestoreReport& foreseen) const {
    if (!foreseen.hasWork()) return {};
    CleanupSize size{m_cleanup.tracks.size(), 0};
    for (const RecordedCleanup::Track& track : m_cleanup.tracks)
        for (const std::string* text :
             {&track.plan.persistentId, &track.plan.name, &track.plan.artist, &track.plan.path})
            size.textBytes += text->size();
    const auto room = foreseeCleanup(m_library, size);
    return room ? Result<void>() : Result<void>(room.error());
}

Result<RestoreReport> CleanupRestore::carryOut(const RestoreTask& task) const {
    auto restore = LibraryRestore::begin(m_library, wantedOf(m_cleanup), {task.purpose});
    if (!restore) return restore.error();
    const std::vector<FileReturn> files = lookForFiles(m_cleanup, m_trash);
    auto record = CleanupRecord::create(headingOf(restore.value(), m_cleanup, task.program));
    if (!record) {
        removeBackup(restore.value());
        return record.error();
    }
    RestoreRun run(restore.value(), record.value(), m_trash, m_cleanup.playlists,
                   reportFor(m_cleanup, restore.value().expected(), files));
    if (const Result<void> planned = run.plan(); !planned) {
        record.value().discard();
        removeBackup(restore.value());
        return planned.error();
    }
    return withLeftOut(run.carryOut(files, task));
}

} // namespace songsweep
