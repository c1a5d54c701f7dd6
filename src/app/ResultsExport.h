// SPDX-License-Identifier: MIT
#pragma once

#include "library/TrackRecord.h"
#include "platform/Result.h"

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace songsweep {

/// What is exported of the results, and where to. The rows outlive it.
struct ResultsExport {
    enum class Format { csv, json, html };

    std::string path; ///< of the file, which appears whole or not at all
    Format format = Format::csv;
    const std::vector<TrackRecord*>& rows;
    int tracks = 0; ///< of the library
    int listed = 0; ///< that were compared
    std::vector<std::string> notes = {};
    /// Why a row is marked, or stays.
    std::function<std::string(int row)> reason = {};
    /// By row, how a copy differs from the plainest of its group; not set where small differences count.
    std::function<std::vector<std::vector<std::string>>()> differences = {};
    bool hasSounds = false;                                          ///< whether sounds were compared
    std::function<void(std::size_t row)> onRow = [](std::size_t) {}; ///< called when it is written
    /// Whether the user gave up the writing.
    std::function<bool()> isInterrupted = [] { return false; };
};

/// Writes it, on any thread. The windows do not know how: the writers are those of the command line.
using Exporter = std::function<Result<void>(const ResultsExport& results)>;

/// The format of a file's ending, "csv" for one that says nothing.
ResultsExport::Format exportFormat(const std::string& path);

} // namespace songsweep
