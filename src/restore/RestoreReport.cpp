// SPDX-License-Identifier: MIT
#include "restore/RestoreReport.h"

#include <algorithm>

namespace songsweep {

namespace {

using Entry = RestoredTrack::Entry;
using File = RestoredTrack::File;

Entry entryOf(Restoration::Fate fate) {
    if (fate == Restoration::Fate::comesBack) return Entry::restored;
    return fate == Restoration::Fate::isThere ? Entry::isThere : Entry::failed;
}

} // namespace

bool RestoredTrack::dealtWith() const {
    if (entry == Entry::leftOut) return true;
    const bool isInLibrary = entry == Entry::restored || entry == Entry::isThere;
    return isInLibrary && (file == File::none || file == File::putBack || file == File::isThere);
}

void RestoredTrack::setFile(File newFile, const std::string& newReason) {
    file = newFile;
    if (!newReason.empty()) reason += (reason.empty() ? "" : "; ") + newReason;
}

bool RestoreReport::hasWork() const { return entries() > 0 || files() > 0 || playlists > 0; }

std::size_t RestoreReport::entries() const {
    return static_cast<std::size_t>(
        std::count_if(tracks.begin(), tracks.end(),
                      [](const RestoredTrack& track) { return track.entry == Entry::restored; }));
}

std::size_t RestoreReport::files() const {
    return static_cast<std::size_t>(
        std::count_if(tracks.begin(), tracks.end(),
                      [](const RestoredTrack& track) { return track.file == File::putBack; }));
}

std::uint64_t RestoreReport::fileBytes() const {
    std::uint64_t bytes = 0;
    for (const RestoredTrack& track : tracks)
        if (track.file == File::putBack) bytes += track.plan.file.size;
    return bytes;
}

bool RestoreReport::allDealtWith() const {
    return end == End::complete && std::all_of(tracks.begin(), tracks.end(),
                                               [](const RestoredTrack& track) { return track.dealtWith(); });
}

void RestoreReport::setEntries(const LibraryRestore::Outcome& outcome) {
    for (std::size_t i = 0; i < tracks.size(); ++i) {
        tracks[i].entry = entryOf(outcome.fates.at(i));
        if (tracks[i].entry == Entry::failed && tracks[i].reason.empty())
            tracks[i].reason = "the backup does not hold it";
    }
    notes = outcome.notes;
}

void RestoreReport::setFiles(const std::vector<FileReturn>& files, File coming) {
    for (std::size_t i = 0; i < tracks.size(); ++i) {
        const FileReturn::Fate fate = files.at(i).fate;
        if (fate == FileReturn::Fate::comesBack) tracks[i].file = coming;
        if (fate == FileReturn::Fate::isThere) tracks[i].file = File::isThere;
        if (fate == FileReturn::Fate::isGone) tracks[i].setFileGone();
        if (fate == FileReturn::Fate::isOccupied) tracks[i].setFileOccupied();
        if (fate == FileReturn::Fate::isShutOut)
            tracks[i].setFile(File::failed, "its file stays in the Trash: its folder cannot be written to");
        if (fate == FileReturn::Fate::isUnknown)
            tracks[i].setFile(File::failed, "the Trash cannot be read: " + files[i].place.trashFolder);
    }
}

/// A second track of one file has no fate of its own.
std::unordered_set<std::string> RestoreReport::filesThere() const {
    std::unordered_set<std::string> paths;
    for (const RestoredTrack& track : tracks)
        if (track.file == File::putBack || track.file == File::isThere) paths.insert(track.plan.path);
    return paths;
}

void RestoreReport::setPlaylists(const PlaylistRestoring::Outcome& outcome) {
    playlists = outcome.files;
    notes.insert(notes.end(), outcome.notes.begin(), outcome.notes.end());
}

} // namespace songsweep
