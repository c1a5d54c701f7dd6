// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace songsweep::test {

/// The texts that the program sends, letter by letter.

inline const std::string playlistNamesText =
    "tell application \"iTunes\" \nget name of every user playlist \nend tell";
inline const std::string plainPlaylistNamesText =
    "tell application \"iTunes\" \nget name of every user playlist whose smart is false \nend tell";
inline const std::string libraryCountText =
    "tell application \"iTunes\" \nget count of tracks of playlist 1 \nend tell";
inline const std::string versionText = "tell application \"iTunes\" \nget version \nend tell \n";
inline const std::string stopText = "tell application \"iTunes\" to stop";
inline const std::string muteText = "tell application \"Finder\" \nset volume with output muted \nend tell";
inline const std::string unmuteText =
    "tell application \"Finder\" \nset volume without output muted \nend tell";

std::string playlistIndexText(const std::string& name);
std::string playlistCountText(int playlist);
std::string batchText(int playlist, int first, int last);
std::string locationText(const std::string& persistentId);
std::string playText(const std::string& hfsPath);
std::string deleteTrackText(const std::string& persistentId);
std::string deleteFileText(const std::string& hfsPath);

} // namespace songsweep::test
