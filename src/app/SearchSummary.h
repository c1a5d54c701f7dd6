// SPDX-License-Identifier: MIT
#pragma once

#include "library/SearchParameters.h"

#include <string>

namespace songsweep {

/// What was searched, in words: "Music: same name, artist, time", "Music: everything" with no field chosen.
std::string searchSummary(const SearchParameters& parameters);

} // namespace songsweep
