// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace songsweep {

/// What the name of a file says of a track whose tags say nothing.
struct FileTitle {
    std::string artist; ///< empty where the name has none
    std::string name;
};

/// The file's name without its ending, its number ("03 ", "1-03. ") and the blanks around it. Where the tags
/// have a track number (not 0), only that one is left out, so that "99 Luftballons" of track 4 stays whole.
std::string titleOfFile(std::string_view path, std::int32_t trackNumber);

/// The two parts of "Artist - Title"; the whole as the name where there are no two.
FileTitle splitTitle(const std::string& title);

} // namespace songsweep
