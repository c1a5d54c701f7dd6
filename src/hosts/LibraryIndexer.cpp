// SPDX-License-Identifier: MIT
#include "hosts/LibraryIndex.h"
#include "hosts/TagScanner.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <numeric>

namespace songsweep {

namespace {

/// The keys that the index looks at.
enum class Key : std::uint8_t {
    none,
    tracks,
    playlists,
    trackId,
    persistentId,
    name,
    playlistPersistentId,
    master,
    smartInfo,
    folder,
    visible,
    distinguishedKind,
    items
};

/// What an open element is to the library.
enum class Place : std::uint8_t { plist, top, tracks, track, playlists, playlist, items, item, key, value };

bool isCalled(std::string_view text, std::string_view lowerCaseName) {
    if (text.size() != lowerCaseName.size()) return false;
    return std::equal(text.begin(), text.end(), lowerCaseName.begin(), [](char a, char b) {
        return (a >= 'A' && a <= 'Z' ? static_cast<char>(a | 0x20) : a) == b;
    });
}

bool needsDecoding(char c) { return c == '&' || c == '<' || c == '\r'; }

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && isXmlSpace(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isXmlSpace(text.back()))
        text.remove_suffix(1);
    return text;
}

std::optional<std::int64_t> wholeNumber(std::string_view text) {
    text = trimmed(text);
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size()) return {};
    return number;
}

/// The key of that name inside an element at `place`.
Key keyCalled(std::string_view name, Place place) {
    switch (place) {
    case Place::top:
        if (isCalled(name, "tracks")) return Key::tracks;
        return isCalled(name, "playlists") ? Key::playlists : Key::none;
    case Place::track:
        if (isCalled(name, "persistent id")) return Key::persistentId;
        return isCalled(name, "track id") ? Key::trackId : Key::none;
    case Place::item:
        return isCalled(name, "track id") ? Key::trackId : Key::none;
    case Place::playlist:
        if (isCalled(name, "name")) return Key::name;
        if (isCalled(name, "playlist persistent id")) return Key::playlistPersistentId;
        if (isCalled(name, "master")) return Key::master;
        if (isCalled(name, "smart info")) return Key::smartInfo;
        if (isCalled(name, "folder")) return Key::folder;
        if (isCalled(name, "visible")) return Key::visible;
        if (isCalled(name, "distinguished kind")) return Key::distinguishedKind;
        return isCalled(name, "playlist items") ? Key::items : Key::none;
    default:
        return Key::none;
    }
}

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

    const char* reason() const { return m_reason; }

  private:
    bool open(const Tag& tag) {
        const Place place = placeOf(tag);
        if (m_reason) return false;
        m_places.push_back(place);
        enter(place, tag);
        return true;
    }

    Place placeOf(const Tag& tag) {
        if (m_places.empty()) {
            if (tag.element != Element::plist) m_reason = "the file is not a property list";
            return Place::plist;
        }
        const bool dictionary = tag.element == Element::dict;
        switch (m_places.back()) {
        case Place::plist:
            if (!dictionary || m_topSeen) m_reason = "the file is not a library: it is no dictionary";
            return Place::top;
        case Place::top:
            if (tag.element == Element::key) return Place::key;
            if (dictionary && m_key == Key::tracks && !m_tracksSeen) return Place::tracks;
            return tag.element == Element::array && m_key == Key::playlists ? Place::playlists : Place::value;
        case Place::tracks:
            return entryPlace(tag.element, Place::track);
        case Place::playlists:
            return dictionary ? Place::playlist : Place::value;
        case Place::playlist:
            if (tag.element == Element::key) return Place::key;
            return tag.element == Element::array && m_key == Key::items ? Place::items : Place::value;
        case Place::items:
            return dictionary ? Place::item : Place::value;
        case Place::track:
        case Place::item:
            return entryPlace(tag.element, Place::value);
        default:
            return Place::value;
        }
    }

    static Place entryPlace(Element element, Place dictionaryPlace) {
        if (element == Element::key) return Place::key;
        return element == Element::dict ? dictionaryPlace : Place::value;
    }

    void enter(Place place, const Tag& tag) {
        switch (place) {
        case Place::top:
            m_topSeen = true;
            break;
        case Place::tracks:
            m_tracksSeen = true;
            m_entryBegin = tag.end;
            break;
        case Place::key:
            if (m_places[m_places.size() - 2] == Place::tracks) m_entryBegin = withSpaceBefore(tag);
            break;
        case Place::track:
            m_track = {m_entryBegin, m_entryId, 0, 0, {}, false};
            break;
        case Place::playlist:
            m_index.playlists.emplace_back().begin = tag.begin;
            m_itemIds.emplace_back();
            break;
        case Place::item:
            m_itemBegin = withSpaceBefore(tag);
            m_itemId = -1;
            break;
        default:
            break;
        }
    }

    /// Where the white space before the tag begins.
    static std::uint64_t withSpaceBefore(const Tag& tag) {
        std::size_t blanks = 0;
        while (blanks < tag.text.size() && isXmlSpace(tag.text[tag.text.size() - 1 - blanks]))
            ++blanks;
        return tag.begin - blanks;
    }

    void close(const Tag& tag, std::string_view text) {
        const Place place = m_places.back();
        m_places.pop_back();
        switch (place) {
        case Place::key:
            keyEnds(text);
            break;
        case Place::value:
            valueEnds(tag, text);
            break;
        case Place::track:
            trackEnds(tag);
            break;
        case Place::item:
            itemEnds(tag);
            break;
        case Place::items:
            m_index.playlists.back().items.shrink_to_fit();
            m_key = Key::none;
            break;
        default:
            m_key = Key::none;
            break;
        }
    }

    void keyEnds(std::string_view text) {
        const Place parent = m_places.back();
        if (parent == Place::tracks) {
            m_entryId = wholeNumber(decoded(text)).value_or(-1);
        } else if (parent != Place::value) {
            m_key = keyCalled(decoded(text), parent);
        }
    }

    void valueEnds(const Tag& tag, std::string_view text) {
        if (m_key == Key::none || m_places.empty()) return;
        switch (m_places.back()) {
        case Place::track:
            trackValue(text);
            break;
        case Place::item:
            itemValue(text);
            break;
        case Place::playlist:
            playlistValue(tag.element, text);
            break;
        case Place::value:
            return;
        default:
            break;
        }
        m_key = Key::none;
    }

    void trackValue(std::string_view text) {
        if (m_key == Key::trackId) {
            if (const auto id = wholeNumber(decoded(text))) m_track.trackId = *id;
        } else {
            const PersistentId id = PersistentId::of(trimmed(decoded(text)));
            m_track.persistentId = id.value;
            m_track.persistentIdKind = id.kind;
        }
    }

    void itemValue(std::string_view text) { m_itemId = wholeNumber(decoded(text)).value_or(-1); }

    void playlistValue(Element element, std::string_view text) {
        PlaylistSlot& playlist = m_index.playlists.back();
        switch (m_key) {
        case Key::name:
            playlist.name = decoded(text);
            break;
        case Key::playlistPersistentId:
            playlist.persistentId = decoded(text);
            break;
        case Key::master:
            playlist.master = element == Element::isTrue;
            break;
        case Key::folder:
            playlist.folder = element == Element::isTrue;
            break;
        case Key::visible:
            playlist.visible = element != Element::isFalse;
            break;
        case Key::smartInfo:
            playlist.smart = true;
            break;
        case Key::distinguishedKind:
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
        playlist.items.push_back({LibraryIndex::noTrack, begin, static_cast<std::uint32_t>(end) - begin});
        m_itemIds.back().push_back(m_itemId);
    }

    /// The text of raw bytes; mostly they are the text.
    std::string_view decoded(std::string_view raw) {
        if (std::none_of(raw.begin(), raw.end(), needsDecoding)) return raw;
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
        m_index.tracks.shrink_to_fit();
        resolveItems();
        return true;
    }

    /// Turns the track IDs of the items into positions, once all tracks are known.
    void resolveItems();

    LibraryIndex& m_index;
    const XmlEntities& m_entities;
    std::vector<Place> m_places;
    std::vector<std::vector<std::int64_t>> m_itemIds; // of every playlist
    TrackSlot m_track;
    std::uint64_t m_entryBegin = 0;
    std::int64_t m_entryId = -1;
    std::uint64_t m_itemBegin = 0;
    std::int64_t m_itemId = -1;
    std::string m_decoded;
    const char* m_reason = nullptr;
    Key m_key = Key::none;
    bool m_leaf = false;
    bool m_topSeen = false;
    bool m_tracksSeen = false;
};

