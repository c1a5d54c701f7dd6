// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace songsweep {

/// What a user chose in the mark dialog, or on the command line. A value.
struct MarkChoice {
    int markType = -1;     ///< 0 to 13 the value rules, 100 the kind rule, 200 the folder rule, -1 none
    bool exceptOne = true; ///< mark every copy but one of each group
    std::string text;      ///< the kind (100) or the folder (200), UTF-8; empty for the value rules

    bool operator==(const MarkChoice&) const = default;
};

} // namespace songsweep
