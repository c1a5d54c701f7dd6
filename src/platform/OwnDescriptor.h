// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

namespace songsweep {

/// The open descriptor of this process that a path stands for, as "/dev/stdout" and "/dev/fd/3" do; nothing
/// for any other path.
///
/// What is behind such a path may be a file that somebody else writes to, too, so that it is neither emptied
/// nor replaced, but written on.
std::optional<int> ownDescriptor(const std::string& path);

} // namespace songsweep
