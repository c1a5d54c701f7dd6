// SPDX-License-Identifier: MIT
#include "platform/Memory.h"

#include <mimalloc.h>

namespace songsweep {

void returnFreeMemoryAtOnce() { mi_option_set(mi_option_decommit_delay, 0); }

} // namespace songsweep
