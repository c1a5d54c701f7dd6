// SPDX-License-Identifier: MIT
#include "library/LibraryKeys.h"
#include "library/Trim.h"
#include "library/ValueFormats.h"
#include "libraryfile/LibraryIndex.h"
#include "libraryfile/PlainNodes.h"
#include "libraryfile/TagScanner.h"
#include "libraryfile/TrackIds.h"
#include "libraryfile/TrackPass.h"

#include <algorithm>
#include <limits>

namespace songsweep {

namespace {

/// What an open element is to the library.
enum class LibraryPlace : std::uint8_t {
    plist,
    top,
    tracks,
    track,
    playlists,
    playlist,
    items,
    item,
    key,
    value
};

/// Builds the index from the tags of a library, tag by tag.
class Indexer {
  public:
    explicit Indexer(LibraryIndex& index, const XmlEntities& entities)
        : m_index(index)
        , m_entities(entities) {
        m_places.reserve(16);
    }

    /// False where the tag cannot be part of a library; `reason` says why.
    bool take(const Tag& tag) {
        switch (tag.kind) {
        case Tag::Kind::open:
            if (!open(tag)) return false;
            m_leaf = true;
            break;
        case Tag::Kind::close:
            close(tag, m_leaf ? tag.text : std::string_view());
            m_leaf = false;
            break;
        case Tag::Kind::empty:
            if (!open(tag)) return false;
            close(tag, {});
            m_leaf = false;
            break;
        case Tag::Kind::endOfDocument:
            return finish();
        }
        return !m_reason;
    }

    /// Whether the keys that come next are those of a property each, and no names of tracks.
    bool expectsProperties() const {
        if (m_places.empty()) return false;
        const LibraryPlace place = m_places.back();
        return place == LibraryPlace::track || place == LibraryPlace::item ||
               place == LibraryPlace::playlist || place == LibraryPlace::top;
    }

    /// What its four tags would do; only where properties are expected.
    bool take(const Property& property) {
        m_leaf = false;
        m_key = property.meaning;
        valueEnds(property.element, property.value);
        return !m_reason;
    }

    const char* reason() const { return m_reason; }

  private:
    bool open(const Tag& tag) {
        const LibraryPlace place = placeOf(tag);
        if (m_reason) return false;
        m_places.push_back(place);
        enter(place, tag);
        return true;
    }

    LibraryPlace placeOf(const Tag& tag) {
        if (m_places.empty()) {
            if (tag.element != Element::plist) m_reason = "the file is not a property list";
            return LibraryPlace::plist;
        }
        const bool dictionary = tag.element == Element::dict;
        switch (m_places.back()) {
        case LibraryPlace::plist:
            if (!dictionary || m_topSeen) m_reason = "the file is not a library: it is no dictionary";
            return LibraryPlace::top;
        case LibraryPlace::top:
            if (tag.element == Element::key) return LibraryPlace::key;
            if (dictionary && m_key == LibraryKey::tracks && !m_tracksSeen) return LibraryPlace::tracks;
            return tag.element == Element::array && m_key == LibraryKey::playlists ? LibraryPlace::playlists
                                                                                   : LibraryPlace::value;
        case LibraryPlace::tracks:
            return entryPlace(tag.element, LibraryPlace::track);
        case LibraryPlace::playlists:
            return dictionary ? LibraryPlace::playlist : LibraryPlace::value;
        case LibraryPlace::playlist:
            if (tag.element == Element::key) return LibraryPlace::key;
            return tag.element == Element::array && m_key == LibraryKey::playlistItems ? LibraryPlace::items
                                                                                       : LibraryPlace::value;
        case LibraryPlace::items:
            return dictionary ? LibraryPlace::item : LibraryPlace::value;
        case LibraryPlace::track:
        case LibraryPlace::item:
            return entryPlace(tag.element, LibraryPlace::value);
        default:
            return LibraryPlace::value;
        }
    }

    static LibraryPlace entryPlace(Element element, LibraryPlace dictionaryPlace) {
        if (element == Element::key) return LibraryPlace::key;
        return element == Element::dict ? dictionaryPlace : LibraryPlace::value;
    }

