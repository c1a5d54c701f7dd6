// SPDX-License-Identifier: MIT
#pragma once

#include "cli/Options.h"
#include "library/TrackRecord.h"

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace songsweep::cli {

class Output;

/// What a search found, for the writers. The rows outlive it.
struct SearchReport {
    int tracks = 0;                       ///< entries of the library file
    int listed = 0;                       ///< records after processing
    std::vector<std::string> notes = {};  ///< what was not searched, and why
    std::vector<std::string> unread = {}; ///< a line for each file of a folder that could not be read
    const std::vector<TrackRecord*>& rows;
    /// Why the rule marks a row; not set where no rule was asked for.
    std::function<std::string(int row)> reason = {};
    /// By row, how a copy differs from the plainest of its group; empty where small differences count.
    std::vector<std::vector<std::string>> differences = {};
    bool hasSounds = false; ///< whether sounds were compared
    /// By row, the playlists that hold the copy; empty where nobody asked.
    std::vector<std::vector<std::string>> playlists = {};
    std::function<void(std::size_t row)> onRow = [](std::size_t) {}; ///< called when it is written
};

/// Writes the report in a format.
void writeReport(Output& output, const SearchReport& report, OutputFormat format);

/// Groups as an aligned table for people, and a line that sums them up.
void writeText(Output& output, const SearchReport& report);

/// The differences of a row in one text; empty for none.
std::string differencesOf(const SearchReport& report, std::size_t row);

/// One JSON object, every key of every record.
void writeJson(Output& output, const SearchReport& report);

/// One row a track under a header (RFC 4180).
void writeCsv(Output& output, const SearchReport& report);

/// A page with a table for people, its groups in bands.
void writeHtml(Output& output, const SearchReport& report);

/// "12 songs in 5 groups, 3 files missing"; marked rows are counted where a rule was asked for.
std::string summaryLine(const SearchReport& report);

} // namespace songsweep::cli
