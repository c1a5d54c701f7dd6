// SPDX-License-Identifier: MIT
#include "app/ResultsExport.h"

#include "library/CaseFolding.h"

namespace songsweep {

ResultsExport::Format exportFormat(const std::string& path) {
    const std::string name = foldedKey(path);
    if (name.ends_with(".json")) return ResultsExport::Format::json;
    if (name.ends_with(".html") || name.ends_with(".htm")) return ResultsExport::Format::html;
    return ResultsExport::Format::csv;
}

} // namespace songsweep
