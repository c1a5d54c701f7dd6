// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/interpreter/Applications.h"

#include <functional>

namespace songsweep::interpreter {

/// The system's date and time, local.
Date systemDate();

/// What a running text may use of the world outside. Nodes reach all of it through their context and nothing
/// past it, so that a test, or another system, puts its own in place. A new service is a member here.
struct Services {
    Applications applications;
    std::function<Date()> now = systemDate; ///< local time, for `current date`
};

} // namespace songsweep::interpreter
