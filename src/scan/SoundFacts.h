// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace songsweep {

/// What a sound file says of itself. Texts are UTF-8 and hold nothing that XML does not know; they are empty,
/// and numbers 0, where the file says nothing.
struct SoundFacts {
    std::uint64_t size = 0;                   ///< bytes
    std::int64_t modificationNanoseconds = 0; ///< since 1970-01-01 00:00:00 UTC
    std::uint64_t soundHash = 0;
    std::int32_t duration = 0;   ///< milliseconds
    std::int32_t bitRate = 0;    ///< kbit/s
    std::int32_t sampleRate = 0; ///< Hz
    std::int32_t year = 0;
    std::int32_t trackNumber = 0;
    std::int32_t trackCount = 0;
    std::int32_t discNumber = 0;
    std::int32_t discCount = 0;
    std::int32_t beatsPerMinute = 0;
    std::int32_t rating = 0; ///< 0 to 100
    std::int32_t playCount = 0;
    std::int32_t artworkCount = 0;
    bool compilation = false;
    std::string name;
    std::string artist;
    std::string albumArtist;
    std::string album;
    std::string genre;
    std::string composer;
    std::string comment;
    std::string kind; ///< in iTunes' words: "MPEG audio file"
};

} // namespace songsweep
