// SPDX-License-Identifier: MIT
#pragma once

#include "dupes/MarkType.h"

#include <string>

namespace songsweep {

/// What a user chose in the mark dialog, or on the command line. A value.
struct MarkChoice {
    MarkType markType = MarkType::none;
    bool exceptOne = true; ///< mark every copy but one of each group
    std::string text;      ///< of the kind or the folder rule, UTF-8; empty for the value rules

    bool operator==(const MarkChoice&) const = default;
};

} // namespace songsweep
