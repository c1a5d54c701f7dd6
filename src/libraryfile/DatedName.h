// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"

#include <string>

namespace songsweep {

/// Gives a file a name beside the library that says what it is and when it came about:
/// "iTunes Library.xml" and "before deletions of" make "iTunes Library (before deletions of 2026-01-31
/// 12.00.00).xml", with a counter within one second. A long name is shortened. Never takes the place of
/// anything, see `renameToFreeName`. The path.
Result<std::string> giveDatedName(const std::string& from, const std::string& library,
                                  const std::string& words);

/// A path, or name, without the extension of its file: "/a/b.xml" is "/a/b", and ".xml" itself.
std::string withoutExtension(const std::string& path);

} // namespace songsweep
