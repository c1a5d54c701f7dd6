// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace songsweep {

/// The locations of the tracks of an XSPF file, as they stand there, up to the place where it is no longer
/// well-formed. Entities that a file declares itself are not replaced. Linear, thread-safe.
std::vector<std::string> namesInXspf(std::string_view bytes);

} // namespace songsweep
