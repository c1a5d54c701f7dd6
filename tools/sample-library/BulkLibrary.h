// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"

#include <cstdint>
#include <string>

namespace songsweep::sample {

/// What a library for measurements looks like.
struct BulkOptions {
    int tracks = 100000;
    std::string file;        ///< the library file to write
    std::string musicFolder; ///< absolute; made with files when missing
    std::uint64_t seed = 1;
    bool makesFiles = true; ///< nine files of ten; otherwise none is made
};

/// Writes a library of many tracks, always the same for one seed: one in ten is a duplicate by name and
/// artist of an earlier track, nine files of ten exist.
///
/// A million paths are not a million files: each artist's folder is a symbolic link to one folder of 90
/// files. Costs about a microsecond a track and no memory to speak of.
Result<void> makeBulkLibrary(const BulkOptions& options);

} // namespace songsweep::sample
