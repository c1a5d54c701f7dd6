// SPDX-License-Identifier: MIT
#pragma once

#include "scan/SoundFormat.h"

#include <string>
#include <string_view>
#include <vector>

namespace songsweep {

/// The files that a playlist file names, in its order, each as bytes that stand in it: a path with either
/// separator, or a "file:" URL. Addresses of other schemes are among them.
///
/// Whatever the bytes, a list comes of them; what cannot be understood is left out. Linear, thread-safe.
std::vector<std::string> namesInPlaylist(std::string_view bytes, PlaylistFormat format);

/// The paths below the folder of music that a name in a playlist may mean, the likeliest first.
///
/// `playlist` is the playlist file's own path below the folder, `folder` the folder's without links. A name
/// may be relative to the playlist or absolute, percent-encoded in a URL, written with "\", and in Latin-1.
std::vector<std::string> meaningsOf(const std::string& name, const std::string& playlist,
                                    const std::string& folder);

} // namespace songsweep
