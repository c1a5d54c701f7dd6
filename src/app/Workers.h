// SPDX-License-Identifier: MIT
#pragma once

#include "library/WorkerEvent.h"
#include "operations/NotificationCenter.h"
#include "operations/OperationQueue.h"

namespace songsweep {

/// Where workers run and post; both outlive whoever starts one.
struct Workers {
    NotificationCenter<WorkerEvent>& center;
    OperationQueue& queue;
};

} // namespace songsweep
