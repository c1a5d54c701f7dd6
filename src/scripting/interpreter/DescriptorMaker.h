// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"
#include "scripting/Descriptor.h"
#include "scripting/interpreter/Context.h"

namespace songsweep::interpreter {

/// A value as the outside gets it: objects as their notation. An error for lists that lie too deep, as one
/// that holds itself does.
Result<Descriptor> descriptorOf(Context& context, const Value& value);

} // namespace songsweep::interpreter
