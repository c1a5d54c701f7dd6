// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace songsweep {

/// The AppleScript texts of a deletion; IDs and paths go in so that they read back as themselves.
namespace deleteTexts {

inline constexpr const char* mute = "tell application \"Finder\" \nset volume with output muted \nend tell";
inline constexpr const char* unmute =
    "tell application \"Finder\" \nset volume without output muted \nend tell";

std::string deleteTrack(std::string_view pid);
std::string deleteFile(std::string_view hfsPath);

} // namespace deleteTexts

/// Whether a record's location is a path at all: "" and "msng" stand for a track without a file.
bool isPath(std::string_view location);

/// The HFS path by which a file can be named in a text, or nothing.
///
/// A text is sent only where its HFS path leads back to that very path; another one could name another file.
std::optional<std::string> nameableHfsPath(std::string_view posixPath);

/// Whether nameableHfsPath has an answer.
bool canNameFile(std::string_view posixPath);

} // namespace songsweep
