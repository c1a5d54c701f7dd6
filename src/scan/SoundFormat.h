// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace songsweep {

/// The formats of sound that a folder's tracks may have. Those of "ogg" are told apart by their contents.
enum class SoundFormat : std::uint8_t { aiff, ape, flac, mp4, mpeg, musepack, ogg, wav, wavPack, wma };

/// The forms in which players keep lists of files.
enum class PlaylistFormat : std::uint8_t { m3u, pls, xspf };

/// What the ending of a file's name says; nothing for any other. Letter case does not count.
std::optional<SoundFormat> soundFormatOf(std::string_view name);
std::optional<PlaylistFormat> playlistFormatOf(std::string_view name);

} // namespace songsweep
