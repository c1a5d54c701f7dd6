// SPDX-License-Identifier: MIT
#pragma once

#include "sample-library/SampleTrack.h"

namespace songsweep::sample {

/// What becomes of the copy's file.
enum class CopyFile { own, same, hardLink, missing };

/// A way in which a copy of a track differs from the track.
struct Variation {
    CopyFile file = CopyFile::own;
    void (*change)(SampleTrack& copy);
};

/// The variations in turn: each number has one, and all have come after a few.
const Variation& variation(int number);

} // namespace songsweep::sample
