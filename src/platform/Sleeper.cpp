// SPDX-License-Identifier: MIT
#include "platform/Sleeper.h"

#include <thread>

namespace songsweep {

void Sleeper::sleep(std::chrono::milliseconds time) { std::this_thread::sleep_for(time); }

} // namespace songsweep
