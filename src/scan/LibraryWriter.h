// SPDX-License-Identifier: MIT
#pragma once

#include "scan/KnownFile.h"
#include "scan/NewFile.h"
#include "scan/SoundFacts.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace songsweep {

/// A playlist of a folder's library.
struct FolderPlaylist {
    std::string name;
    std::uint64_t persistentId = 0;
    std::vector<std::int64_t> trackIds;
};

/// Writes a folder's library file in the layout of iTunes 12, from front to back.
///
/// Entries of tracks that did not change are copied byte for byte. Call begin(), then track() or keep() for
/// each track, then finish(). Memory does not grow with the tracks.
class LibraryWriter {
  public:
    /// `folder` is the folder of music's path without links.
    LibraryWriter(NewFile file, std::string folder)
        : m_file(std::move(file))
        , m_folder(std::move(folder)) {}

    void begin(std::int64_t now);
    /// Both say in `track.entry` where the entry is in the new file.
    void track(KnownFile& track, const SoundFacts& facts);
    void keep(KnownFile& track, const LibraryFile& old);

    /// Writes the playlists, the library itself and its music first, and puts the file in its place. The
    /// stamp of what lies there then.
    Result<FileStamp> finish(const std::vector<KnownFile>& tracks,
                             const std::vector<FolderPlaylist>& playlists,
                             NewFile::Safety safety = NewFile::Safety::onDisk);

  private:
    void playlist(const FolderPlaylist& playlist, std::string_view flags);
    void item(std::int64_t trackId);

    NewFile m_file;
    std::string m_folder;
    std::int64_t m_playlistId = 0;
};

} // namespace songsweep
