// SPDX-License-Identifier: MIT
#pragma once

#include "library/DisplayedList.h"

namespace songsweep::test {

/// Five groups of duplicates, twelve rows, three of them marked and one without its file.
DisplayedList sampleRows();

/// `groups` groups of `copies` rows each, named "Song 0", "Song 1" and so on.
DisplayedList manyRows(int groups, int copies);

} // namespace songsweep::test
