// SPDX-License-Identifier: MIT
//
// Any bytes as a library out of which tracks are deleted: without one nothing is written; else the new file
// is well formed, has all other tracks and no item of those that went; and restoring gives the first bytes.
// A library that the full parser refuses stays as it is.
#include "Check.h"
#include "libraryfile/LibraryDocument.h"
#include "libraryfile/LibraryRestore.h"
#include "libraryfile/WellFormedness.h"

#include <memory>

namespace {

using namespace songsweep;

using Library = std::unique_ptr<LibraryDocument>;

/// Every third track goes, and the last one.
std::vector<RecordedTrack> removeSome(LibraryDocument& library) {
    std::vector<RecordedTrack> gone;
    const auto count = static_cast<std::uint32_t>(library.trackCount());
    for (std::uint32_t track = 0; track < count; ++track) {
        if (track % 3 != 0 && track + 1 != count) continue;
        const auto fields = library.fields(track);
        if (!fields) continue;
        RecordedTrack recorded;
        recorded.trackId = library.trackId(track);
        recorded.persistentId = fields.value()->text(LibraryKey::persistentId);
        if (recorded.persistentId.empty()) continue;
        if (library.tracksWithPersistentId(recorded.persistentId).size() != 1) continue;
        if (library.remove(track)) gone.push_back(std::move(recorded));
    }
    return gone;
}

void checkDeleted(const std::string& path, int left) {
    const Result<LibraryFile> written = LibraryFile::open(path);
    fuzz::check(written && checkWellFormedness(written.value()), "the new library is not well formed");
    const auto library = LibraryDocument::open(path);
    fuzz::check(library && library.value()->trackCount() == left, "the new library has other tracks");
}

void checkRestored(const std::string& path, const std::string& backup, std::vector<RecordedTrack> tracks,
                   std::string_view first) {
    LibraryRestore::Wanted wanted;
    wanted.backup = backup;
    wanted.tracks = std::move(tracks);
    auto restore = LibraryRestore::begin(path, std::move(wanted), {"a fuzzer"});
    fuzz::check(restore && restore.value().write(), "the tracks cannot be restored");
    fuzz::check(fuzz::contentOf(path) == first, "the library is not as it was");
}

void cleanUp(const std::string& path, std::string_view first) {
    LibraryDocument::Options options;
    auto opened = LibraryDocument::open(path, options);
    if (!opened) return;
    LibraryDocument& library = *opened.value();
    const int before = library.trackCount();
    fuzz::check(library.flush().hasValue(), "nothing cannot be written");
    fuzz::check(fuzz::contentOf(path) == first, "a library was written of which nothing was asked");
    if (!library.beginCleanup({"a fuzzer"})) return;
    std::vector<RecordedTrack> gone = removeSome(library);
    const auto count = static_cast<int>(gone.size());
    if (!library.flush()) {
        fuzz::check(fuzz::contentOf(path) == first, "what was not written has changed");
        return;
    }
    library.endCleanup();
    const std::string backup = library.backup();
    if (count == 0) return;
    fuzz::check(fuzz::contentOf(backup) == first, "the backup is another file");
    checkDeleted(path, before - count);
    opened.value().reset();
    checkRestored(path, backup, std::move(gone), first);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes = fuzz::textOf(data, size);
    cleanUp(fuzz::scratchFile("library.xml", bytes), bytes);
    fuzz::clearScratchFolder();
    return 0;
}
