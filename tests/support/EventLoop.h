// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>

namespace songsweep::test {

/// Runs the main thread's event loop until the condition holds, looked at after each round of events.
///
/// Returns whether it held; the limit only keeps a broken program from hanging the tests.
bool runEventLoopUntil(const std::function<bool()>& condition,
                       std::chrono::milliseconds limit = std::chrono::seconds(60));

/// Handles every event that waits now.
void handleWaitingEvents();

} // namespace songsweep::test
