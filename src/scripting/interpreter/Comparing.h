// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"
#include "scripting/interpreter/Context.h"
#include "scripting/interpreter/HostObject.h"

namespace songsweep::interpreter {

/// Compares two values: texts without regard to letter case, whole numbers and reals as numbers, lists item
/// by item. Values of different kinds are not equal; which of them is less is an error. Whether one contains
/// the other is asked of lists and of texts.
Result<bool> compared(Context& context, Position position, Comparison comparison, const Value& left,
                      const Value& right);

} // namespace songsweep::interpreter
