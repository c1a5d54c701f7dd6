// SPDX-License-Identifier: MIT
#include "merge/SongsToMerge.h"

#include "library/Groups.h"
#include "scripting/TextLiteral.h"

#include <utility>

namespace songsweep {

namespace {

bool isNameable(std::string_view pid) { return !pid.empty() && pid != "0" && canStandInText(pid); }

} // namespace

SongsToMerge::SongsToMerge(const std::vector<TrackRecord*>& rows, std::shared_ptr<const TrackStorage> kept)
    : storage(std::move(kept)) {
    std::size_t marked = 0;
    for (const RowGroup group : groupsOf(rows)) {
        Song song;
        std::size_t staying = 0;
        for (std::size_t row = group.first; row < group.end; ++row) {
            const TrackRecord& record = *rows[row];
            const std::size_t number = record.checkbox ? marked++ : 0;
            if (record.checkbox && isNameable(record.pid)) {
                song.removed.push_back({&record, record.pid, number});
            } else {
                song.kept = {&record, record.pid, 0};
                ++staying;
            }
        }
        if (song.removed.empty() || staying == 0) continue;
        if (staying == 1 && isNameable(song.kept.pid)) {
            songs.push_back(std::move(song));
        } else if (staying > 1) {
            ++keepSeveral;
        }
    }
}

} // namespace songsweep
