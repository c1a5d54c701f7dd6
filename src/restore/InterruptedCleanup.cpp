// SPDX-License-Identifier: MIT
#include "restore/InterruptedCleanup.h"

#include "library/ValueFormats.h"
#include "libraryfile/CleanupHistory.h"
#include "libraryfile/CleanupLock.h"
#include "restore/CleanupRestore.h"

#include <algorithm>

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

} // namespace

std::string InterruptedCleanup::whatCanBePutBack() const {
    std::string text = tracks > 0 ? counted(tracks, "track") : std::string();
    if (files > 0) text += (text.empty() ? "" : " and ") + counted(files, "file");
    return text;
}

std::optional<InterruptedCleanup> findInterruptedCleanup(const std::string& library, Trash& trash) {
    const auto all = cleanupsOf(library);
    if (!all || all.value().empty() || all.value().front().end) return std::nullopt;
    const CleanupSummary& newest = all.value().front();
    const CleanupSummary* const cleanup = cleanupOf(newest, all.value());
    if (cleanup == nullptr || isBeingChanged(library)) return std::nullopt;
    auto record = RecordedCleanup::read(cleanup->path);
    if (!record) return std::nullopt;
    const auto report = CleanupRestore(library, std::move(record).value(), trash).foresee();
    if (!report || !report.value().hasWork()) return std::nullopt;
    return InterruptedCleanup{.library = library,
                              .kind = newest.heading.kind,
                              .date = newest.heading.date,
                              .record = cleanup->path,
                              .backup = cleanup->heading.backup,
                              .tracks = report.value().entries(),
                              .files = report.value().files()};
}

} // namespace songsweep
