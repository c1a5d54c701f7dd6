// SPDX-License-Identifier: MIT
#pragma once

#include "delete/DeleteReport.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace songsweep {

/// What a deletion came to, in the words of the window. A value.
struct DeletionSummary {
    /// "56 tracks deleted", "12 of 56 tracks deleted" where some are left, or "Cancelled: 12 of 56 tracks
    /// deleted".
    std::string title;
    std::string rest; ///< "36 files in the Trash (0.6 MB), 3 files kept."; "" where there is no more to say

    /// Both as one line.
    std::string line() const;
};

/// `trashedBytes` is the size of the files in the Trash; nothing where nobody knows.
DeletionSummary summaryOf(const DeleteReport& report, std::optional<std::uint64_t> trashedBytes);

/// A line for each track with its outcome and reason, those that did not go as asked first.
std::vector<std::string> detailsOf(const DeleteReport& report);

} // namespace songsweep
