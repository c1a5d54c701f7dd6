// SPDX-License-Identifier: MIT
#include "scan/FolderScan.h"

#include "libraryfile/CleanupLock.h"
#include "libraryfile/FileNames.h"
#include "platform/SystemError.h"
#include "scan/FolderMemory.h"
#include "scan/FolderPlaylists.h"
#include "scan/KnownTracks.h"
#include "scan/LibraryUpdate.h"
#include "scan/ScanPlan.h"

#include <chrono>
#include <filesystem>
#include <future>
#include <utility>

namespace songsweep {

namespace {

/// Another program may hold the library for the moment of a write.
constexpr std::chrono::seconds lockTimeout{2};

std::int64_t secondsNow() {
    using namespace std::chrono;
    return duration_cast<seconds>(system_clock::now().time_since_epoch()).count();
}

/// A library without tracks, so that there is one to lock. An empty file is what a loss of power left of one.
Result<void> makeLibrary(const FolderLibrary& place) {
    std::error_code error;
    if (const auto size = std::filesystem::file_size(place.library, error); !error && size > 0) return {};
    const std::string folder = folderOf(place.library);
    std::filesystem::create_directories(folder, error);
    if (error) return systemError(error.value(), "make the folder", folder);
    Result<NewFile> file = NewFile::createFor(place.library);
    if (!file) return file.error();
    LibraryWriter writer(std::move(file).value(), place.folder);
    writer.begin(secondsNow());
    const Result<FileStamp> stamp = writer.finish({}, {}, NewFile::Safety::asItComes);
    return stamp ? Result<void>() : stamp.error();
}

/// Where the library and the memory of it are one.
bool isCurrent(const std::optional<FolderMemory>& memory, const LibraryFile& library) {
    return memory && memory->library == library.stamp();
}

ScanReport reportOf(const FolderContents& contents) {
    ScanReport report;
    report.unread = contents.folders;
    report.unread.insert(report.unread.end(), contents.files.begin(), contents.files.end());
    return report;
}

/// Under the lock.
Result<ScanReport> update(const FolderLibrary& place, const ScanWatch& watch) {
    const Result<LibraryFile> old = LibraryFile::open(place.library);
    if (!old) return old.error();
    auto reading = std::async(std::launch::async, [&] { return FolderMemory::read(place.memory); });
    Result<FolderContents> contents = walkFolder(place.folder, watch.isCancelled);
    std::optional<FolderMemory> memory = reading.get();
    if (!contents) return contents.error();
    const bool current = isCurrent(memory, old.value());
    const std::vector<FoundFile> knownPlaylists = memory ? memory->playlists : std::vector<FoundFile>();
    const std::vector<MountedFolder> mountedBefore = memory ? memory->mounted : std::vector<MountedFolder>();
    Result<KnownTracks> known =
        knownTracks(old.value(), place.folder, std::move(memory).value_or(FolderMemory()));
    if (!known) return known.error();
    ScanReport report = reportOf(contents.value());
    ScanPlan plan(place.folder, std::move(known.value().tracks), std::move(contents).value(), mountedBefore);
    report.unread.insert(report.unread.end(), plan.away.begin(), plan.away.end());
    const bool asItWas =
        current && areSamePlaylists(plan.playlists, knownPlaylists) && plan.mounted == mountedBefore;
    LibraryUpdate work(place, watch, old.value(), plan, known.value().deleted,
                       asItWas ? LibraryUpdate::Writing::whenTracksChange
                               : LibraryUpdate::Writing::inAnyCase);
    const Result<std::optional<FolderMemory>> next = work.run(report);
    if (!next) return next.error();
    // Without its memory the next scan asks the library itself.
    if (next.value()) static_cast<void>(next.value()->write(place.memory));
    return report;
}

} // namespace

Result<ScanReport> scanFolder(const FolderLibrary& place, const ScanWatch& watch) {
    if (const Result<void> made = makeLibrary(place); !made) return made.error();
    const Result<CleanupLock> lock = CleanupLock::acquire(place.library, {"scan", lockTimeout});
    if (!lock) return lock.error();
    return update(place, watch);
}

} // namespace songsweep
