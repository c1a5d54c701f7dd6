// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

namespace songsweep::sample {

enum class SoundKind : std::uint8_t {
    aac,
    aiff,
    alac,
    ape,
    flac,
    mp3,
    musepack,
    oggFlac,
    opus,
    speex,
    vorbis,
    wav,
    wavPack,
    wma
};
inline constexpr int soundKinds = static_cast<int>(SoundKind::wma) + 1;

/// A small sound file of any format.
struct SoundSample {
    SoundKind kind = SoundKind::mp3;
    int seconds = 180;
    int kilobits = 128;                           ///< as the headers tell, for the formats that say so
    std::map<std::string, std::string> tags = {}; ///< by TagLib's names: "TITLE", "TRACKNUMBER", …
    int pictures = 0;
};

/// "flac": the ending of such files' names.
std::string_view endingOf(SoundKind kind);

/// The bytes of the file without tags: true headers that tell of so many seconds, and some kilobytes of
/// silence or filler in the place of the sound, so that readers of tags take it for what it says.
std::string bareSound(const SoundSample& sample);

/// Writes the file with its tags. Whether everything reached it.
bool writeSound(const std::string& path, const SoundSample& sample);

} // namespace songsweep::sample
