// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"
#include "scripting/interpreter/Context.h"

namespace songsweep::interpreter {

enum class Operation { add, subtract, multiply, divide, wholeDivide, remainder, power };

/// Evaluates an operator between numbers, and texts that are numbers. Whole numbers stay whole but for `/`
/// and `^`, and where the result leaves 64 bits. To a date seconds can be added; the difference of two dates
/// is seconds.
Result<Value> evaluated(Context& context, Position position, Operation operation, const Value& left,
                        const Value& right);

/// The number with the other sign.
Result<Value> negated(Context& context, Position position, const Value& value);

} // namespace songsweep::interpreter
