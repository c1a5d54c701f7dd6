// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace songsweep {

/// The text as a library file can hold it: bytes that are not UTF-8 become replacement characters, and
/// characters that XML does not know are left out. Free and thread-safe.
std::string cleanText(std::string text);

} // namespace songsweep
