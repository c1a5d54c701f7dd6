// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace songsweep::sample {

/// The text tags of an audio file, UTF-8.
struct ToneTags {
    std::string name;
    std::string artist;
    std::string album;
};

/// Writes one second of a quiet tone that any player opens: 16 bits, mono, 8000 Hz, about 16 kB.
///
/// A path that ends in ".aiff" makes an AIFF file, any other a WAV file; both carry the tags. Returns whether
/// everything reached the file.
bool writeTone(const std::string& path, double hertz, const ToneTags& tags);

} // namespace songsweep::sample
