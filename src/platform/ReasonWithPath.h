// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace songsweep {

/// A reason that says which file it is about: with the path before it, unless it names the file itself, as
/// reasons of the system do. The path may be relative to the working folder; without one the reason stands
/// alone.
std::string reasonWithPath(const std::string& path, const std::string& reason);

} // namespace songsweep
