// SPDX-License-Identifier: MIT
#pragma once

#include "delete/DeleteReport.h"
#include "libraryfile/RecordedCleanup.h"

namespace songsweep {

/// What became of the tracks of a deletion that was interrupted and then finished, as a deletion tells it.
DeleteReport finishedReport(const RecordedCleanup& cleanup);

} // namespace songsweep
