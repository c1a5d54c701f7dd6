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
    forgetValues();
    return {};
}

bool LibraryDocument::isTakenOut(std::size_t playlist, std::uint32_t item) const {
    const LibraryChanges::OfPlaylist* const changes = m_changes.ofPlaylist(m_playlistOrder[playlist]);
    const std::size_t items = this->playlist(playlist).items.size();
    if (item < items) return changes && changes->takenOut.contains(item);
    return !changes || item - items >= changes->added.size() ||
           changes->added[item - items] == LibraryIndex::noTrack;
}

void LibraryDocument::takeOut(std::size_t playlist, std::uint32_t item) {
    if (isTakenOut(playlist, item)) return;
    m_changes.takeOut(m_playlistOrder[playlist], item, this->playlist(playlist).items.size());
    if (m_lists[playlist]) m_lists[playlist]->listing.strikeItem(item);
}

Result<std::uint32_t> LibraryDocument::add(std::size_t playlist, TrackPosition track) {
    const std::int64_t id = trackId(track);
    if (id < 0 || tracksWithTrackId(id).size() != 1)
        return Error{Error::Code::invalid,
                     "the track has no ID of its own by which a playlist could name it"};
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
