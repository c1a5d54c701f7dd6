// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace songsweep {

/// The paths below the folder of music that a name in a playlist may mean, the likeliest first.
///
/// `playlist` is the playlist file's own path below the folder, `folder` the folder's without links. A name
/// may be relative to the playlist or absolute, percent-encoded in a URL, written with "\", and in Latin-1.
std::vector<std::string> meaningsOf(const std::string& name, const std::string& playlist,
                                    const std::string& folder);

} // namespace songsweep