    void enter(LibraryPlace place, const Tag& tag) {
        switch (place) {
        case LibraryPlace::top:
            m_topSeen = true;
            break;
        case LibraryPlace::tracks:
            m_tracksSeen = true;
            m_entryBegin = tag.end;
            m_index.trackContainer = containerAt(tag);
            break;
        case LibraryPlace::key:
            if (m_places[m_places.size() - 2] == LibraryPlace::tracks) m_entryBegin = withSpaceBefore(tag);
            break;
        case LibraryPlace::track:
            m_track = {m_entryBegin, m_entryId, 0, 0, {}, false};
            break;
        case LibraryPlace::playlist:
            m_index.playlists.emplace_back().begin = tag.begin;
            break;
        case LibraryPlace::items:
            m_index.playlists.back().container = containerAt(tag);
            break;
        case LibraryPlace::item:
            m_itemBegin = withSpaceBefore(tag);
            m_itemId = -1;
            break;
        default:
            break;
        }
    }

    static ContainerSlot containerAt(const Tag& tag) {
        const bool isEmpty = tag.kind == Tag::Kind::empty;
        return {isEmpty ? ContainerSlot::Form::emptyTag : ContainerSlot::Form::tags,
                {tag.begin, tag.end - tag.begin}};
    }

    /// Where the white space before the tag begins.
    static std::uint64_t withSpaceBefore(const Tag& tag) {
        std::size_t blanks = 0;
        while (blanks < tag.text.size() && isXmlSpace(tag.text[tag.text.size() - 1 - blanks]))
            ++blanks;
        return tag.begin - blanks;
    }

    void close(const Tag& tag, std::string_view text) {
        const LibraryPlace place = m_places.back();
        m_places.pop_back();
        switch (place) {
        case LibraryPlace::key:
            keyEnds(text);
            break;
        case LibraryPlace::value:
            valueEnds(tag.element, text);
            break;
        case LibraryPlace::track:
            trackEnds(tag);
            break;
        case LibraryPlace::item:
            itemEnds(tag);
            break;
        case LibraryPlace::playlist:
            if (tag.kind == Tag::Kind::close) m_index.playlists.back().end = withSpaceBefore(tag);
            m_key = LibraryKey::none;
            break;
        default:
            m_key = LibraryKey::none;
            break;
        }
    }

    void keyEnds(std::string_view text) {
        const LibraryPlace parent = m_places.back();
        if (parent == LibraryPlace::tracks) {
            m_entryId = wholeNumber(decoded(text)).value_or(-1);
        } else if (parent != LibraryPlace::value) {
            m_key = libraryKey(decoded(text));
        }
    }

    void valueEnds(Element element, std::string_view text) {
        if (m_key == LibraryKey::none || m_places.empty()) return;
        switch (m_places.back()) {
        case LibraryPlace::track:
            trackValue(text);
            break;
        case LibraryPlace::item:
            itemValue(text);
            break;
        case LibraryPlace::playlist:
            playlistValue(element, text);
            break;
        case LibraryPlace::value:
            return;
        default:
            break;
        }
        m_key = LibraryKey::none;
    }

    void trackValue(std::string_view text) {
        if (m_key == LibraryKey::trackId) {
            if (const auto id = wholeNumber(decoded(text))) m_track.trackId = *id;
        } else if (m_key == LibraryKey::persistentId) {
            const PersistentId id = PersistentId::of(trimmed(decoded(text)));
            m_track.persistentId = id.value;
            m_track.persistentIdKind = id.kind;
        }
    }

    void itemValue(std::string_view text) {
        if (m_key == LibraryKey::trackId) m_itemId = wholeNumber(decoded(text)).value_or(-1);
    }

    void playlistValue(Element element, std::string_view text) {
        PlaylistSlot& playlist = m_index.playlists.back();
        switch (m_key) {
        case LibraryKey::name:
            playlist.name = trimmed(decoded(text)); // as the reader compares it
            break;
        case LibraryKey::playlistPersistentId:
            playlist.persistentId = decoded(text);
            break;
        case LibraryKey::master:
            playlist.master = element == Element::isTrue;
            break;
        case LibraryKey::folder:
            playlist.folder = element == Element::isTrue;
            break;
        case LibraryKey::visible:
            playlist.visible = element != Element::isFalse;
            break;
        case LibraryKey::smartInfo:
            playlist.smart = true;
            break;
        case LibraryKey::distinguishedKind:
            playlist.distinguishedKind = wholeNumber(decoded(text)).value_or(0);
            break;
        default:
            break;
        }
    }

