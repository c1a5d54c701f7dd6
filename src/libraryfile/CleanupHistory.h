// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/RecordedCleanup.h"

#include <string>
#include <vector>

namespace songsweep {

/// The name by which a user calls the clean-up of that record: its own without folder and extension.
std::string cleanupName(const std::string& recordPath);

/// What a list of clean-ups shows of one of them.
struct CleanupSummary {
    std::string path; ///< of the record
    RecordHeading heading;
    std::optional<RecordEnd> end; ///< nothing where the program was killed or is still at it
    bool hasBackup = false;       ///< the backup still lies beside the record
    bool isRestored = false;      ///< a later restore of it has come to its end

    /// The name by which a user calls it.
    std::string name() const { return cleanupName(path); }
    /// It deleted; a restore did not.
    bool isCleanup() const { return heading.kind == RecordHeading::Kind::cleanup; }
    /// A clean-up that may have taken away what no restore has brought back.
    bool isOpen() const { return isCleanup() && !isRestored && !(end && end->tracks == 0); }
};

/// What a record says at its beginning and its end; nothing where it is none. Whether it is restored is not
/// known from it alone.
std::optional<CleanupSummary> cleanupOfRecord(const std::string& record);

/// The clean-ups and restores of a library, by the records beside it, the newest first. Reads the beginning
/// and the end of each record, and no more. Files that are no records are left out; an error where the folder
/// cannot be read.
Result<std::vector<CleanupSummary>> cleanupsOf(const std::string& library);

} // namespace songsweep
