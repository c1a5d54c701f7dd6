// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/interpreter/ast/Statement.h"

#include <cstddef>

namespace songsweep::interpreter {

/// A text that has been read. It holds references to the applications it was read with.
struct Program {
    Block body;
    std::size_t variableCount = 0;
};

} // namespace songsweep::interpreter
