// SPDX-License-Identifier: MIT
#pragma once

#include "dupes/MarkChoice.h"
#include "dupes/MarkRule.h"

namespace songsweep {

/// Of the copies of one song the one that the reason of each marked copy names as the kept one, "lower bit
/// rate than the kept copy"; null where the rule has not marked one of them, where a reason names none, as
/// "no artwork", or where that copy is marked itself. Any thread on which the rows do not change.
const TrackRecord* keptByReason(const TrackRows& copies, const MarkChoice& choice);

} // namespace songsweep
