// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/interpreter/Token.h"
#include "scripting/interpreter/Value.h"

#include <optional>
#include <string_view>

namespace songsweep::interpreter {

/// A number as it stands in a text; a whole one that does not fit becomes a real. Nothing where it does not
/// fit into a real either.
std::optional<Value> numberValue(const Token& token);

/// The value of a word that has one from the start: `space`, `minutes`, `Monday`. Nothing for any other word.
std::optional<Value> constantNamed(std::string_view word);

} // namespace songsweep::interpreter
