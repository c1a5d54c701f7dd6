// SPDX-License-Identifier: MIT
#include "scripting/interpreter/Services.h"

#include "platform/LocalTime.h"

#include <ctime>

namespace songsweep::interpreter {

Date systemDate() { return {longDateTime(std::time(nullptr))}; }

} // namespace songsweep::interpreter
