// SPDX-License-Identifier: MIT
//
// Measures a clean-up of a tenth of a library's tracks, and the restore of
// all of them: what the record costs of it, and the restore against the deletion. Prints times of one round
// and ratios; run it with several numbers of tracks to see the growth.
//
//     cleanup-benchmark [TRACKS]...     (100000 and 1000000 unless told otherwise)

#include "libraryfile/CleanupRecord.h"
#include "libraryfile/LibraryDocument.h"
#include "libraryfile/LibraryRestore.h"
#include "sample-library/BulkLibrary.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
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

/// Every tenth track, with a path of the usual length.
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
        recorded.path = fields.text(LibraryKey::location);
        recorded.file.size = 5'000'000;
        tracks.push_back(std::move(recorded));
    }
    return tracks;
}

struct Times {
    double begin = 0;
    double notes = 0;
    double write = 0;
    double record = 0;
    double restore = 0;

    double deletion() const { return begin + notes + write; }
};

CleanupRecord recordFor(const LibraryDocument& library, const std::vector<RecordedTrack>& tracks) {
    RecordHeading heading;
    heading.library = library.path();
    heading.backup = library.backup();
    heading.tracks = tracks.size();
    auto created = CleanupRecord::create(heading);
    if (!created) stop(created.error().message);
    return std::move(created).value();
}

void plan(CleanupRecord& record, const std::vector<RecordedTrack>& tracks) {
    for (const RecordedTrack& track : tracks)
        record.plan(track);
    require(record.planned());
}

void tellOutcomes(CleanupRecord& record, const std::vector<RecordedTrack>& tracks) {
    std::vector<std::size_t> all(tracks.size());
    for (std::size_t i = 0; i < all.size(); ++i)
        all[i] = i;
    record.written();
    require(record.trashing(all));
    for (std::size_t i = 0; i < tracks.size(); ++i) {
        record.trashed(i, {"/home/somebody/.local/share/Trash/files", "Song.2.mp3"});
        record.outcome(i, {RecordedOutcome::Track::deleted, RecordedOutcome::File::trashed, ""});
    }
    require(record.end(RecordEnd::How::complete, ""));
}

void deleteAll(const std::string& path, const std::vector<RecordedTrack>& tracks, Times& times,
               std::string& backup) {
    auto opened = LibraryDocument::open(path);
    if (!opened) stop(opened.error().message);
    LibraryDocument& library = *opened.value();
    times.begin = secondsOf([&] { require(library.beginCleanup({"a benchmark"})); });
    backup = library.backup();
    CleanupRecord record = recordFor(library, tracks);
    times.record = secondsOf([&] { plan(record, tracks); });
    times.notes = secondsOf([&] {
        for (const RecordedTrack& track : tracks)
            for (const auto position : library.tracksWithPersistentId(track.persistentId))
                require(library.remove(position));
    });
    times.record += secondsOf([&] { require(record.writing(tracks.size())); });
    times.write = secondsOf([&] { require(library.flush()); });
    times.record += secondsOf([&] { tellOutcomes(record, tracks); });
}

void restoreAll(const std::string& path, const std::vector<RecordedTrack>& tracks, const std::string& backup,
                Times& times) {
    times.restore = secondsOf([&] {
        auto begun = LibraryRestore::begin(path, {backup, tracks}, {"a benchmark"});
        if (!begun) stop(begun.error().message);
        const auto written = begun.value().write();
        if (!written) stop(written.error().message);
        if (written.value().tracks != tracks.size()) stop("not all tracks came back");
    });
}

void measure(int trackCount) {
    const std::filesystem::path folder = std::filesystem::current_path() / "cleanup-benchmark-files";
    std::filesystem::create_directories(folder);
    sample::BulkOptions options;
    options.tracks = trackCount;
    options.file = (folder / "library.xml").string();
    options.musicFolder = (folder / "music").string();
    options.files = sample::BulkFiles::none;
    require(sample::makeBulkLibrary(options));
    const auto tracks = tracksToDelete(options.file);
    Times times;
    std::string backup;
    deleteAll(options.file, tracks, times, backup);
    restoreAll(options.file, tracks, backup, times);
    std::printf("%d tracks, %zu deleted: begun in %.2f s, noted in %.2f s, written in %.2f s\n", trackCount,
                tracks.size(), times.begin, times.notes, times.write);
    std::printf("  the record   %.2f s, %.3f of the deletion\n", times.record,
                times.record / times.deletion());
    std::printf("  the restore  %.2f s, %.2f of the deletion\n", times.restore,
                times.restore / times.deletion());
    std::filesystem::remove_all(folder);
}

} // namespace
} // namespace songsweep

int main(int argc, char** argv) {
    if (argc == 1) {
        for (const int tracks : {100'000, 1'000'000})
            songsweep::measure(tracks);
    }
    for (int i = 1; i < argc; ++i)
        songsweep::measure(std::atoi(argv[i]));
}
