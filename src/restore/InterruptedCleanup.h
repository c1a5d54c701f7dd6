// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/RecordedCleanup.h"
#include "platform/Trash.h"

#include <cstddef>
#include <optional>
#include <string>

namespace songsweep {

/// A deletion, or a restore, that was killed, and what can be put back of it.
struct InterruptedCleanup {
    std::string library; ///< path
    RecordHeading::Kind kind = RecordHeading::Kind::cleanup;
    std::string date;   ///< when it began, "2026-01-31T12:00:00Z"
    std::string record; ///< path of that of the deletion; a restore's is that of what it was restoring
    std::string backup; ///< path of the library as it was before the deletion
    std::size_t tracks = 0;
    std::size_t files = 0;

    /// "3 tracks and 2 files", "1 track".
    std::string whatCanBePutBack() const;
};

/// Looks whether the newest deletion or restore of a library came to its end, or is still at it; nothing
/// where it did, where nothing of it can be put back, and where that cannot be told. Reads the ends of the
/// records; where one has none, costs the indexes of the library and of the backup. Any thread.
std::optional<InterruptedCleanup> findInterruptedCleanup(const std::string& library, Trash& trash);

} // namespace songsweep
