// SPDX-License-Identifier: MIT
#include "libraryfile/Restoration.h"

#include "libraryfile/LibraryRewrite.h"
#include "libraryfile/RestorationPlanner.h"

#include <algorithm>

namespace songsweep {

Result<Restoration> Restoration::plan(const IndexedLibrary& backup, const IndexedLibrary& present,
                                      const std::vector<RecordedTrack>& wanted,
                                      const std::vector<RecordedMerge>& merges) {
    return RestorationPlanner(backup, present).plan(wanted, merges);
}

bool Restoration::isResult(const LibraryIndex& readBack) const {
    std::vector<bool> wentBack(readBack.tracks.size());
    auto entry = m_entries.begin();
    for (std::size_t track = 0; track < readBack.tracks.size() && entry != m_entries.end(); ++track) {
        wentBack[track] = readBack.tracks[track].range() == *entry;
        if (wentBack[track]) ++entry;
    }
    return entry == m_entries.end() && isRemainderOf(readBack, m_unmerged ? *m_unmerged : m_present->index,
                                                     [&](std::uint32_t track) { return wentBack[track]; });
}

} // namespace songsweep
