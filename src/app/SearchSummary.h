// SPDX-License-Identifier: MIT
#pragma once

#include "library/SearchParameters.h"

#include <string>
#include <vector>

namespace songsweep {

/// Whether the search was limited to the playlist that was chosen.
enum class ChosenPlaylist { searched, missed };

/// What was searched, in words: "Music: same name, artist, time", "Music: everything" with no field chosen.
/// With small differences allowed, "Music: same name, time, with small differences". Where the chosen
/// playlist was missed, "Whole library, not “Party”: same name"; the notes of an incomplete search stand
/// before the colon, "Music (3 tracks could not be read): same name".
std::string searchSummary(const SearchParameters& parameters, ChosenPlaylist playlist,
                          const std::vector<std::string>& notes = {});

} // namespace songsweep
