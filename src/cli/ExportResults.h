// SPDX-License-Identifier: MIT
#pragma once

#include "app/ResultsExport.h"

namespace songsweep::cli {

/// Writes the window's results as `mark` writes its own.
Result<void> exportResults(const ResultsExport& results);

} // namespace songsweep::cli
