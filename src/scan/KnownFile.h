// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/LibraryFile.h"

#include <cstdint>
#include <string>

namespace songsweep {

/// A track of a folder's library: what the scan must know of it, so that an unchanged file need not be read
/// again. Texts and all other values stand in the library file alone.
struct KnownFile {
    static constexpr std::int64_t never = INT64_MIN;

    std::string path;                             ///< below the folder
    std::uint64_t size = 0;                       ///< bytes
    std::int64_t modificationNanoseconds = never; ///< `never` where the file is to be read again in any case
    std::uint64_t persistentId = 0;
    std::int64_t trackId = 0;
    std::int64_t dateAdded = 0; ///< seconds since 1970-01-01 00:00:00 UTC
    std::int64_t duration = 0;  ///< milliseconds
    std::uint64_t soundHash = 0;
    ByteRange entry; ///< in the library file; empty where it has none yet

    bool operator==(const KnownFile&) const = default;
};

} // namespace songsweep
