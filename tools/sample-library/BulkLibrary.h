// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"

#include <cstdint>
#include <string>

namespace songsweep::sample {

/// How many of a library's files are there.
enum class BulkFiles { none, nineOfTen, all };

/// What a library for measurements looks like.
struct BulkOptions {
    int tracks = 100000;
    std::string file;        ///< the library file to write
    std::string musicFolder; ///< absolute; made with files when missing
    std::uint64_t seed = 1;
    BulkFiles files = BulkFiles::nineOfTen;
};

/// Writes a library of many tracks, always the same for one seed: one in ten is a duplicate by name and
/// artist of an earlier track.
///
/// A million paths are not a million files: each artist's folder is a symbolic link to one folder of a
/// hundred files at most. Costs about a microsecond a track and no memory to speak of.
Result<void> makeBulkLibrary(const BulkOptions& options);

} // namespace songsweep::sample
