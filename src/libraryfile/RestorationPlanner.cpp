// SPDX-License-Identifier: MIT
#include "libraryfile/RestorationPlanner.h"

#include "libraryfile/EntryNumbers.h"
#include "libraryfile/InsertionPoint.h"
#include "libraryfile/PlaylistMatch.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <unordered_set>
#include <utility>

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

/// The items of a present playlist as they are once merges are taken back, without those that come back.
class UnmergedItems {
  public:
    explicit UnmergedItems(const PlaylistSlot& present)
        : m_present(present) {}

    /// The item gives its place to one that comes back.
    void take(const ItemSlot& item) { m_taken.insert(item.begin); }
    /// An item of a track that stayed comes back, before what is at that offset.
    void add(std::uint64_t at, std::uint32_t track, std::uint32_t length) {
        m_items.emplace_back(at, ItemSlot{track, 0, length});
    }

    std::vector<ItemSlot> items() {
        for (const ItemSlot& item : m_present.items)
            if (!m_taken.contains(item.begin)) m_items.emplace_back(m_present.rangeOf(item).begin, item);
        std::ranges::stable_sort(m_items, {}, &std::pair<std::uint64_t, ItemSlot>::first);
        std::vector<ItemSlot> items;
        for (const auto& [at, item] : m_items)
            items.push_back(item);
        return items;
    }

  private:
    const PlaylistSlot& m_present;
    std::unordered_set<std::uint32_t> m_taken; // by their begins
    std::vector<std::pair<std::uint64_t, ItemSlot>> m_items;
};

FilePiece textPiece(std::string text) { return {nullptr, {}, std::move(text)}; }

} // namespace

/// What goes back into one playlist, item after item.
struct RestorationPlanner::ReturningItems {
    InsertionPoint point;
    ItemMatch match;
    const PlaylistSlot& present;
    UnmergedItems unmerged;
};

Result<Restoration> RestorationPlanner::plan(const std::vector<RecordedTrack>& wanted,
                                             const std::vector<RecordedMerge>& merges) {
    Restoration restoration(m_present);
    const Sought sought = seek(wanted);
    m_match = TrackMatch::of(m_backup, m_present, sought.tracks);
    decideFates(sought, restoration);
    findMerges(sought, merges);
    giveTrackIds();
    if (auto added = addEntries(); !added) return added.error();
    if (auto undone = undoMerges(); !undone) return undone.error(); // Behind what comes to the same offset.
    if (auto added = addItems(); !added) return added.error();
    FileEdits::Outcome outcome = m_edits.appliedTo(m_present.file);
    restoration.m_pieces = std::move(outcome.pieces);
    restoration.m_entries = std::move(outcome.entries);
    restoration.m_trackCount = restoration.m_entries.size();
    restoration.m_notes = std::move(m_notes);
    restoration.m_unmerged = std::move(m_unmerged);
    return restoration;
}

/// Those of which every removed copy comes back now, and whose kept one is still there. No two tracks had one
/// persistent ID when they were merged.
void RestorationPlanner::findMerges(const Sought& sought, const std::vector<RecordedMerge>& merges) {
    if (merges.empty()) return;
    PersistentIdTable table;
    table.build(m_backup.index.tracks);
    for (const RecordedMerge& merge : merges) {
        std::vector<std::uint32_t> removed;
        for (const std::size_t number : merge.removed)
            std::ranges::copy(sought.ofWanted[number], std::back_inserter(removed));
        const auto kept = table.find(m_backup.index.tracks, PersistentId::of(merge.keptId));
        const bool comesBack = removed.size() == merge.removed.size() &&
                               std::ranges::all_of(removed, [&](auto track) { return m_returning[track]; });
        if (kept.size() != 1 || !comesBack) continue;
        const std::uint32_t present = m_match.presentOf[kept.front()];
        if (present != LibraryIndex::noTrack) m_undo.add(merge, kept.front(), present, removed);
    }
}

Result<void> RestorationPlanner::undoMerges() {
    if (m_undo.isEmpty()) return {};
    std::unordered_map<std::uint32_t, std::int64_t> growth;
    if (auto changed = m_undo.changeEntries(m_edits, growth, m_notes); !changed) return changed;
    m_unmerged = m_present.index;
    for (const auto& [track, bytes] : growth) {
        TrackSlot& slot = m_unmerged->tracks[track];
        slot.length = static_cast<std::uint32_t>(slot.length + bytes);
    }
    return {};
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
        if (auto added = addItemsOf(i, *present, rule); !added) return added;
    }
    return {};
}

