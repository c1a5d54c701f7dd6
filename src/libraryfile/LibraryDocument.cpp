// SPDX-License-Identifier: MIT
#include "libraryfile/LibraryDocument.h"

#include "library/Trim.h"
#include "libraryfile/PlainReader.h"

#include <algorithm>
#include <numeric>

namespace songsweep {

namespace {

constexpr int mostAttempts = 3;

struct IndexedFile {
    LibraryFile file;
    LibraryIndex index;
    std::optional<TracksOfPass> tracks;
};

/// Opens and indexes a file; one that is written to meanwhile is read again.
Result<IndexedFile> readIndexed(const std::string& path, LibraryDocument::Reading reading) {
    for (int attempt = 0; attempt < mostAttempts; ++attempt) {
        auto file = LibraryFile::open(path);
        if (!file) return file.error();
        std::optional<TrackPass> tracks;
        if (reading == LibraryDocument::Reading::indexAndTracks) tracks.emplace();
        auto index = LibraryIndex::read(file.value(), tracks ? &*tracks : nullptr);
        if (index && index.value().stamp != file.value().stamp()) continue;
        if (!index) return index.error();
        IndexedFile indexed{std::move(file).value(), std::move(index).value(), {}};
        if (tracks && indexed.index.plain) indexed.tracks = tracks->found();
        return indexed;
    }
    return Error{Error::Code::busy, path + " is being rewritten"};
}

/// The library first, then the others.
std::vector<std::uint32_t> presentationOrder(const std::vector<PlaylistSlot>& playlists) {
    std::vector<std::uint32_t> order(playlists.size());
    std::iota(order.begin(), order.end(), 0U);
    const auto library =
        std::find_if(order.begin(), order.end(), [&](std::uint32_t i) { return playlists[i].master; });
    if (library != order.end()) std::rotate(order.begin(), library, library + 1);
    return order;
}

} // namespace

Result<std::unique_ptr<LibraryDocument>> LibraryDocument::open(const std::string& path, Options options) {
    auto read = readIndexed(path, options.reading);
    if (!read) return read.error();
    IndexedFile indexed = std::move(read).value();
    std::unique_ptr<LibraryDocument> document(
        new LibraryDocument(path, options, std::move(indexed.file), std::move(indexed.index)));
    document->m_tracks = std::move(indexed.tracks);
    return document;
}

LibraryDocument::LibraryDocument(std::string path, Options options, LibraryFile file, LibraryIndex index)
    : m_path(std::move(path))
    , m_options(options) {
    PersistentIdTable table;
    table.build(index.tracks);
    adopt(std::move(file), std::move(index), std::move(table));
}

LibraryDocument::~LibraryDocument() = default;

Result<void> LibraryDocument::refresh() {
    const auto stamp = LibraryFile::stampOf(m_path);
    return stamp ? refresh(stamp.value()) : stamp.error();
}

Result<void> LibraryDocument::refresh(const FileStamp& stamp) {
    if (stamp == m_index.stamp) return {};
    auto read = readIndexed(m_path, Reading::indexAlone);
    if (!read) return read.error();
    IndexedFile fresh = std::move(read).value();
    PersistentIdTable table;
    table.build(fresh.index.tracks);
    std::size_t deleted = 0;
    if (m_deletedCount > 0)
        deleted = m_memory.carryOver(m_index, m_byPersistentId, fresh.file, fresh.index, table);
    if (!m_changes.isEmpty() && !m_changes.carryOver(m_index, m_byPersistentId, fresh.index, table))
        m_lostChanges =
            Error{Error::Code::failed, m_path + " was changed by another program meanwhile, so that "
                                                "tracks or playlists were not changed"};
    adopt(std::move(fresh.file), std::move(fresh.index), std::move(table));
    m_deletedCount = deleted;
    return {};
}

void LibraryDocument::adopt(LibraryFile file, LibraryIndex index, PersistentIdTable table) {
    m_file = std::make_shared<const LibraryFile>(std::move(file));
    m_index = std::move(index);
    m_tracks.reset();
    m_byPersistentId = std::move(table);
    m_playlistOrder = presentationOrder(m_index.playlists);
    forgetValues();
    m_byTrackId.clear();
    m_deletedCount = 0;
    forgetLists();
}

void LibraryDocument::forgetLists() {
    m_lists.assign(std::max<std::size_t>(m_playlistOrder.size(), 1), std::nullopt);
    m_deletedSinceListed.clear();
    m_listsMade = false;
}

std::vector<PlaylistInfo> LibraryDocument::playlists() {
    std::vector<PlaylistInfo> infos;
    for (std::size_t i = 0; i < playlistCount(); ++i) {
        const PlaylistSlot& slot = playlist(i);
        const bool library = i == 0;
        infos.push_back({slot.name, slot.persistentId, static_cast<int>(trackCountOf(i)), library,
                         library || slot.smart, slot.folder});
    }
    return infos;
}

/// Keeps no list for its length's sake.
std::size_t LibraryDocument::trackCountOf(std::size_t playlist) {
    return m_lists[playlist] ? listing(playlist).size() : newListing(playlist).size();
}

TrackListing& LibraryDocument::listing(std::size_t playlist) {
    auto& list = m_lists[playlist];
    if (!list) {
        m_listsMade = true;
        return list.emplace(Listed{newListing(playlist), m_deletedSinceListed.size()}).listing;
    }
    while (list->deletionsSeen < m_deletedSinceListed.size())
        list->listing.strikeTrack(m_deletedSinceListed[list->deletionsSeen++]);
    return list->listing;
}

TrackListing LibraryDocument::newListing(std::size_t playlist) const {
    if (playlist == 0) return libraryListing();
    TrackListing listing;
    const auto items = static_cast<std::uint32_t>(this->playlist(playlist).items.size());
    for (std::uint32_t item = 0; item < items; ++item) {
        const TrackPosition track = trackOfItem(playlist, item);
        if (track == LibraryIndex::noTrack || isDeleted(track) || isTakenOut(playlist, item)) continue;
        listing.append(track, item);
    }
    listAdded(playlist, listing);
    return listing;
}

TrackListing LibraryDocument::libraryListing() const {
    TrackListing listing;
    std::vector<bool> seen(m_index.tracks.size());
    const auto add = [&](TrackPosition track) {
        if (!seen[track] && !isDeleted(track))
            listing.append(track, static_cast<std::uint32_t>(listing.size()));
        seen[track] = true;
    };
    if (playlistCount() > 0) {
        for (const ItemSlot& item : playlist(0).items)
            if (item.track != LibraryIndex::noTrack) add(item.track);
    }
    for (TrackPosition track = 0; track < m_index.tracks.size(); ++track)
        add(track);
    return listing;
}

std::vector<LibraryDocument::TrackPosition>
LibraryDocument::tracksWithPersistentId(std::string_view persistentId) {
    const PersistentId id = PersistentId::of(persistentId);
    std::vector<TrackPosition> found;
    for (const TrackPosition track : m_byPersistentId.find(m_index.tracks, id)) {
        if (isDeleted(track)) continue;
        if (id.kind == PersistentId::Kind::hashed) {
            const auto values = fields(track);
            if (!values || PersistentId::of(trimmed(values.value()->text(LibraryKey::persistentId))) != id)
                continue;
        }
        found.push_back(track);
    }
    return found;
}

std::vector<LibraryDocument::TrackPosition> LibraryDocument::tracksWithTrackId(std::int64_t trackId) {
    const auto idOf = [&](TrackPosition track) { return m_index.tracks[track].trackId; };
    if (m_byTrackId.empty()) {
        m_byTrackId.resize(m_index.tracks.size());
        std::iota(m_byTrackId.begin(), m_byTrackId.end(), 0U);
        std::ranges::stable_sort(m_byTrackId, {}, idOf);
    }
    std::vector<TrackPosition> found;
    for (auto at = std::ranges::lower_bound(m_byTrackId, trackId, {}, idOf);
         at != m_byTrackId.end() && idOf(*at) == trackId; ++at)
        if (!isDeleted(*at)) found.push_back(*at);
    return found;
}

std::unique_ptr<NodeReader> LibraryDocument::plainNodes(const std::string& path) {
    if (!m_index.plain) return nullptr;
    auto file = LibraryFile::open(path);
    if (!file || file.value().stamp() != m_index.stamp) return nullptr;
    auto owned = std::make_unique<const LibraryFile>(std::move(file).value());
    if (!m_tracks) return std::make_unique<PlainReader>(std::move(owned));
    auto reader = std::make_unique<PlainReader>(std::move(owned), *std::move(m_tracks));
    m_tracks.reset();
    return reader;
}

Result<const EntryValues*> LibraryDocument::values(TrackPosition track) {
    if (m_values.track == track) return &m_values.values;
    const auto bytes = entryOf(track);
    if (!bytes) return bytes.error();
    auto parsed = EntryValues::parse(bytes.value(), m_index.entities);
    if (!parsed) return Error{Error::Code::busy, m_path + " is being rewritten"};
    m_values = {track, std::move(*parsed)};
    return &m_values.values;
}

Result<const TrackFields*> LibraryDocument::fields(TrackPosition track) {
    Cached& cached = m_cache[track % m_cache.size()];
    if (cached.track == track) return &cached.fields;
    const auto bytes = entryOf(track);
    if (!bytes) return bytes.error();
    auto parsed = TrackFields::parse(bytes.value(), m_index.entities);
    if (!parsed) return unreadable(track);
    cached = {track, std::move(*parsed)};
    return &cached.fields;
}

/// An entry that was whole when it was indexed is torn, or has a fault that the index passes over.
Error LibraryDocument::unreadable(TrackPosition track) const {
    if (m_file->stamp() != m_index.stamp) return {Error::Code::busy, m_path + " is being rewritten"};
    return {Error::Code::invalid,
            "the entry of track " + std::to_string(m_index.tracks[track].trackId) + " is not well formed"};
}

LocationPass LibraryDocument::locations() const {
    std::vector<ByteRange> tracks;
    tracks.reserve(m_index.tracks.size());
    for (const TrackSlot& track : m_index.tracks)
        if (!track.deleted) tracks.push_back(track.range());
    return {m_path, m_file, m_index.stamp, std::move(tracks), m_index.entities};
}

Result<void> LibraryDocument::remove(TrackPosition track) {
    if (isDeleted(track)) return {};
    if (DeletionMemory::needsBytes(m_index, m_byPersistentId, track)) {
        const auto bytes = m_file->read(m_index.tracks[track].range());
        if (!bytes) return bytes.error();
        m_memory.noteBytes(track, bytes.value());
    }
    m_index.tracks[track].deleted = true;
    ++m_deletedCount;
    if (m_listsMade) m_deletedSinceListed.push_back(track);
    return {};
}

} // namespace songsweep
