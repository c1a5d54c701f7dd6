// SPDX-License-Identifier: MIT
#include "sound/SoundProc.h"

#include <chrono>

namespace songsweep {

void SoundProc::main() {
    using Clock = std::chrono::steady_clock;
    constexpr std::chrono::milliseconds rest{100};
    Clock::time_point told = Clock::now();
    auto result = std::make_shared<Result<ComparedSounds>>(
        compareSounds(m_copies, m_listening,
                      {.cancelled = [this] { return isCancelled(); },
                       .progress =
                           [&](std::size_t done, std::size_t total) {
                               if (Clock::now() - told < rest) return;
                               told = Clock::now();
                               m_center.post({done, total, {}, this});
                           }}));
    m_center.post({0, 0, std::move(result), this});
}

} // namespace songsweep
