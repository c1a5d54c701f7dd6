// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/RecordedPlaylist.h"

#include <functional>
#include <string>
#include <string_view>

namespace songsweep {

/// A playlist file with the lines that a clean-up took out of it.
struct PlaylistReturn {
    std::string bytes;
    bool isComplete = true; ///< false where the place of a line is not to be found any more
};

/// Puts the lines back whose files are wanted, into the playlist with its present bytes.
///
/// A file that nobody else has changed is byte for byte what it was, but for lines that are not wanted. In
/// another one, lines go back to their neighbours where these still are, and where the list is the same but
/// for them then; of a file that the list names already no second line comes. About linear.
PlaylistReturn returnLines(std::string_view bytes, const RecordedPlaylist& playlist,
                           const std::function<bool(const std::string& file)>& isWanted);

} // namespace songsweep