void Indexer::resolveItems() {
    const auto& tracks = m_index.tracks;
    std::vector<std::uint32_t> order(tracks.size());
    std::iota(order.begin(), order.end(), 0U);
    const auto byId = [&](std::uint32_t a, std::uint32_t b) { return tracks[a].trackId < tracks[b].trackId; };
    if (!std::is_sorted(order.begin(), order.end(), byId)) std::stable_sort(order.begin(), order.end(), byId);

    m_index.trackIdsRepeat =
        std::adjacent_find(order.begin(), order.end(), [&](std::uint32_t a, std::uint32_t b) {
            return tracks[a].trackId == tracks[b].trackId && tracks[a].trackId >= 0;
        }) != order.end();
    const auto find = [&](std::int64_t id) {
        if (id < 0) return LibraryIndex::noTrack;
        const auto found =
            std::lower_bound(order.begin(), order.end(), id, [&](std::uint32_t track, auto wanted) {
                return tracks[track].trackId < wanted;
            });
        return found != order.end() && tracks[*found].trackId == id ? *found : LibraryIndex::noTrack;
    };
    for (std::size_t p = 0; p < m_index.playlists.size(); ++p)
        for (std::size_t i = 0; i < m_itemIds[p].size(); ++i)
            m_index.playlists[p].items[i].track = find(m_itemIds[p][i]);
}

} // namespace

Result<LibraryIndex> LibraryIndex::read(const LibraryFile& file) {
    LibraryIndex index;
    index.stamp = file.stamp();
    TagScanner scanner(file);
    Indexer indexer(index, scanner.entities());
    Tag tag;
    do {
        if (!scanner.next(tag)) return scanner.error();
        if (!indexer.take(tag)) return scanner.errorAt(tag.begin, indexer.reason());
    } while (tag.kind != Tag::Kind::endOfDocument);
    index.entities = scanner.entities();
    return index;
}

} // namespace songsweep
