// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/TrackListing.h"

#include <QTemporaryDir>

#include <cstdint>
#include <filesystem>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace songsweep::test {

/// A folder that goes away with the test, and files in it.
class Folder {
  public:
    std::string path() const { return m_folder.path().toStdString(); }
    std::string pathOf(const std::string& name) const { return path() + "/" + name; }
    /// Writes a file and gives its path.
    std::string write(const std::string& name, std::string_view bytes) const;
    /// The names in the folder, sorted.
    std::vector<std::string> names() const;

  private:
    QTemporaryDir m_folder;
};

std::string contentOf(const std::string& path);

/// One track of a made library; "" leaves a value out.
struct FixtureTrack {
    int id = 0;
    std::string persistentId;
    std::string values; ///< more keys and values, as XML
};

struct FixturePlaylist {
    std::string name;
    std::string flags; ///< keys and values, as XML
    std::vector<int> trackIds;
};

/// A library in the form that iTunes writes.
std::string libraryXml(const std::vector<FixtureTrack>& tracks,
                       const std::vector<FixturePlaylist>& playlists);

/// The persistent ID of the n-th track of `manyTracks`.
std::string persistentIdOf(int n);

/// A library of `count` tracks with all usual values, in a master playlist, a smart one and one with every
/// third track.
std::string manyTracks(int count);

/// The text of a library of the above forms without the tracks of these IDs and their items, found line by
/// line and not as the program does it.
std::string withoutTracks(const std::string& text, const std::set<int>& ids);

/// What a listing has left, in its order.
std::vector<std::uint32_t> tracksOf(const TrackListing& listing);
std::vector<std::uint32_t> itemsOf(const TrackListing& listing);

} // namespace songsweep::test
