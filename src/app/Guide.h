// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

namespace songsweep {

/// The page of the user guide that came with the program, by the folder that the program's file lies in:
/// where a package installs it, in a bundle, or in the folder in which both were built. Nothing where it is
/// not there.
std::optional<std::string> guideFile(const std::string& programFolder);

} // namespace songsweep
