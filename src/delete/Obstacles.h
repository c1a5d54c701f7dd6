// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace songsweep {

/// Why a track stays in the library though it is marked; null where nothing is in the way. Its file stays
/// with it. A phrase for an outcome.
const char* trackObstacle(std::string_view pid);

/// Why a file that exists stays though it is to be trashed; null where nothing is in the way.
const char* fileObstacle(std::string_view location);

} // namespace songsweep
