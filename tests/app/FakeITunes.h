// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/AppleScript.h"

#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace songsweep::test {

/// One track as the fake iTunes has it.
struct FakeTrack {
    std::string name = "Song";
    std::string artist = "Artist";
    std::string album = "Album";
    std::string time = "3:05";
    std::int64_t bitrate = 128;
    std::int64_t size = 1048576;
    std::int64_t dateAdded = 3319889366; ///< LongDateTime, local time
    std::int64_t rating = 60;
    std::string pid = "0000000000000001";
    std::int64_t playcount = 2;
    std::optional<std::string> location = "/music/song.mp3";
    int artworks = 0;
};

/// Answers the program's texts as iTunes would, from a list of tracks; fails on demand and keeps the texts.
///
/// It looks at what a text begins with or holds, which a fake may: the texts themselves are run by the
/// interpreter's tests.
class FakeITunes final : public AppleScript {
  public:
    std::vector<FakeTrack> tracks;
    std::vector<std::string> playlists = {"Library"};
    std::string version = "12.0";
    std::optional<std::int64_t> trackCount; ///< when iTunes is to report another number than it has
    /// Decides which texts fail.
    std::function<bool(const std::string&)> fails = [](const std::string&) { return false; };
    /// The reason of a text that fails.
    std::function<std::string(const std::string&)> failure = [](const std::string&) {
        return "told to fail";
    };
    std::function<void(const std::string&)> onScript = [](const std::string&) {};

    Result<Descriptor> executeAndReturnError(std::string_view source) override;
    std::vector<std::string> texts() const;

  private:
    Descriptor answer(const std::string& source) const;
    Descriptor batch(const std::string& source) const;

    mutable std::mutex m_mutex;
    std::vector<std::string> m_texts;
};

/// The track item that the batch script gives for a track.
Descriptor trackItem(const FakeTrack& track);

} // namespace songsweep::test
