// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace songsweep {

/// File paths in HFS notation: volume name first, components separated by ":", "/" inside a component where
/// the POSIX path has ":". iTunes and Finder take files in this form.

/// "/Users/ann/a:b.mp3" becomes "Macintosh HD:Users:ann:a/b.mp3". Nothing for a path that is not absolute.
std::optional<std::string> hfsPath(std::string_view posixPath);

/// The way back; nothing where the volume is not known. A round trip loses nothing.
std::optional<std::string> posixPath(std::string_view hfsPath);

} // namespace songsweep
