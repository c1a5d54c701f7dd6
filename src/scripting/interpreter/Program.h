// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/interpreter/Applications.h"
#include "scripting/interpreter/statements/Statement.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace songsweep::interpreter {

/// A text that has been read. It holds references to the applications and to the source it was read with.
struct Program {
    Block body;
    std::size_t variableCount = 0;
    std::vector<std::string_view> texts; ///< the values in quotes, as they stand in the source
};

/// Reads a text (UTF-8) by the grammar in docs/applescript.md. A construct that no rule fits is an error with
/// its place and what was expected there. Linear in the length of the text; depth is bounded (Limits.h).
Result<Program> parsedProgram(std::string_view source, const Applications& applications);

} // namespace songsweep::interpreter
