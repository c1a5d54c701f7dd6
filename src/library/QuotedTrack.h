// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace songsweep {

/// A track as a sentence names it: "“Song” by Artist", "“Song”" where it has no artist.
inline std::string quotedTrack(std::string_view name, std::string_view artist) {
    std::string text = "“" + std::string(name) + "”";
    if (!artist.empty()) text += " by " + std::string(artist);
    return text;
}

} // namespace songsweep
