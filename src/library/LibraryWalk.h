// SPDX-License-Identifier: MIT
#pragma once

#include "library/LibraryKeys.h"
#include "library/RecordFiller.h"
#include "library/TrackStorage.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace songsweep {

class Log;
class PlaylistItems;

/// What a node of an XML document is; the numbers are those of libxml2's text reader. Others are skipped.
enum class NodeType : int { none = 0, element = 1, text = 3, endElement = 15 };

/// Makes records of the tracks of a library file, and lists the items of the chosen playlist.
///
/// A state machine that is fed nodes and knows nothing of where they come from, so that tests and other
/// readers can feed it. The library's dictionary is depth 1, the dictionary of tracks depth 2, a track's
/// depth 3; when the dictionary of tracks closes, the playlists begin. A self-closing "dict" counts as
/// opened and never closed. Constant time a node; keeps the recognised values alone.
class LibraryWalk {
  public:
    /// After so many records `onProgress` is called with their number.
    static constexpr int recordsPerProgress = 500;

    /// The list, the items and the log outlive the walk. `playlist` is compared without regard to case.
    LibraryWalk(TrackList& list, PlaylistItems& songlist, const std::optional<std::string>& playlist,
                Log& log, std::function<void(int records)> onProgress);

    /// The next node: the name of an element, the value of a text (UTF-8); not kept. Throws
    /// std::runtime_error for a track whose date is none.
    void feed(NodeType type, std::string_view name, std::string_view value) {
        switch (type) {
        case NodeType::element:
            openElement(name);
            return;
        case NodeType::endElement:
            closeElement(name);
            return;
        case NodeType::text:
            readText(value);
            return;
        case NodeType::none:
            return;
        }
    }

    /// After the last node.
    void finish() { m_filler.finish(); }

    /// Records made.
    std::int32_t trackCount() const { return m_trackCount; }

    /// The playlist whose items were listed.
    SearchCoverage::Playlist playlist() const;

  private:
    enum class Section { tracks, playlists, done };
    enum class ElementName { none, key, other };

    /// A comparison of known length, which becomes one of numbers: it is made a hundred times a track.
    template <std::size_t size>
    static bool is(std::string_view name, const char (&expected)[size]) {
        return name.size() == size - 1 && std::memcmp(name.data(), expected, size - 1) == 0;
    }
    void openElement(std::string_view name) {
        if (is(name, "dict")) openDict();
        m_elementName = is(name, "key") ? ElementName::key : ElementName::other;
    }
    void closeElement(std::string_view name) {
        if (is(name, "dict")) closeDict();
    }
    void openDict();
    void closeDict();
    void makeRecord();
    void readText(std::string_view text);
    void readKey(std::string_view text);
    void readPlaylistName(std::string_view name);
    void noteMaster();

    TrackList& m_list;
    PlaylistItems& m_songlist;
    Log& m_log;
    std::function<void(int)> m_onProgress;
    std::optional<std::string> m_playlist; // lower case
    RecordFiller m_filler;

    Section m_section = Section::tracks;
    ElementName m_elementName = ElementName::none;
    LibraryKey m_currentKey = LibraryKey::none;
    TrackRecord* m_currentRecord = nullptr;
    int m_depth = 0;
    bool m_secondLevelSeen = false;
    bool m_inPlaylists = false;
    bool m_playlistFound = false;
    bool m_collecting = false;
    bool m_isChosen = false; // of the playlist at hand, as the next
    bool m_isMaster = false;
    bool m_metMaster = false;
    bool m_choseMaster = false;
    std::int32_t m_trackCount = 0;
    int m_progressCount = 0;
};

} // namespace songsweep
