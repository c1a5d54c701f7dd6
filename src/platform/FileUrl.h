// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace songsweep {

/// The URL of a file: "/Music/a b.mp3" becomes "file:///Music/a%20b.mp3".
///
/// Every byte but letters, digits, "-", ".", "_", "~" and "/" is percent-encoded, so that any path, also one
/// that is no valid UTF-8, comes back unharmed and no reader takes part of it for a query or fragment.
std::string fileUrl(std::string_view absolutePath);

} // namespace songsweep
