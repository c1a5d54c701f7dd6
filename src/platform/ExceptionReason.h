// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace songsweep {

/// What the exception in flight says of itself, in words for people; "out of memory" where memory ran out, in
/// which case nothing is allocated. Only inside a `catch`. Any thread.
std::string exceptionReason();

} // namespace songsweep
