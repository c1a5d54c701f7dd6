// SPDX-License-Identifier: MIT
#pragma once

#include "scan/FolderWalk.h"
#include "scan/KnownFile.h"
#include "scan/LibraryWriter.h"

#include <string>
#include <vector>

namespace songsweep {

/// The playlists that the playlist files of a folder are, with the tracks that they name. A file that cannot
/// be read is added to `unread`. `folder` is the folder of music's path without links. Linear in the tracks
/// and in the files' bytes; nothing at all without playlist files.
std::vector<FolderPlaylist> folderPlaylists(const std::string& folder, const std::vector<FoundFile>& files,
                                            const std::vector<KnownFile>& tracks,
                                            std::vector<UnreadPath>& unread);

/// Whether the playlist files are those of the last scan, unchanged.
bool areSamePlaylists(const std::vector<FoundFile>& files, const std::vector<FoundFile>& known);

} // namespace songsweep
