// SPDX-License-Identifier: MIT
#pragma once

#include "sample-library/SoundSample.h"

#include <cstdint>

namespace songsweep::sample {

enum class LastBlock : bool { no, yes };

/// The block of a FLAC stream that tells what sound it is: stereo, 16 bits, 44100 Hz.
std::string flacStreamInfo(std::uint64_t samples, LastBlock last);

/// An Ogg file of Vorbis, Opus, Speex or FLAC sound around those bytes of it.
std::string oggSound(const SoundSample& sample, const std::string& sound);

} // namespace songsweep::sample
