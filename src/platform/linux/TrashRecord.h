// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

namespace songsweep {

/// The path that a record of the Trash names, its escapes decoded: absolute, or below the top folder of its
/// volume. Nothing where the record cannot be read or names none, as one that was cut off by a full disk.
std::optional<std::string> recordedPath(const std::string& recordFile);

} // namespace songsweep
