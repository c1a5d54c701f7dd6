// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/interpreter/Context.h"

#include <optional>
#include <string_view>

namespace songsweep::interpreter {

/// A property of a plain value: `length`, `rest`, `reverse` of a list, `length` of a text, `year`, `month`,
/// `day`, `weekday`, `hours`, `minutes`, `seconds` and `time` (of day, in seconds) of a date. Nothing for any
/// other name.
std::optional<Result<Value>> valueProperty(Context& context, Position position, const Value& value,
                                           std::string_view name);

/// A date from its text: as the language writes it ("Saturday, November 21, 2026 at 1:45:30 AM", the day of
/// the week may be left out), "2026-11-21 01:45:30", "11/21/2026 1:45 AM"; the time, or its seconds, may be
/// left out. Nothing for any other text, for a year of less than four digits, and for a day or a time that
/// there is not.
std::optional<Date> dateIn(std::string_view text);

} // namespace songsweep::interpreter
