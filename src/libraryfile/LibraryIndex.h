// SPDX-License-Identifier: MIT
#pragma once

#include "library/PersistentId.h"
#include "libraryfile/LibraryFile.h"
#include "libraryfile/XmlText.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace songsweep {

class TrackPass;

/// One entry of the dictionary of tracks. The range begins at the white space before its key and ends behind
/// its value, so that an entry taken out leaves no blank line.
struct TrackSlot {
    std::uint64_t begin = 0;
    std::int64_t trackId = -1; ///< what playlists call it; -1 for none
    std::uint64_t persistentId = 0;
    std::uint32_t length = 0;
    PersistentId::Kind persistentIdKind = PersistentId::Kind::none;
    bool deleted = false; ///< to be taken out at the next write

    ByteRange range() const { return {begin, length}; }
};

/// One item of a playlist; the range is measured from the playlist's begin and includes the white space
/// before it.
struct ItemSlot {
    std::uint32_t track = 0; ///< index into the tracks, or `LibraryIndex::noTrack`
    std::uint32_t begin = 0;
    std::uint32_t length = 0;
};

/// The element that holds entries or items: where the first one stands, or would stand.
struct ContainerSlot {
    enum class Form : std::uint8_t { missing, tags, emptyTag };

    Form form = Form::missing;
    ByteRange tag; ///< its opening tag, or its only one

    bool operator==(const ContainerSlot&) const = default;
};

struct PlaylistSlot {
    std::string name;
    std::string persistentId;
    std::int64_t distinguishedKind = 0;
    bool master = false;
    bool smart = false; ///< carries smart information
    bool folder = false;
    bool visible = true;
    std::uint64_t begin = 0; ///< offset of its dictionary
    std::uint64_t end = 0;   ///< behind the last thing in its dictionary; 0 of an empty tag
    ContainerSlot container; ///< of its items
    std::vector<ItemSlot> items;

    ByteRange rangeOf(const ItemSlot& item) const { return {begin + item.begin, item.length}; }
};

/// Where everything of a library file is: 32 bytes a track and 12 a playlist item, plus 4 a track to
/// find it by its persistent ID. The values themselves stay in the file.
struct LibraryIndex {
    static constexpr std::uint32_t noTrack = 0xFFFFFFFF;

    std::vector<TrackSlot> tracks; ///< in file order
    ContainerSlot trackContainer;
    std::vector<PlaylistSlot> playlists; ///< in file order
    XmlEntities entities;
    FileStamp stamp;
    bool trackIdsRepeat = false; ///< two tracks share an ID by which playlists refer to them
    bool plain = false;          ///< a PlainReader reads the file as any parser does

    /// Reads the file once, front to back. Refuses what is not well formed, cut off, or no library, with the
    /// line. `tracks`, where given, reads them on the way.
    static Result<LibraryIndex> read(const LibraryFile& file, TrackPass* tracks = nullptr);
};

/// Finds tracks by persistent ID: their positions ordered by it. 4 bytes a track, well below a microsecond a
/// search; equal IDs, however many, cost nothing more.
class PersistentIdTable {
  public:
    void build(const std::vector<TrackSlot>& tracks);

    /// The tracks of this key in file order, deleted ones included; valid until the table is built again.
    std::span<const std::uint32_t> find(const std::vector<TrackSlot>& tracks, PersistentId id) const;

    /// All tracks with a persistent ID, those of the same one next to each other.
    std::span<const std::uint32_t> all() const { return m_order; }

  private:
    std::vector<std::uint32_t> m_order;
};

} // namespace songsweep
