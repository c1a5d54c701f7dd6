// SPDX-License-Identifier: MIT
#include "libraryfile/RestorationPlanner.h"

#include "libraryfile/EntryNumbers.h"
#include "libraryfile/InsertionPoint.h"
#include "libraryfile/PlaylistMatch.h"

#include <algorithm>
#include <optional>
#include <set>

namespace songsweep {

namespace {

/// Where the first entry stands, or would stand.
std::uint64_t beginOf(const ContainerSlot& container) { return container.tag.end(); }

std::vector<std::int64_t> sortedTrackIds(const std::vector<TrackSlot>& tracks) {
    std::vector<std::int64_t> ids;
    ids.reserve(tracks.size());
    for (const TrackSlot& track : tracks)
        ids.push_back(track.trackId);
    if (!std::is_sorted(ids.begin(), ids.end())) std::sort(ids.begin(), ids.end());
    return ids;
}

FilePiece textPiece(std::string text) { return {nullptr, {}, std::move(text)}; }

} // namespace

Result<Restoration> RestorationPlanner::plan(const std::vector<RecordedTrack>& wanted) {
    Restoration restoration(m_present);
    const Sought sought = seek(wanted);
    m_match = TrackMatch::of(m_backup, m_present, sought.tracks);
    decideFates(sought, restoration);
    giveTrackIds();
    if (auto added = addEntries(); !added) return added.error();
    if (auto added = addItems(); !added) return added.error();
    FileEdits::Outcome outcome = m_edits.appliedTo(m_present.file);
    restoration.m_pieces = std::move(outcome.pieces);
    restoration.m_entries = std::move(outcome.entries);
    restoration.m_trackCount = restoration.m_entries.size();
    restoration.m_notes = std::move(m_notes);
    return restoration;
}

/// The tracks of the backup that are meant: those of the persistent ID, and of the track ID where it is known
/// and one of them has it; a program that was killed may not have come to record that they were renumbered.
RestorationPlanner::Sought RestorationPlanner::seek(const std::vector<RecordedTrack>& wanted) const {
    const auto& tracks = m_backup.index.tracks;
    PersistentIdTable table;
    table.build(tracks);
    Sought sought;
    sought.tracks.resize(tracks.size());
    for (const RecordedTrack& track : wanted) {
        const auto same = table.find(tracks, PersistentId::of(track.persistentId));
        const auto isIt = [&](std::uint32_t position) { return tracks[position].trackId == track.trackId; };
        const bool isKnown = std::any_of(same.begin(), same.end(), isIt);
        auto& meant = sought.ofWanted.emplace_back();
        for (const std::uint32_t position : same) {
            if (isKnown && !isIt(position)) continue;
            meant.push_back(position);
            sought.tracks[position] = true;
        }
    }
    return sought;
}

void RestorationPlanner::decideFates(const Sought& sought, Restoration& restoration) {
    for (std::uint32_t track = 0; track < sought.tracks.size(); ++track)
        m_returning[track] = sought.tracks[track] && m_match.presentOf[track] == LibraryIndex::noTrack;
    for (const auto& meant : sought.ofWanted) {
        const bool returns =
            std::any_of(meant.begin(), meant.end(), [&](std::uint32_t track) { return m_returning[track]; });
        restoration.m_fates.push_back(meant.empty() ? Restoration::Fate::isUnknown
                                      : returns     ? Restoration::Fate::comesBack
                                                    : Restoration::Fate::isThere);
    }
}

/// New track IDs for returning tracks whose own has another owner by now; an owner that shared it before does
/// so again.
void RestorationPlanner::giveTrackIds() {
    const auto& tracks = m_backup.index.tracks;
    const std::vector<std::int64_t> taken = sortedTrackIds(m_present.index.tracks);
    std::set<std::int64_t> sharedBefore;
    if (m_backup.index.trackIdsRepeat)
        for (std::uint32_t track = 0; track < tracks.size(); ++track)
            if (m_match.presentOf[track] != LibraryIndex::noTrack &&
                m_present.index.tracks[m_match.presentOf[track]].trackId == tracks[track].trackId)
                sharedBefore.insert(tracks[track].trackId);
    std::int64_t last = taken.empty() ? 0 : taken.back();
    for (std::uint32_t track = 0; track < tracks.size(); ++track)
        if (m_returning[track]) last = std::max(last, tracks[track].trackId);
    for (std::uint32_t track = 0; track < tracks.size(); ++track) {
        const std::int64_t id = tracks[track].trackId;
        if (!m_returning[track] || id < 0 || sharedBefore.contains(id)) continue;
        if (std::binary_search(taken.begin(), taken.end(), id)) m_newIds.emplace(track, ++last);
    }
    if (!m_newIds.empty())
        m_notes.push_back("new track IDs, as the library uses the old ones for others now: " +
                          std::to_string(m_newIds.size()));
}

bool RestorationPlanner::isPlaceKnown() const {
    bool anyStays = false;
    for (std::uint32_t track = 0; track < m_returning.size(); ++track) {
        if (m_match.presentOf[track] != LibraryIndex::noTrack) return true;
        anyStays = anyStays || !m_returning[track];
    }
    return !anyStays && m_present.index.tracks.empty();
}

Result<void> RestorationPlanner::addEntries() {
    const LibraryIndex& old = m_backup.index;
    const LibraryIndex& present = m_present.index;
    if (std::find(m_returning.begin(), m_returning.end(), true) == m_returning.end()) return {};
    std::uint64_t begin = beginOf(present.trackContainer);
    if (!isPlaceKnown()) {
        if (!present.tracks.empty()) begin = present.tracks.back().range().end();
        m_notes.emplace_back("the library was rebuilt: the tracks go to its end");
    }
    const bool isEmptyTag = present.trackContainer.form == ContainerSlot::Form::emptyTag;
    if (isEmptyTag) m_edits.replace(present.trackContainer.tag, textPiece("<dict>"));
    InsertionPoint point(m_backup.file, beginOf(old.trackContainer), m_present.file, begin);
    for (std::uint32_t track = 0; track < old.tracks.size(); ++track) {
        const ByteRange range = old.tracks[track].range();
        const std::uint32_t match = m_match.presentOf[track];
        if (!m_returning[track]) {
            point.pass(range, match == LibraryIndex::noTrack
                                  ? std::nullopt
                                  : std::optional(present.tracks[match].range().end()));
            continue;
        }
        auto piece = pieceOf(range, track, Form::entry);
        if (!piece) return piece.error();
        m_edits.insert(point.placeOf(range), std::move(piece).value(), FileEdits::Kind::entry);
    }
    if (isEmptyTag) m_edits.insert(begin, textPiece("\n\t</dict>"));
    return {};
}

Result<void> RestorationPlanner::addItems() {
    const ItemRule rule(m_backup.index, [&](std::uint32_t track) { return m_returning[track]; });
    const PlaylistMatch playlists(m_backup.index, m_present.index);
    if (m_backup.index.trackIdsRepeat)
        for (std::uint32_t track = 0; track < m_present.index.tracks.size(); ++track)
            m_presentOfId.emplace(m_present.index.tracks[track].trackId, track);
    for (std::size_t i = 0; i < m_backup.index.playlists.size(); ++i) {
        const PlaylistSlot& old = m_backup.index.playlists[i];
        const bool isConcerned = std::any_of(old.items.begin(), old.items.end(),
                                             [&](const ItemSlot& item) { return rule.goes(item); });
        if (!isConcerned) continue;
        const PlaylistSlot* present = playlists.presentOf(i);
        if (present == nullptr) {
            m_notes.push_back("the playlist \"" + old.name + "\" is no longer there");
            continue;
        }
        if (auto added = addItemsOf(old, *present, rule); !added) return added;
    }
    return {};
}

Result<void> RestorationPlanner::addItemsOf(const PlaylistSlot& old, const PlaylistSlot& present,
                                            const ItemRule& rule) {
    const ContainerSlot& container = present.container;
    const bool isMissing = container.form == ContainerSlot::Form::missing;
    if (isMissing && present.end == 0) return {}; // An empty tag, which has no name either.
    const std::uint64_t begin = isMissing ? present.end : beginOf(container);
    if (isMissing) m_edits.insert(begin, textPiece("\n\t\t\t<key>Playlist Items</key>\n\t\t\t<array>"));
    if (container.form == ContainerSlot::Form::emptyTag) m_edits.replace(container.tag, textPiece("<array>"));
    InsertionPoint point(m_backup.file, beginOf(old.container), m_present.file, begin);
    ItemMatch match(present);
    for (const ItemSlot& item : old.items) {
        const ByteRange range = old.rangeOf(item);
        if (rule.goes(item)) {
            auto piece = pieceOf(range, item.track, Form::item);
            if (!piece) return piece.error();
            m_edits.insert(point.placeOf(range), std::move(piece).value());
            continue;
        }
        const bool isDangling = item.track == LibraryIndex::noTrack;
        const std::uint32_t track = presentTrackOf(item);
        const ItemSlot* found =
            isDangling || track != LibraryIndex::noTrack ? match.next(track, item.length) : nullptr;
        point.pass(range, found ? std::optional(present.rangeOf(*found).end()) : std::nullopt);
    }
    if (container.form != ContainerSlot::Form::tags) m_edits.insert(begin, textPiece("\n\t\t\t</array>"));
    return {};
}

/// The present track that an item refers to which stayed; of several of one ID, the first that is there.
std::uint32_t RestorationPlanner::presentTrackOf(const ItemSlot& old) const {
    if (old.track == LibraryIndex::noTrack) return LibraryIndex::noTrack;
    const std::uint32_t present = m_match.presentOf[old.track];
    if (present != LibraryIndex::noTrack) return present;
    const auto found = m_presentOfId.find(m_backup.index.tracks[old.track].trackId);
    return found == m_presentOfId.end() ? LibraryIndex::noTrack : found->second;
}

/// The bytes of the backup, with the new track ID where there is one.
Result<FilePiece> RestorationPlanner::pieceOf(ByteRange range, std::uint32_t track, Form form) const {
    const auto id = m_newIds.find(track);
    if (id == m_newIds.end()) return FilePiece{&m_backup.file, range, {}};
    const auto bytes = m_backup.file.read(range);
    if (!bytes) return bytes.error();
    auto changed = form == Form::entry ? entryWithTrackId(bytes.value(), id->second)
                                       : itemWithTrackId(bytes.value(), id->second);
    if (!changed)
        return Error{Error::Code::invalid,
                     m_backup.file.path() + " has a track whose ID cannot be changed, as it must be"};
    return textPiece(std::move(*changed));
}

} // namespace songsweep
