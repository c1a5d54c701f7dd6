// SPDX-License-Identifier: MIT
#include "libraryfile/ChangePlan.h"

#include "libraryfile/EntryNumbers.h"
#include "libraryfile/LibraryRewrite.h"

#include <algorithm>
#include <optional>
#include <string_view>

namespace songsweep {

namespace {

/// As iTunes writes an item.
constexpr std::string_view usualItem =
    "\n\t\t\t\t<dict>\n\t\t\t\t\t<key>Track ID</key><integer>0</integer>\n\t\t\t\t</dict>";

FilePiece textPiece(std::string text) { return {nullptr, {}, std::move(text)}; }

/// Whether the bytes of an item say which track it is, and nothing else.
bool isPattern(const std::string& item) {
    const auto values = EntryValues::parse(item, {});
    return values && values->all().size() == 1 && itemWithTrackId(item, 0).has_value();
}

std::int64_t idOf(const LibraryIndex& index, std::uint32_t track) {
    return track == LibraryIndex::noTrack ? -1 : index.tracks[track].trackId;
}

bool isTakenOut(const LibraryChanges::OfPlaylist* changes, std::uint32_t item) {
    return changes && changes->takenOut.contains(item);
}

/// The track that has an item of the index now, if it is another one; a deleted one has lost it.
std::optional<std::uint32_t> newTrackOf(const LibraryChanges::OfPlaylist* changes, std::uint32_t item,
                                        const LibraryIndex& index) {
    if (!changes) return {};
    const auto found = changes->replaced.find(item);
    if (found == changes->replaced.end()) return {};
    return index.tracks[found->second].deleted ? LibraryIndex::noTrack : found->second;
}

/// The tracks that were added to a playlist and are still to be there.
std::vector<std::uint32_t> stayingOf(const LibraryChanges::OfPlaylist* changes, const LibraryIndex& index) {
    std::vector<std::uint32_t> tracks;
    if (!changes) return tracks;
    for (const std::uint32_t track : changes->added)
        if (track != LibraryIndex::noTrack && !index.tracks[track].deleted) tracks.push_back(track);
    return tracks;
}

} // namespace

Result<ChangePlan> ChangePlan::of(const LibraryFile& file, const LibraryIndex& index,
                                  const LibraryChanges& changes) {
    ChangePlan plan(file, index, changes);
    plan.takeOutDeletions();
    if (auto changed = plan.changeEntries(); !changed) return changed.error();
    if (auto changed = plan.changePlaylists(); !changed) return changed.error();
    plan.m_pieces = plan.m_edits.appliedTo(file).pieces;
    return plan;
}

std::uint64_t ChangePlan::size() const {
    std::uint64_t size = 0;
    for (const FilePiece& piece : m_pieces)
        size += piece.range.length + piece.text.size();
    return size;
}

void ChangePlan::takeOutDeletions() {
    const auto stays = [this](std::uint32_t playlist, std::uint32_t item) {
        return newTrackOf(m_changes->ofPlaylist(playlist), item, *m_index).value_or(LibraryIndex::noTrack) !=
               LibraryIndex::noTrack;
    };
    for (const ByteRange& range : rangesOfDeletions(*m_index, stays))
        m_edits.replace(range, {});
}

Result<void> ChangePlan::changeEntries() {
    for (const auto& [track, changes] : m_changes->tracks()) {
        const TrackSlot& slot = m_index->tracks[track];
        if (slot.deleted) continue;
        const auto entry = m_file->read(slot.range());
        if (!entry) return entry.error();
        auto replacements = replacementsFor(entry.value(), m_index->entities, changes);
        if (!replacements) return replacements.error();
        std::int64_t& growth = m_growth[track];
        for (EntryReplacement& replacement : replacements.value()) {
            growth += static_cast<std::int64_t>(replacement.text.size()) -
                      static_cast<std::int64_t>(replacement.length);
            m_edits.replace({slot.begin + replacement.begin, replacement.length},
                            textPiece(std::move(replacement.text)));
        }
    }
    return {};
}

Result<void> ChangePlan::changePlaylists() {
    const ItemRule rule(*m_index);
    for (const auto& [number, changes] : m_changes->playlists()) {
        const PlaylistSlot& playlist = m_index->playlists[number];
        for (const std::uint32_t item : changes.takenOut)
            if (!rule.goes(playlist.items[item])) m_edits.replace(playlist.rangeOf(playlist.items[item]), {});
        if (auto replaced = replaceItems(playlist, changes, rule); !replaced) return replaced;
        if (auto added = addItems(playlist, stayingOf(&changes, *m_index)); !added) return added;
    }
    return {};
}

Result<void> ChangePlan::replaceItems(const PlaylistSlot& playlist, const LibraryChanges::OfPlaylist& changes,
                                      const ItemRule& rule) {
    for (const auto& [number, track] : changes.replaced) {
        const ItemSlot& item = playlist.items[number];
        const ByteRange range = playlist.rangeOf(item);
        if (m_index->tracks[track].deleted) {
            if (!rule.goes(item)) m_edits.replace(range, {});
            continue;
        }
        const auto bytes = m_file->read(range);
        if (!bytes) return bytes.error();
        auto changed = itemWithTrackId(bytes.value(), m_index->tracks[track].trackId);
        if (!changed)
            return Error{Error::Code::invalid,
                         "the playlist “" + playlist.name + "” has an item whose track ID cannot be changed"};
        m_edits.replace(range, textPiece(std::move(*changed)));
    }
    return {};
}

Result<void> ChangePlan::addItems(const PlaylistSlot& playlist, const std::vector<std::uint32_t>& tracks) {
    if (tracks.empty()) return {};
    auto items = itemsOf(playlist, tracks);
    if (!items) return items.error();
    std::string text = std::move(items).value();
    switch (playlist.container.form) {
    case ContainerSlot::Form::tags: {
        const std::uint64_t at = playlist.items.empty() ? playlist.container.tag.end()
                                                        : playlist.rangeOf(playlist.items.back()).end();
        m_edits.insert(at, textPiece(std::move(text)));
        break;
    }
    case ContainerSlot::Form::emptyTag:
        m_edits.replace(playlist.container.tag, textPiece("<array>" + text + "\n\t\t\t</array>"));
        break;
    case ContainerSlot::Form::missing:
        m_edits.insert(playlist.end, textPiece("\n\t\t\t<key>Playlist Items</key>\n\t\t\t<array>" + text +
                                               "\n\t\t\t</array>"));
        break;
    }
    return {};
}

Result<std::string> ChangePlan::itemsOf(const PlaylistSlot& playlist,
                                        const std::vector<std::uint32_t>& tracks) const {
    const std::string pattern = itemPattern(playlist);
    std::string items;
    for (const std::uint32_t track : tracks)
        items += itemWithTrackId(pattern, m_index->tracks[track].trackId).value_or("");
    return items;
}

/// An item of the playlist, else of any other; where the file has none, as it usually is.
std::string ChangePlan::itemPattern(const PlaylistSlot& playlist) const {
    const auto patternIn = [&](const PlaylistSlot& other) -> std::string {
        if (other.items.empty()) return {};
        const auto bytes = m_file->read(other.rangeOf(other.items.back()));
        return bytes && isPattern(bytes.value()) ? bytes.value() : std::string();
    };
    if (std::string own = patternIn(playlist); !own.empty()) return own;
    for (const PlaylistSlot& other : m_index->playlists)
        if (std::string pattern = patternIn(other); !pattern.empty()) return pattern;
    return std::string(usualItem);
}

bool ChangePlan::isResult(const LibraryIndex& readBack) const {
    if (!hasTracks(readBack) || readBack.playlists.size() != m_index->playlists.size()) return false;
    const ItemRule rule(*m_index);
    for (std::uint32_t playlist = 0; playlist < m_index->playlists.size(); ++playlist)
        if (!hasItems(playlist, rule, readBack)) return false;
    return true;
}

bool ChangePlan::hasTracks(const LibraryIndex& readBack) const {
    auto next = readBack.tracks.begin();
    for (std::uint32_t track = 0; track < m_index->tracks.size(); ++track) {
        const TrackSlot& before = m_index->tracks[track];
        if (before.deleted) continue;
        if (next == readBack.tracks.end()) return false;
        const auto growth = m_growth.find(track);
        const std::int64_t length = before.length + (growth == m_growth.end() ? 0 : growth->second);
        const bool isSame = before.trackId == next->trackId && before.persistentId == next->persistentId &&
                            before.persistentIdKind == next->persistentIdKind && next->length == length;
        if (!isSame) return false;
        ++next;
    }
    return next == readBack.tracks.end();
}

bool ChangePlan::hasItems(std::uint32_t playlist, const ItemRule& rule, const LibraryIndex& readBack) const {
    const LibraryChanges::OfPlaylist* const changes = m_changes->ofPlaylist(playlist);
    const PlaylistSlot& before = m_index->playlists[playlist];
    const PlaylistSlot& after = readBack.playlists[playlist];
    std::vector<std::int64_t> expected;
    for (std::uint32_t item = 0; item < before.items.size(); ++item) {
        if (isTakenOut(changes, item)) continue;
        if (const auto track = newTrackOf(changes, item, *m_index)) {
            if (*track != LibraryIndex::noTrack) expected.push_back(idOf(*m_index, *track));
        } else if (!rule.goes(before.items[item])) {
            expected.push_back(idOf(*m_index, before.items[item].track));
        }
    }
    for (const std::uint32_t track : stayingOf(changes, *m_index))
        expected.push_back(idOf(*m_index, track));
    return before.name == after.name &&
           std::ranges::equal(expected, after.items, {}, {},
                              [&](const ItemSlot& item) { return idOf(readBack, item.track); });
}

} // namespace songsweep
