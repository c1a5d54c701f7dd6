// SPDX-License-Identifier: MIT
#include "scan/PlaylistRestoring.h"

#include "scan/PlaylistContents.h"
#include "scan/PlaylistReturn.h"

#include <algorithm>

namespace songsweep {

PlaylistRestoring::Outcome PlaylistRestoring::foresee() const { return run(Way::look); }

PlaylistRestoring::Outcome PlaylistRestoring::carryOut() const { return run(Way::write); }

/// The last change first, as a file may have been changed more than once.
PlaylistRestoring::Outcome PlaylistRestoring::run(Way way) const {
    Outcome outcome;
    for (auto playlist = m_playlists.rbegin(); playlist != m_playlists.rend(); ++playlist)
        if (playlist->state != RecordedPlaylist::State::failed) restore(*playlist, way, outcome);
    return outcome;
}

void PlaylistRestoring::restore(const RecordedPlaylist& playlist, Way way, Outcome& outcome) const {
    const auto isThere = [this](const std::string& file) { return m_files.contains(file); };
    if (std::none_of(playlist.cuts.begin(), playlist.cuts.end(),
                     [&](const RecordedPlaylist::Cut& cut) { return isThere(cut.file); }))
        return;
    const Result<PlaylistContents> contents = PlaylistContents::read(playlist.path);
    if (!contents) {
        outcome.notes.push_back("The lines of the playlist " + playlist.path +
                                " do not come back: " + contents.error().message);
        return;
    }
    const PlaylistReturn back = returnLines(contents.value().bytes(), playlist, isThere);
    if (!back.isComplete)
        outcome.notes.push_back("The playlist " + playlist.path +
                                " was changed meanwhile; not all its lines find their places again");
    if (back.bytes == contents.value().bytes()) return;
    const Result<void> replaced = way == Way::write ? contents.value().replace(back.bytes) : Result<void>();
    if (replaced) {
        ++outcome.files;
    } else {
        outcome.notes.push_back("The playlist " + playlist.path +
                                " was not changed: " + replaced.error().message);
    }
}

} // namespace songsweep
