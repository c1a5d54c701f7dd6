// SPDX-License-Identifier: MIT
#pragma once

#include "sample-library/SoundSample.h"

namespace songsweep::sample {

/// An MP4 file of AAC or Apple Lossless sound around those bytes of it.
std::string mp4Sound(const SoundSample& sample, const std::string& sound);

} // namespace songsweep::sample
