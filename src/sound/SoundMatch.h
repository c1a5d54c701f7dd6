// SPDX-License-Identifier: MIT
#pragma once

#include "sound/Fingerprint.h"

namespace songsweep {

enum class Sameness { same, unsure, differs };

/// How two fingerprints agree where they agree most.
struct SoundMatch {
    double agreement = 0; ///< of the bits, 0 to 1; half of them agree by chance
    int offset = 0;       ///< items by which the second begins later in the sound
    Sameness sameness = Sameness::differs;
};

/// Bits of one recording that agree, at least, and of another one, at most. Between them is nothing but
/// doubt.
///
/// Copies of one recording in eight forms, of other formats, late, trimmed and quieter, agreed in 92 % and
/// more, other pieces in at most 64 %, and another performance of one score, three in a hundred faster, in up
/// to 86 %. "Same" deletes a copy, and so stands near to the former.
inline constexpr double leastOfSame = 0.88;
inline constexpr double mostOfOthers = 0.70;

/// Lays the second over the first, up to eleven seconds earlier or later, since either may begin with five
/// seconds of silence or lack its start. They are the same only where they stay together: each piece of the
/// overlap agrees, and at the same place, while another performance of the same score runs ahead or falls
/// behind though most of its bits agree. An overlap of less than ten seconds, or one in which hardly anything
/// happens (silence, a tone), is never more than unsure. Some ten thousand steps for two minutes of sound.
SoundMatch matchSounds(const Fingerprint& a, const Fingerprint& b);

} // namespace songsweep
