// SPDX-License-Identifier: MIT
#pragma once

#include "app/views/ProgressView.h"

#include <QString>

namespace songsweep {

/// "3,800 of 6,000", with " – about 2 minutes left" where that is known; numbers as the user's locale writes
/// them. Empty where there is nothing to count.
QString progressText(const ProgressCounts& counts);

} // namespace songsweep
