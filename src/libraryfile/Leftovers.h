// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"

#include <string>

namespace songsweep {

/// Removes what killed programs left beside the library (its path without links); nobody else may have it
/// locked. A version of the library that came out of an unfinished exchange and is not what was to come out
/// goes back to its place; where the library has changed since, it stays under a name that can be seen.
/// Linear in the names of the folder.
Result<void> removeLeftovers(const std::string& library);

/// Gives a version of the library that came out of an exchange, and that nobody knows, a name that can be
/// seen; the path.
Result<std::string> keepUnderVisibleName(const std::string& path, const std::string& library);

} // namespace songsweep
