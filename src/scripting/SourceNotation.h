// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/Descriptor.h"

#include <string>

namespace songsweep {

/// A result as AppleScript itself would write it: `"text"` with \" and \\ escaped, `{1, "a", {}}`, `true`,
/// `missing value`, `date "…"`, `alias "…"` with the HFS path, `track 1 of playlist 1 of application
/// "iTunes"`. UTF-8, without a line end.
///
/// A script without a result has no notation: nothing is to be printed for it.
std::string sourceNotation(const Descriptor& descriptor);

/// A text in quotes.
std::string quotedNotation(const std::string& text);

} // namespace songsweep
