// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace songsweep {

class AppleScript;
class Log;

/// The small questions that the controller asks iTunes before a search, and the two commands that it sends
/// it.
///
/// Each is one script, run synchronously; a failed one reads as "no answer". Apart from the controller, so
/// that every text and every way of reading an answer is tested by itself. Any thread.
class ITunesQueries {
  public:
    ITunesQueries(AppleScript& scripts, Log& log)
        : m_scripts(scripts)
        , m_log(log) {}

    /// The name of the first user playlist, which is the library's own; nothing where there is none.
    std::optional<std::string> getMusicPlaylistName() const;

    /// The names of the user playlists that are not smart, in iTunes' order; each is logged.
    std::vector<std::string> userPlaylistNames() const;

    /// The index, from 1, of the first playlist of that name, or -1. The name goes into the script as it
    /// is, so that one with a quote or a backslash is found nowhere.
    std::int32_t getMusicLibraryInt(const std::string& name) const;

    /// The number of tracks of playlist 1, -1 when iTunes does not answer.
    std::int32_t getTracksCount() const;

    /// The number before the first point of iTunes' version, 0 when it does not tell.
    std::int32_t majorVersion() const;

    /// Tells iTunes to stop playing.
    void iTunesStop() const;

    /// Plays the file at an HFS path.
    void play(const std::string& hfsPath) const;

  private:
    AppleScript& m_scripts;
    Log& m_log;
};

} // namespace songsweep
