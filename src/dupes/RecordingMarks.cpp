// SPDX-License-Identifier: MIT
#include "dupes/RecordingMarks.h"

#include "dupes/RecordingGroups.h"

#include <vector>

namespace songsweep {

void markRecordings(const TrackRows& rows, const MarkChoice& choice) {
    RecordingGroups recordings(rows);
    recordings.split();
    applyMarkChoice(recordings.rows(), choice);
    recordings.keepLastCopies();
    recordings.join();
}

/// Does it and takes it back, so that the last copies are looked at in one way alone.
MarkEffect recordingsEffect(const TrackRows& rows, const MarkChoice& choice) {
    std::vector<bool> before;
    before.reserve(rows.size());
    for (const TrackRecord* const row : rows)
        before.push_back(row->checkbox);
    markRecordings(rows, choice);
    MarkEffect effect;
    for (std::size_t row = 0; row < rows.size(); ++row) {
        effect.marked += rows[row]->checkbox ? 1 : 0;
        effect.inForce = effect.inForce && rows[row]->checkbox == before[row];
        rows[row]->checkbox = before[row];
    }
    return effect;
}

} // namespace songsweep
