// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace songsweep {

/// How much a clean-up would write down.
struct CleanupSize {
    std::size_t tracks = 0;
    std::uint64_t textBytes = 0; ///< of their IDs, names, artists and, where files go, paths
};

/// The room that a clean-up takes beside the library while it is on.
struct CleanupRoom {
    std::string folder; ///< path; "" where it takes none
    std::uint64_t bytes = 0;
};

/// Whether a clean-up of the library could begin, as far as can be seen without changing anything: whether
/// its file can be replaced (folder, owner, group, immutable, mounted over, file system read-only), and
/// whether there is room for the backup, a new version and the record. For a dry run;
/// `LibraryDocument::beginCleanup` tries it. Some system calls.
Result<CleanupRoom> foreseeCleanup(const std::string& library, const CleanupSize& size);

} // namespace songsweep
