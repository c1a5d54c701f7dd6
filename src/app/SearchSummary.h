// SPDX-License-Identifier: MIT
#pragma once

#include "library/SearchParameters.h"

#include <string>

namespace songsweep {

/// Whether the search was limited to the playlist that was chosen.
enum class ChosenPlaylist { searched, missed };

/// What was searched, in words: "Music: same name, artist, time", "Music: everything" with no field chosen.
/// Where the chosen playlist was missed, "Whole library, not “Party”: same name".
std::string searchSummary(const SearchParameters& parameters, ChosenPlaylist playlist);

} // namespace songsweep
