// SPDX-License-Identifier: MIT
#include "scan/PlaylistRewriting.h"

#include "libraryfile/CleanupRecord.h"
#include "platform/DataFolder.h"
#include "platform/LocalName.h"
#include "scan/FolderLibrary.h"
#include "scan/FolderMemory.h"
#include "scan/PlaylistContents.h"
#include "scan/PlaylistCuts.h"

#include <filesystem>
#include <optional>

namespace songsweep {

namespace {

constexpr int attempts = 3; // at a file that somebody else writes, too

bool isGone(const std::string& path) {
    std::error_code error;
    return std::filesystem::symlink_status(path, error).type() == std::filesystem::file_type::not_found;
}

/// Those that the last scan saw; where it left no memory, those that are there.
std::vector<FoundFile> playlistsOf(const FolderLibrary& place) {
    if (std::optional<FolderMemory> memory = FolderMemory::read(place.memory))
        return std::move(memory->playlists);
    Result<FolderContents> contents = walkFolder(place.folder, [] { return false; });
    return contents ? std::move(contents.value().playlists) : std::vector<FoundFile>();
}

std::string sentenceFor(const std::string& path, const Error& error) {
    return "The playlist " + path + " was not changed: " + error.message;
}

/// One version of the file; `busy` where somebody wrote another meanwhile.
Result<void> rewriteOnce(const std::string& playlist, const GoneFiles& gone, CleanupRecord& record) {
    const std::string path = gone.folder() + "/" + playlist;
    const Result<PlaylistContents> contents = PlaylistContents::read(path);
    if (!contents) return contents.error();
    Result<RecordedPlaylist> cuts = playlistCuts(contents.value().bytes(), playlist, gone);
    if (!cuts) return cuts.error();
    if (cuts.value().cuts.empty()) return {};
    cuts.value().path = path;
    if (Result<void> told = record.rewriting(cuts.value()); !told) return told;
    Result<void> replaced = contents.value().replace(withoutCuts(contents.value().bytes(), cuts.value()));
    record.rewritten(replaced ? RecordedPlaylist::State::rewritten : RecordedPlaylist::State::failed);
    return replaced;
}

Result<void> rewrite(const std::string& playlist, const GoneFiles& gone, CleanupRecord& record) {
    Result<void> done;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        done = rewriteOnce(playlist, gone, record);
        if (done || done.error().code != Error::Code::busy) break;
    }
    if (!done && done.error().code == Error::Code::notFound) return {}; // It names nothing any more.
    return done;
}

} // namespace

std::vector<std::string> rewritePlaylists(const std::string& library, const std::vector<std::string>& paths,
                                          CleanupRecord& record) {
    const std::optional<FolderLibrary> place = FolderLibrary::ofLibrary(library, dataFolder());
    if (!place) return {};
    GoneFiles gone(place->folder);
    for (const std::string& path : paths)
        if (isGone(path)) gone.add(path);
    std::vector<std::string> notes;
    if (gone.isEmpty()) return notes;
    for (const FoundFile& playlist : playlistsOf(*place))
        if (const Result<void> done = rewrite(playlist.path, gone, record); !done)
            notes.push_back(sentenceFor(place->folder + "/" + playlist.path, done.error()));
    return notes;
}

} // namespace songsweep
