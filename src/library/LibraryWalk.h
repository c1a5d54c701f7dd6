// SPDX-License-Identifier: MIT
#pragma once

#include "library/LibraryKeys.h"
#include "library/NodeReader.h"
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

/// Makes records of the tracks of a library file, and lists the items of the chosen playlist.
///
/// A state machine that is fed nodes and knows nothing of where they come from, so that tests and other
/// readers can feed it. The library's dictionary is depth 1, the dictionary of tracks depth 2, a track's
/// depth 3; when the dictionary of tracks closes, the playlists begin. A self-closing "dict" counts as
/// opened and never closed. Constant time a node; keeps the recognised values alone.
class LibraryWalk {
  public:
    enum class Section : std::uint8_t { tracks, playlists, done };
    enum class ElementName : std::uint8_t { none, key, other };

    /// Where the walk is in the file, and what it has met.
    struct State {
        Section section = Section::tracks;
        ElementName elementName = ElementName::none;
        LibraryKey currentKey = LibraryKey::none;
        int depth = 0;
        bool secondLevelSeen = false;
        bool inPlaylists = false;
        bool playlistFound = false;
        bool collecting = false;
        bool isChosen = false; ///< of the playlist at hand, as the next
        bool isMaster = false;
        bool metMaster = false;
        bool choseMaster = false;
        std::int32_t trackCount = 0;
        int progressCount = 0;
    };

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

    /// The same of all nodes of a property.
    void feed(const XmlProperty& property) {
        m_state.elementName = ElementName::other;
        if (m_state.section == Section::done) return;
        readKey(property.key);
        if (!property.value.empty()) readValue(property.value);
    }

    /// After the last node.
    void finish() { m_filler.finish(); }

    /// Whether what follows makes no records and changes none.
    bool isPastTracks() const { return m_state.section != Section::tracks; }
    /// What the walk knows, to go on with in another walk: once it is past the tracks, and was finished.
    const State& state() const { return m_state; }
    void resume(const State& state) { m_state = state; }

    /// Records made.
    std::int32_t trackCount() const { return m_state.trackCount; }

    /// The playlist whose items were listed.
    SearchCoverage::Playlist playlist() const;

  private:
    /// A comparison of known length, which becomes one of numbers: it is made a hundred times a track.
    template <std::size_t size>
    static bool is(std::string_view name, const char (&expected)[size]) {
        return name.size() == size - 1 && std::memcmp(name.data(), expected, size - 1) == 0;
    }
    void openElement(std::string_view name) {
        if (is(name, "dict")) openDict();
        m_state.elementName = is(name, "key") ? ElementName::key : ElementName::other;
    }
    void closeElement(std::string_view name) {
        if (is(name, "dict")) closeDict();
    }
    void openDict();
    void closeDict();
    void makeRecord();
    void readText(std::string_view text);
    void readKey(LibraryKey key);
    void readValue(std::string_view text);
    void readPlaylistName(std::string_view name);
    void noteMaster();

    TrackList& m_list;
    PlaylistItems& m_songlist;
    Log& m_log;
    std::function<void(int)> m_onProgress;
    std::optional<std::string> m_playlist; // lower case
    RecordFiller m_filler;

    State m_state;
    TrackRecord* m_currentRecord = nullptr;
};

} // namespace songsweep
