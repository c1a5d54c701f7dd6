// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/interpreter/Value.h"

#include <array>

namespace songsweep::interpreter {

/// The months and the days of the week: words of the language, and parts of dates.

inline constexpr std::array months{
    Constant{"January", 1},   Constant{"February", 2}, Constant{"March", 3},     Constant{"April", 4},
    Constant{"May", 5},       Constant{"June", 6},     Constant{"July", 7},      Constant{"August", 8},
    Constant{"September", 9}, Constant{"October", 10}, Constant{"November", 11}, Constant{"December", 12}};

inline constexpr std::array weekdays{
    Constant{"Sunday", 1},   Constant{"Monday", 2}, Constant{"Tuesday", 3}, Constant{"Wednesday", 4},
    Constant{"Thursday", 5}, Constant{"Friday", 6}, Constant{"Saturday", 7}};

} // namespace songsweep::interpreter