    void trackEnds(const Tag& tag) {
        const std::uint64_t length = tag.end - m_track.begin;
        if (length > std::numeric_limits<std::uint32_t>::max()) m_reason = "a track is longer than 4 GB";
        if (m_index.tracks.size() == LibraryIndex::noTrack) m_reason = "there are too many tracks";
        m_track.length = static_cast<std::uint32_t>(length);
        m_index.tracks.push_back(m_track);
        m_entryBegin = tag.end;
        m_entryId = -1;
    }

    void itemEnds(const Tag& tag) {
        PlaylistSlot& playlist = m_index.playlists.back();
        const std::uint64_t end = tag.end - playlist.begin;
        if (end > std::numeric_limits<std::uint32_t>::max()) m_reason = "a playlist is longer than 4 GB";
        const auto begin = static_cast<std::uint32_t>(m_itemBegin - playlist.begin);
        if (m_itemId >= LibraryIndex::noTrack)
            m_longIds.push_back({m_index.playlists.size() - 1, playlist.items.size(), m_itemId});
        const bool isShort = m_itemId >= 0 && m_itemId < LibraryIndex::noTrack;
        playlist.items.push_back({isShort ? static_cast<std::uint32_t>(m_itemId) : LibraryIndex::noTrack,
                                  begin, static_cast<std::uint32_t>(end) - begin});
    }

    /// The text of raw bytes; mostly they are the text.
    std::string_view decoded(std::string_view raw) {
        if (isItsOwnText(raw)) return raw;
        auto text = decodeXmlText(raw, m_entities);
        if (!text) m_reason = "a broken reference";
        m_decoded = std::move(text).value_or("");
        return m_decoded;
    }

    bool finish() {
        if (!m_topSeen || !m_tracksSeen) {
            m_reason = "the file is not a library: it has no dictionary of tracks";
            return false;
        }
        resolveItems();
        return true;
    }

    /// Turns the track IDs of the items into positions, once all tracks are known. Until then they stand
    /// where the positions will, but those for which there is no room.
    void resolveItems();

    struct LongId {
        std::size_t playlist;
        std::size_t item;
        std::int64_t id;
    };

    LibraryIndex& m_index;
    const XmlEntities& m_entities;
    std::vector<LibraryPlace> m_places;
    std::vector<LongId> m_longIds;
    TrackSlot m_track;
    std::uint64_t m_entryBegin = 0;
    std::int64_t m_entryId = -1;
    std::uint64_t m_itemBegin = 0;
    std::int64_t m_itemId = -1;
    std::string m_decoded;
    const char* m_reason = nullptr;
    LibraryKey m_key = LibraryKey::none;
    bool m_leaf = false;
    bool m_topSeen = false;
    bool m_tracksSeen = false;
};

void Indexer::resolveItems() {
    TrackIds ids(m_index.tracks);
    m_index.trackIdsRepeat = ids.repeat();
    for (PlaylistSlot& playlist : m_index.playlists)
        for (ItemSlot& item : playlist.items)
            if (item.track != LibraryIndex::noTrack) item.track = ids.find(item.track);
    for (const LongId& item : m_longIds)
        m_index.playlists[item.playlist].items[item.item].track = ids.find(item.id);
}

} // namespace

Result<LibraryIndex> LibraryIndex::read(const LibraryFile& file, TrackPass* tracks) {
    LibraryIndex index;
    index.stamp = file.stamp();
    index.plain = true;
    TagScanner scanner(file);
    Indexer indexer(index, scanner.entities());
    PlainNodes nodes(file);
    Tag tag;
    Property property;
    const auto takeProperty = [&] {
        const auto read = index.plain ? nodes.read(property) : std::nullopt;
        index.plain = read.has_value();
        if (read && tracks != nullptr) tracks->take(*read);
    };
    const auto takeTag = [&] {
        index.plain = index.plain && nodes.take(tag);
        if (index.plain && tracks != nullptr) tracks->take(nodes, tag.end);
    };
    do {
        if (indexer.expectsProperties() && scanner.takeProperty(property)) {
            if (!indexer.take(property)) return scanner.errorAt(property.end, indexer.reason());
            takeProperty();
            continue;
        }
        if (!scanner.next(tag)) return scanner.error();
        if (!indexer.take(tag)) return scanner.errorAt(tag.begin, indexer.reason());
        takeTag();
    } while (tag.kind != Tag::Kind::endOfDocument);
    index.entities = scanner.entities();
    return index;
}

} // namespace songsweep
