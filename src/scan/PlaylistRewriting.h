// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace songsweep {

class CleanupRecord;

/// Takes the lines that name deleted tracks out of the playlist files of a folder of music.
///
/// `library` is the library file; nothing happens where it is not a folder's. `paths` are those of the
/// deleted tracks' files; a line goes only if its file is gone, too. Each change is written down before it is
/// made, and is a new version in the place of the old one; a playlist that somebody writes meanwhile is
/// looked at again. Gives sentences about playlists that could not be changed, which stay as they are then.
/// Reads all playlist files of the folder once. The library must be locked.
std::vector<std::string> rewritePlaylists(const std::string& library, const std::vector<std::string>& paths,
                                          CleanupRecord& record);

} // namespace songsweep
