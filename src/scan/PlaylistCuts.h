// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/RecordedPlaylist.h"
#include "platform/Result.h"
#include "scan/GoneFiles.h"

#include <string>
#include <string_view>

namespace songsweep {

/// What has to go from a playlist file with these bytes, at this path below the folder, so that it names no
/// gone file; no cuts where it names none. Path and state are the caller's to set. An error where the rest
/// would not be the same list without those entries. Linear.
Result<RecordedPlaylist> playlistCuts(std::string_view bytes, const std::string& playlist,
                                      const GoneFiles& gone);

/// The bytes without the cuts, which are theirs.
std::string withoutCuts(std::string_view bytes, const RecordedPlaylist& playlist);

} // namespace songsweep
