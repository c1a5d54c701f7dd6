// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"

#include <string>

namespace songsweep {

/// An error number of the system as a value: "PATH: No space left on device".
Error systemError(int number, const std::string& path);
/// The same of an action: "cannot write PATH: No space left on device".
Error systemError(int number, const std::string& action, const std::string& path);

} // namespace songsweep
