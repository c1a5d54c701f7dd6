// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace songsweep::test {

/// The texts that the program sends to iTunes and Finder, letter for letter.

inline const std::string userPlaylistNamesText =
    "tell application \"iTunes\" \nget name of every user playlist \nend tell";
inline const std::string plainPlaylistNamesText =
    "tell application \"iTunes\" \nget name of every user playlist whose smart is false \nend tell";
inline const std::string trackCountText =
    "tell application \"iTunes\" \nget count of tracks of playlist 1 \nend tell";
inline const std::string versionText = "tell application \"iTunes\" \nget version \nend tell \n";
inline const std::string stopText = "tell application \"iTunes\" to stop";
inline const std::string muteText = "tell application \"Finder\" \nset volume with output muted \nend tell";
inline const std::string unmuteText =
    "tell application \"Finder\" \nset volume without output muted \nend tell";

std::string playlistIndexText(const std::string& name);
std::string playlistTrackCountText(int playlist);
std::string batchText(int playlist, int first, int last);
std::string locationText(const std::string& persistentId);
std::string playText(const std::string& hfsPath);
std::string deleteTrackText(const std::string& persistentId);
std::string deleteFileText(const std::string& hfsPath);

/// All of them, filled in.
std::vector<std::string> allTexts();

} // namespace songsweep::test
