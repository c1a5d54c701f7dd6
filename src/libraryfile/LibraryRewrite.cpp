// SPDX-License-Identifier: MIT
#include "libraryfile/LibraryRewrite.h"

#include "libraryfile/ItemRule.h"

#include <algorithm>

namespace songsweep {

namespace {

std::int64_t idOf(const LibraryIndex& index, const ItemSlot& item) {
    return item.track == LibraryIndex::noTrack ? -1 : index.tracks[item.track].trackId;
}

bool isSameTrack(const TrackSlot& a, const TrackSlot& b) {
    return a.trackId == b.trackId && a.persistentId == b.persistentId &&
           a.persistentIdKind == b.persistentIdKind && a.length == b.length;
}

bool tracksRemain(const LibraryIndex& original, const LibraryIndex& rewritten,
                  const ItemRule::Deleted& isDeleted) {
    auto next = rewritten.tracks.begin();
    for (std::uint32_t track = 0; track < original.tracks.size(); ++track) {
        if (isDeleted(track)) continue;
        if (next == rewritten.tracks.end() || !isSameTrack(original.tracks[track], *next)) return false;
        ++next;
    }
    return next == rewritten.tracks.end();
}

bool itemsRemain(const LibraryIndex& original, const PlaylistSlot& before, const LibraryIndex& rewritten,
                 const PlaylistSlot& after, const ItemRule& rule) {
    auto next = after.items.begin();
    for (const ItemSlot& item : before.items) {
        if (rule.goes(item)) continue;
        const bool same = next != after.items.end() && next->length == item.length &&
                          idOf(original, item) == idOf(rewritten, *next);
        if (!same) return false;
        ++next;
    }
    return next == after.items.end() && before.name == after.name;
}

} // namespace

std::vector<ByteRange> rangesOfDeletions(const LibraryIndex& index) {
    return rangesOfDeletions(index, [](std::uint32_t, std::uint32_t) { return false; });
}

std::vector<ByteRange> rangesOfDeletions(const LibraryIndex& index, const StaysInPlaylist& stays) {
    std::vector<ByteRange> ranges;
    for (const TrackSlot& track : index.tracks)
        if (track.deleted) ranges.push_back(track.range());
    const ItemRule rule(index);
    for (std::uint32_t number = 0; number < index.playlists.size(); ++number) {
        const PlaylistSlot& playlist = index.playlists[number];
        for (std::uint32_t item = 0; item < playlist.items.size(); ++item)
            if (rule.goes(playlist.items[item]) && !stays(number, item))
                ranges.push_back(playlist.rangeOf(playlist.items[item]));
    }
    const auto byBegin = [](const ByteRange& a, const ByteRange& b) { return a.begin < b.begin; };
    if (!std::is_sorted(ranges.begin(), ranges.end(), byBegin))
        std::sort(ranges.begin(), ranges.end(), byBegin);
    return ranges;
}

bool isRemainderOf(const LibraryIndex& original, const LibraryIndex& rewritten,
                   const ItemRule::Deleted& isDeleted) {
    if (!tracksRemain(original, rewritten, isDeleted)) return false;
    if (original.playlists.size() != rewritten.playlists.size()) return false;
    const ItemRule rule(original, isDeleted);
    for (std::size_t i = 0; i < original.playlists.size(); ++i) {
        if (!itemsRemain(original, original.playlists[i], rewritten, rewritten.playlists[i], rule))
            return false;
    }
    return true;
}

} // namespace songsweep
