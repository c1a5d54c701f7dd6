// SPDX-License-Identifier: MIT
#include "libraryfile/SameTracks.h"

namespace songsweep {

namespace {

/// What a record's ID is where the library gives none.
const Text noId = TrackRecord().pid;

bool isSameTrack(const TrackSlot& track, const TrackRecord& record) {
    const PersistentId id = PersistentId::of(record.pid);
    if (id == PersistentId{track.persistentId, track.persistentIdKind}) return true;
    return track.persistentIdKind == PersistentId::Kind::none && record.pid == noId;
}

} // namespace

bool areSameTracks(const std::vector<TrackSlot>& tracks, const std::vector<TrackRecord*>& records) {
    auto record = records.begin();
    for (const TrackSlot& track : tracks) {
        if (track.deleted) continue;
        if (record == records.end() || !isSameTrack(track, **record)) return false;
        ++record;
    }
    return record == records.end();
}

} // namespace songsweep
