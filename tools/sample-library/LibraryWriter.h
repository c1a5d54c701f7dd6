// SPDX-License-Identifier: MIT
#pragma once

#include "sample-library/SampleTrack.h"

#include <fstream>
#include <string>
#include <string_view>

namespace songsweep::sample {

/// Writes a library file in the layout of iTunes 12: tabs, its usual keys in its order.
///
/// Tracks and playlists are written as they come, so that a million tracks need no memory. Call begin(), then
/// track() for each, beginPlaylists(), then beginPlaylist(), items and endPlaylist() for each, end().
class LibraryWriter {
  public:
    explicit LibraryWriter(const std::string& path);

    void begin(std::string_view musicFolder);
    void track(const SampleTrack& track);
    void beginPlaylists();
    void beginPlaylist(const SamplePlaylist& playlist); ///< its own items are not looked at
    void item(int trackId);
    void endPlaylist();
    void playlist(const SamplePlaylist& playlist); ///< all of the three above

    /// Whether everything reached the file.
    bool end();

  private:
    void figures(const SampleTrack& track);
    void texts(const SampleTrack& track);
    void location(const SampleTrack& track);
    void flags(PlaylistKind kind);

    void key(std::string_view name);
    void number(std::string_view name, std::int64_t value); ///< nothing for 0
    void date(std::string_view name, std::int64_t secondsSince1970);
    void identity(std::string_view name, std::uint64_t value);
    void textValue(std::string_view name, std::string_view value); ///< nothing for ""
    void flag(std::string_view name, bool value = true);
    void flushIfLarge();

    std::ofstream m_file;
    std::string m_buffer;
    std::string_view m_indent;
    int m_playlistId = 0;
    bool m_hasItems = false;
};

} // namespace songsweep::sample