Result<void> RestorationPlanner::addItemsOf(std::size_t playlist, const PlaylistSlot& present,
                                            const ItemRule& rule) {
    const PlaylistSlot& old = m_backup.index.playlists[playlist];
    const ContainerSlot& container = present.container;
    const bool isMissing = container.form == ContainerSlot::Form::missing;
    if (isMissing && present.end == 0) return {}; // An empty tag, which has no name either.
    const std::uint64_t begin = isMissing ? present.end : beginOf(container);
    if (isMissing) m_edits.insert(begin, textPiece("\n\t\t\t<key>Playlist Items</key>\n\t\t\t<array>"));
    if (container.form == ContainerSlot::Form::emptyTag) m_edits.replace(container.tag, textPiece("<array>"));
    ReturningItems items{{m_backup.file, beginOf(old.container), m_present.file, begin},
                         ItemMatch(present),
                         present,
                         UnmergedItems(present)};
    const auto merged = m_undo.itemsOf(playlist);
    for (std::size_t number = 0; number < old.items.size(); ++number) {
        const ItemSlot& item = old.items[number];
        if (rule.goes(item) || (merged[number] && merged[number]->fate == PlaceFate::isGivenUp)) {
            if (auto added = addItem(item, old.rangeOf(item), merged[number], items); !added) return added;
        } else {
            passItem(item, old.rangeOf(item), items);
        }
    }
    if (container.form != ContainerSlot::Form::tags) m_edits.insert(begin, textPiece("\n\t\t\t</array>"));
    if (m_unmerged)
        m_unmerged->playlists[static_cast<std::size_t>(&present - m_present.index.playlists.data())].items =
            items.unmerged.items();
    return {};
}

void RestorationPlanner::passItem(const ItemSlot& item, ByteRange range, ReturningItems& items) const {
    const ItemSlot* const found = presentItem(item.track, item.length, items);
    items.point.pass(range, found ? std::optional(items.present.rangeOf(*found).end()) : std::nullopt);
}

/// To its place, which the copy that stayed may have got; an item of that one itself that was given up comes
/// back, too.
Result<void> RestorationPlanner::addItem(const ItemSlot& item, ByteRange range,
                                         const std::optional<MergeUndo::Item>& merged,
                                         ReturningItems& items) {
    auto piece = pieceOf(range, item.track, Form::item);
    if (!piece) return piece.error();
    const bool isReplaced = merged && merged->fate == PlaceFate::goesToKept;
    const ItemSlot* const found = isReplaced ? presentItem(merged->kept, item.length, items) : nullptr;
    if (found != nullptr) {
        const ByteRange place = items.present.rangeOf(*found);
        m_edits.replace(place, std::move(piece).value());
        items.point.pass(range, place.end());
        items.unmerged.take(*found);
        return {};
    }
    const std::uint64_t place = items.point.placeOf(range);
    m_edits.insert(place, std::move(piece).value());
    if (!m_returning[item.track]) items.unmerged.add(place, presentTrackOf(item.track), item.length);
    return {};
}

const ItemSlot* RestorationPlanner::presentItem(std::uint32_t oldTrack, std::uint32_t length,
                                                ReturningItems& items) const {
    const std::uint32_t track = presentTrackOf(oldTrack);
    const bool isDangling = oldTrack == LibraryIndex::noTrack;
    return isDangling || track != LibraryIndex::noTrack ? items.match.next(track, length) : nullptr;
}

/// The present track that an item refers to which stayed; of several of one ID, the first that is there.
std::uint32_t RestorationPlanner::presentTrackOf(std::uint32_t old) const {
    if (old == LibraryIndex::noTrack) return LibraryIndex::noTrack;
    const std::uint32_t present = m_match.presentOf[old];
    if (present != LibraryIndex::noTrack) return present;
    const auto found = m_presentOfId.find(m_backup.index.tracks[old].trackId);
    return found == m_presentOfId.end() ? LibraryIndex::noTrack : found->second;
}

/// The bytes of the backup, with the present track ID where that is another one.
Result<FilePiece> RestorationPlanner::pieceOf(ByteRange range, std::uint32_t track, Form form) const {
    const std::optional<std::int64_t> id = newIdOf(track);
    if (!id) return FilePiece{&m_backup.file, range, {}};
    const auto bytes = m_backup.file.read(range);
    if (!bytes) return bytes.error();
    auto changed =
        form == Form::entry ? entryWithTrackId(bytes.value(), *id) : itemWithTrackId(bytes.value(), *id);
    if (!changed)
        return Error{Error::Code::invalid,
                     m_backup.file.path() + " has a track whose ID cannot be changed, as it must be"};
    return textPiece(std::move(*changed));
}

std::optional<std::int64_t> RestorationPlanner::newIdOf(std::uint32_t track) const {
    if (const auto id = m_newIds.find(track); id != m_newIds.end()) return id->second;
    const std::uint32_t present = m_match.presentOf[track];
    if (m_returning[track] || present == LibraryIndex::noTrack) return {};
    const std::int64_t id = m_present.index.tracks[present].trackId;
    return id == m_backup.index.tracks[track].trackId ? std::nullopt : std::optional(id);
}

} // namespace songsweep
