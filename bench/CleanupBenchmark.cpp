// SPDX-License-Identifier: MIT
//
// Measures a clean-up of a tenth of a library's tracks with their files, and the restore of all of them: what
// the record costs of it, and the restore against the deletion. The Trash is the system's, in a folder of its
// own; the record is flushed as often as a deletion does it. Prints times of one round and ratios; run it
// with several numbers of tracks to see the growth.
//
//     cleanup-benchmark [TRACKS]...     (100000 and 1000000 unless told otherwise)

#include "library/LocationUrl.h"
#include "libraryfile/CleanupRecord.h"
#include "libraryfile/LibraryDocument.h"
#include "platform/Desktop.h"
#include "platform/Native.h"
#include "restore/CleanupRestore.h"
#include "sample-library/BulkLibrary.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <numeric>
#include <span>
#include <string>
#include <vector>

namespace songsweep {
namespace {

[[noreturn]] void stop(const std::string& reason) {
    std::fprintf(stderr, "%s\n", reason.c_str());
    std::exit(1);
}

double secondsOf(const std::function<void()>& work) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

void require(const Result<void>& done) {
    if (!done) stop(done.error().message);
}

constexpr std::size_t filesABatch = 64; // after which a deletion flushes its record

/// Makes the file of a track, as far as a move is concerned.
FileStamp makeFile(const std::filesystem::path& path) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path) << "sound";
    return LibraryFile::stampOf(path.string()).value();
}

/// Every tenth track, with its file.
std::vector<RecordedTrack> tracksToDelete(const std::string& path) {
    std::vector<RecordedTrack> tracks;
    const auto library = LibraryDocument::open(path);
    for (int track = 9; track < library.value()->trackCount(); track += 10) {
        const TrackFields& fields = *library.value()->fields(static_cast<std::uint32_t>(track)).value();
        RecordedTrack recorded;
        recorded.persistentId = fields.text(LibraryKey::persistentId);
        recorded.trackId = std::atoi(std::string(fields.text(LibraryKey::trackId)).c_str());
        recorded.name = fields.text(LibraryKey::name);
        recorded.artist = fields.text(LibraryKey::artist);
        recorded.path = pathOfUrl(fields.text(LibraryKey::location)).value();
        recorded.file = makeFile(recorded.path);
        tracks.push_back(std::move(recorded));
    }
    return tracks;
}

struct Times {
    double begin = 0;
    double notes = 0;
    double write = 0;
    double moves = 0;
    double record = 0;
    double restore = 0;

    double deletion() const { return begin + notes + write + moves + record; }
};

CleanupRecord recordFor(const LibraryDocument& library, const std::vector<RecordedTrack>& tracks) {
    RecordHeading heading = library.cleanupHeading();
    heading.tracks = tracks.size();
    heading.withFiles = true;
    auto created = CleanupRecord::create(heading);
    if (!created) stop(created.error().message);
    return std::move(created).value();
}

void plan(CleanupRecord& record, const std::vector<RecordedTrack>& tracks) {
    for (const RecordedTrack& track : tracks)
        record.plan(track);
    require(record.planned());
}

/// Moves the files as a deletion does, batch by batch.
void moveFiles(CleanupRecord& record, const std::vector<RecordedTrack>& tracks, Trash& trash, Times& times) {
    std::vector<std::size_t> all(tracks.size());
    std::iota(all.begin(), all.end(), std::size_t{0});
    for (std::span<const std::size_t> rest = all; !rest.empty();) {
        const auto batch = rest.first(std::min(filesABatch, rest.size()));
        std::vector<TrashedFile> places;
        times.record += secondsOf([&] { require(record.trashing(batch)); });
        times.moves += secondsOf([&] {
            for (const std::size_t track : batch)
                places.push_back(trash.moveToTrash(tracks[track].path).value());
        });
        times.record += secondsOf([&] {
            for (std::size_t i = 0; i < batch.size(); ++i)
                record.trashed(batch[i], places[i]);
        });
        rest = rest.subspan(batch.size());
    }
}

