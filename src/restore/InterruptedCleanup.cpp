// SPDX-License-Identifier: MIT
#include "restore/InterruptedCleanup.h"

#include "library/ValueFormats.h"
#include "libraryfile/CleanupHistory.h"
#include "libraryfile/CleanupLock.h"
#include "platform/Words.h"
#include "restore/CleanupFinish.h"
#include "restore/CleanupRestore.h"

#include <algorithm>
#include <unordered_set>

namespace songsweep {

namespace {

/// What holds the lock has not been killed.
bool isBeingChanged(const std::string& library) {
    const auto lock = CleanupLock::acquire(library, {"a look at its records", {}});
    return !lock && lock.error().code == Error::Code::busy;
}

/// The deletion that can be taken back: itself, or what a restore was taking back.
const CleanupSummary* cleanupOf(const CleanupSummary& newest, const std::vector<CleanupSummary>& all) {
    const std::string name = newest.isCleanup() ? newest.name() : newest.heading.restores;
    const auto found =
        std::find_if(all.begin(), all.end(), [&](const CleanupSummary& each) { return each.name() == name; });
    return found != all.end() && found->isOpen() && found->hasBackup ? &*found : nullptr;
}

/// A restore is finished by restoring again.
std::optional<std::size_t> filesToTrash(const CleanupSummary& cleanup, const std::string& library,
                                        const Files& files, Trash& trash) {
    if (cleanup.end) return std::nullopt;
    const auto after = CleanupFinish(library, cleanup.path, files, trash).foresee();
    if (!after) return std::nullopt;
    std::unordered_set<std::string> going;
    for (const RecordedCleanup::Track& track : after.value().tracks)
        if (track.outcome->file == RecordedOutcome::File::trashed && !track.trash)
            going.insert(track.plan.path);
    return going.size();
}

} // namespace

std::string InterruptedCleanup::whatCanBePutBack() const {
    const std::string ofTracks = countedWords("InterruptedCleanup", "%1 tracks", "1 track", tracks);
    const std::string ofFiles = countedWords("InterruptedCleanup", "%1 files", "1 file", files);
    if (tracks > 0 && files > 0) return filled(words("InterruptedCleanup", "%1 and %2"), {ofTracks, ofFiles});
    if (tracks > 0) return ofTracks;
    if (files > 0) return ofFiles;
    return countedWords("InterruptedCleanup", "%1 playlist files", "1 playlist file", playlists);
}

std::string InterruptedCleanup::whatFinishingDoes() const {
    if (filesToTrash.value_or(0) == 0)
        return words("InterruptedCleanup", "no file is left to go to the Trash");
    return countedWords("InterruptedCleanup", "%1 files go to the Trash", "1 file goes to the Trash",
                        *filesToTrash);
}

std::optional<InterruptedCleanup> findInterruptedCleanup(const std::string& library, const Files& files,
                                                         Trash& trash) {
    const auto all = cleanupsOf(library);
    if (!all || all.value().empty() || all.value().front().end) return std::nullopt;
    const CleanupSummary& newest = all.value().front();
    const CleanupSummary* const cleanup = cleanupOf(newest, all.value());
    if (cleanup == nullptr || isBeingChanged(library)) return std::nullopt;
    auto record = RecordedCleanup::read(cleanup->path);
    if (!record) return std::nullopt;
    const auto report = CleanupRestore(library, std::move(record).value(), trash).foresee();
    if (!report || (cleanup->end && !report.value().hasWork())) return std::nullopt;
    return InterruptedCleanup{.library = library,
                              .kind = newest.heading.kind,
                              .date = newest.heading.date,
                              .record = cleanup->path,
                              .backup = cleanup->heading.backup,
                              .tracks = report.value().entries(),
                              .files = report.value().files(),
                              .playlists = report.value().playlists,
                              .filesToTrash = filesToTrash(*cleanup, library, files, trash)};
}

} // namespace songsweep
