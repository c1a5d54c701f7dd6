// SPDX-License-Identifier: MIT
#include "libraryfile/LibraryDocument.h"

namespace songsweep {

Result<std::string> LibraryDocument::entryOf(TrackPosition track) const {
    auto bytes = m_file->read(m_index.tracks[track].range());
    const auto* const changes = m_changes.isEmpty() ? nullptr : m_changes.of(track);
    if (!bytes || !changes) return bytes;
    const auto replacements = replacementsFor(bytes.value(), m_index.entities, *changes);
    if (!replacements) return replacements.error();
    return withReplacements(bytes.value(), replacements.value());
}

Result<void> LibraryDocument::setValue(TrackPosition track, ValueChange change) {
    const auto entry = m_file->read(m_index.tracks[track].range());
    if (!entry) return entry.error();
    if (auto tried = replacementsFor(entry.value(), m_index.entities, {change}); !tried) return tried.error();
    m_changes.set(track, std::move(change));
    if (m_values.track == track) m_values = {};
    if (Cached& cached = m_cache[track % m_cache.size()]; cached.track == track) cached = {};
    return {};
}

bool LibraryDocument::isTakenOut(std::size_t playlist, std::uint32_t item) const {
    const LibraryChanges::OfPlaylist* const changes = m_changes.ofPlaylist(m_playlistOrder[playlist]);
    const std::size_t items = this->playlist(playlist).items.size();
    if (item < items) return changes && changes->takenOut.contains(item);
    return !changes || item - items >= changes->added.size() ||
           changes->added[item - items] == LibraryIndex::noTrack;
}

/// As it is now, taken out or not.
LibraryDocument::TrackPosition LibraryDocument::trackOfItem(std::size_t playlist, std::uint32_t item) const {
    const LibraryChanges::OfPlaylist* const changes = m_changes.ofPlaylist(m_playlistOrder[playlist]);
    const std::vector<ItemSlot>& items = this->playlist(playlist).items;
    if (item >= items.size()) return changes->added[item - items.size()];
    if (!changes) return items[item].track;
    const auto replaced = changes->replaced.find(item);
    return replaced == changes->replaced.end() ? items[item].track : replaced->second;
}

void LibraryDocument::takeOut(std::size_t playlist, std::uint32_t item) {
    if (isTakenOut(playlist, item)) return;
    m_changes.takeOut(m_playlistOrder[playlist], item, this->playlist(playlist).items.size());
    if (m_lists[playlist]) m_lists[playlist]->listing.strikeItem(item);
}

Result<void> LibraryDocument::checkNameable(TrackPosition track) {
    const std::int64_t id = trackId(track);
    if (id >= 0 && tracksWithTrackId(id).size() == 1) return {};
    return Error{Error::Code::invalid, "the track has no ID of its own by which a playlist could name it"};
}

Result<std::uint32_t> LibraryDocument::add(std::size_t playlist, TrackPosition track) {
    if (auto nameable = checkNameable(track); !nameable) return nameable.error();
    const PlaylistSlot& slot = this->playlist(playlist);
    if (slot.container.form == ContainerSlot::Form::missing && slot.end == 0)
        return Error{Error::Code::invalid, "the playlist has no place for tracks"};
    const std::uint32_t number = m_playlistOrder[playlist];
    m_changes.add(number, track);
    const auto item =
        static_cast<std::uint32_t>(slot.items.size() + m_changes.ofPlaylist(number)->added.size() - 1);
    if (m_lists[playlist]) listing(playlist).append(track, item);
    return item;
}

Result<void> LibraryDocument::putInPlaceOf(std::size_t playlist, std::uint32_t item, TrackPosition track) {
    if (auto nameable = checkNameable(track); !nameable) return nameable;
    if (isTakenOut(playlist, item) || isDeleted(trackOfItem(playlist, item)))
        return Error{Error::Code::notFound, "the track is in the playlist no more"};
    m_changes.replace(m_playlistOrder[playlist], item, this->playlist(playlist).items.size(), track);
    if (m_lists[playlist]) listing(playlist).replaceTrack(item, track);
    return {};
}

void LibraryDocument::withdraw(const std::vector<TrackPosition>& changed,
                               const std::vector<TrackPosition>& deleted) {
    m_changes.withdraw({changed.begin(), changed.end()}, m_index);
    for (const TrackPosition track : deleted) {
        if (!isDeleted(track)) continue;
        m_index.tracks[track].deleted = false;
        m_memory.forget(track);
        --m_deletedCount;
    }
    forgetValues();
    forgetLists();
}

Result<std::vector<RecordedValue>> LibraryDocument::changedValues(TrackPosition track) const {
    std::vector<RecordedValue> values;
    const std::vector<ValueChange>* const changes = m_changes.of(track);
    if (!changes) return values;
    const auto entry = m_file->read(m_index.tracks[track].range());
    if (!entry) return entry.error();
    const auto before = EntryValues::parse(entry.value(), m_index.entities);
    if (!before) return unreadable(track);
    for (const ValueChange& change : *changes) {
        const EntryValue* const value = before->find(change.key);
        values.push_back({value ? value->text : std::string(), change});
    }
    return values;
}

/// Tracks that were added to a playlist come behind its items, with the numbers that follow.
void LibraryDocument::listAdded(std::size_t playlist, TrackListing& listing) const {
    const LibraryChanges::OfPlaylist* const changes = m_changes.ofPlaylist(m_playlistOrder[playlist]);
    if (!changes) return;
    auto item = static_cast<std::uint32_t>(this->playlist(playlist).items.size());
    for (const TrackPosition track : changes->added) {
        if (track != LibraryIndex::noTrack && !isDeleted(track)) listing.append(track, item);
        ++item;
    }
}

void LibraryDocument::forgetValues() {
    m_cache.fill({});
    m_values = {};
}

} // namespace songsweep
