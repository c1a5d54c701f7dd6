// SPDX-License-Identifier: MIT
#pragma once

#include "delete/DeletePlan.h"
#include "delete/DeleteReport.h"
#include "delete/SharedIds.h"

#include <vector>

namespace songsweep {

/// What a deletion of the marked rows would come to if nothing fails; touches nothing.
DeleteReport predictedReport(const std::vector<TrackRecord*>& rows, bool isDelFile, const DeletePlan& plan,
                             const TracksOfId& tracksOfId = {});

} // namespace songsweep