void tellOutcomes(CleanupRecord& record, const std::vector<RecordedTrack>& tracks) {
    for (std::size_t i = 0; i < tracks.size(); ++i)
        record.outcome(i, {RecordedOutcome::Track::deleted, RecordedOutcome::File::trashed, ""});
    require(record.end(RecordEnd::How::complete, ""));
}

/// The path of its record.
std::string deleteAll(const std::string& path, const std::vector<RecordedTrack>& tracks, Trash& trash,
                      Times& times) {
    auto opened = LibraryDocument::open(path);
    if (!opened) stop(opened.error().message);
    LibraryDocument& library = *opened.value();
    times.begin = secondsOf([&] { require(library.beginCleanup({"a benchmark"})); });
    CleanupRecord record = recordFor(library, tracks);
    times.record = secondsOf([&] { plan(record, tracks); });
    times.notes = secondsOf([&] {
        for (const RecordedTrack& track : tracks)
            for (const auto position : library.tracksWithPersistentId(track.persistentId))
                require(library.remove(position));
    });
    times.record += secondsOf([&] { require(record.writing(tracks.size())); });
    times.write = secondsOf([&] { require(library.flush()); });
    times.record += secondsOf([&] { record.written(); });
    moveFiles(record, tracks, trash, times);
    times.record += secondsOf([&] { tellOutcomes(record, tracks); });
    return record.path();
}

void restoreAll(const std::string& path, const std::string& record, Trash& trash, Times& times) {
    times.restore = secondsOf([&] {
        const CleanupRestore restore(path, RecordedCleanup::read(record).value(), trash);
        const auto done = restore.carryOut({.program = "a benchmark", .purpose = "a benchmark"});
        if (!done) stop(done.error().message);
        if (!done.value().allDealtWith()) stop("not everything came back");
    });
}

void measure(const std::filesystem::path& folder, Trash& trash, int trackCount) {
    sample::BulkOptions options;
    options.tracks = trackCount;
    options.file = (folder / "library.xml").string();
    options.musicFolder = (folder / "music").string();
    options.files = sample::BulkFiles::none;
    require(sample::makeBulkLibrary(options));
    const auto tracks = tracksToDelete(options.file);
    Times times;
    const std::string record = deleteAll(options.file, tracks, trash, times);
    restoreAll(options.file, record, trash, times);
    std::printf("%d tracks, %zu deleted: begun in %.2f s, noted in %.2f s, written in %.2f s, files moved in "
                "%.2f s\n",
                trackCount, tracks.size(), times.begin, times.notes, times.write, times.moves);
    std::printf("  the record   %.2f s, %.3f of the deletion\n", times.record,
                times.record / times.deletion());
    std::printf("  the restore  %.2f s, %.2f of the deletion\n", times.restore,
                times.restore / times.deletion());
}

void measureAll(const std::vector<int>& trackCounts) {
    const std::filesystem::path folder = std::filesystem::current_path() / "cleanup-benchmark-files";
    ::setenv("HOME", folder.c_str(), 1); // The Trash of this device is there.
    ::setenv("XDG_DATA_HOME", (folder / "data").c_str(), 1);
    const auto desktop = nativeDesktop();
    for (const int tracks : trackCounts) {
        std::filesystem::create_directories(folder / "data");
        measure(folder, desktop->trash(), tracks);
        std::filesystem::remove_all(folder);
    }
}

} // namespace
} // namespace songsweep

int main(int argc, char** argv) {
    std::vector<int> trackCounts;
    for (int i = 1; i < argc; ++i)
        trackCounts.push_back(std::atoi(argv[i]));
    if (trackCounts.empty()) trackCounts = {100'000, 1'000'000};
    songsweep::measureAll(trackCounts);
}
