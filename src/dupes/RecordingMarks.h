// SPDX-License-Identifier: MIT
#pragma once

#include "dupes/MarkingRules.h"

namespace songsweep {

/// Marks as applyMarkChoice() does, but where sounds were compared the best copy of each recording is kept,
/// not of each group, and no recording loses its last copy. The rows may stand in any order inside their
/// groups. Linear.
void markRecordings(const TrackRows& rows, const MarkChoice& choice);

/// What that would do.
MarkEffect recordingsEffect(const TrackRows& rows, const MarkChoice& choice);

} // namespace songsweep
