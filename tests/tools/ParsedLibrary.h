// SPDX-License-Identifier: MIT
#pragma once

#include <plist/plist.h>

#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace songsweep::test {

/// A library file as an independent parser reads it.
class ParsedLibrary {
  public:
    struct Track {
        int id = 0;
        std::string name;
        std::string artist;
        std::string persistentId;
        std::string type;
        std::string path; ///< of its location, percent signs read; "" for none and for streams
    };
    struct Playlist {
        std::string name;
        std::size_t items = 0;
        std::set<int> trackIds; ///< of the items
    };

    /// Empty where the file cannot be parsed.
    static ParsedLibrary read(const std::string& file);

    const std::vector<Track>& tracks() const { return m_tracks; }
    const std::vector<Playlist>& playlists() const { return m_playlists; }

  private:
    void readTracks(plist_t tracks);
    void readPlaylists(plist_t playlists);

    std::vector<Track> m_tracks;
    std::vector<Playlist> m_playlists;
};

} // namespace songsweep::test
