// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace songsweep::test {

/// A performance of a made-up piece: chords, a melody with overtones, a drum and some noise. One score sounds
/// the same at each tempo, but for the tempo.
struct Piece {
    unsigned score = 0;
    double tempo = 1; ///< 1.03 is three in a hundred faster
};

inline constexpr int pieceSampleRate = 22050;

/// Samples from -1 to 1, always the same for one piece.
std::vector<float> play(const Piece& piece, double seconds);

/// Writes a WAV file of 16 bits.
void writeWave(const std::string& path, const std::vector<float>& samples);

/// The forms of a piece that copies have, each a file in the folder; made of the wave file by the encoders.
/// The paths.
std::vector<std::string> encodeForms(const std::string& wave, const std::string& folder,
                                     const std::string& name);

} // namespace songsweep::test
