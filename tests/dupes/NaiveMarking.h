// SPDX-License-Identifier: MIT
#pragma once

#include "dupes/MarkChoice.h"
#include "library/TrackRecord.h"

#include <vector>

namespace songsweep::test {

/// The marking rules once more, in the plainest way: one state machine over the rows, a step past the end,
/// and every value read whenever it is needed. Gives the check boxes that the rule sets, and changes nothing.
std::vector<bool> naiveMarks(const std::vector<TrackRecord*>& rows, const MarkChoice& choice);

} // namespace songsweep::test
