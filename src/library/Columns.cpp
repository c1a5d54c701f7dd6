// SPDX-License-Identifier: MIT
#include "library/Columns.h"

namespace songsweep {

std::string_view identifier(Column column) {
    static constexpr std::array<std::string_view, allColumns.size()> identifiers = {
        "checkbox",   "dtrack", "name",      "artist",    "album",      "time",     "bitrate",
        "sizestring", "rating", "playcount", "dateadded", "hasartwork", "location",
    };
    return identifiers.at(static_cast<std::size_t>(column));
}

} // namespace songsweep
