// SPDX-License-Identifier: MIT
#include "cli/ExportResults.h"

#include "cli/Output.h"
#include "cli/SearchReport.h"

namespace songsweep::cli {

namespace {

OutputFormat formatOf(ResultsExport::Format format) {
    switch (format) {
    case ResultsExport::Format::csv:
        return OutputFormat::csv;
    case ResultsExport::Format::json:
        return OutputFormat::json;
    case ResultsExport::Format::html:
        return OutputFormat::html;
    }
    return OutputFormat::csv;
}

} // namespace

Result<void> exportResults(const ResultsExport& results) {
    Result<Output> output = Output::open(results.path, results.isInterrupted);
    if (!output) return output.error();
    const SearchReport report = {.tracks = results.tracks,
                                 .listed = results.listed,
                                 .notes = results.notes,
                                 .rows = results.rows,
                                 .reason = results.reason,
                                 .differences = results.differences ? results.differences()
                                                                    : std::vector<std::vector<std::string>>(),
                                 .hasSounds = results.hasSounds,
                                 .onRow = results.onRow};
    writeReport(output.value(), report, formatOf(results.format));
    return output.value().finish();
}

} // namespace songsweep::cli
