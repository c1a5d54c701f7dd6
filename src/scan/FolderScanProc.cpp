// SPDX-License-Identifier: MIT
#include "scan/FolderScanProc.h"

#include <chrono>

namespace songsweep {

void FolderScanProc::main() {
    using Clock = std::chrono::steady_clock;
    constexpr std::chrono::milliseconds rest{100};
    Clock::time_point told = Clock::now();
    auto result = std::make_shared<Result<ScanReport>>(
        scanFolder(m_place, {.isCancelled = [this] { return isCancelled(); },
                             .progress =
                                 [&](std::size_t read, std::size_t toRead) {
                                     if (Clock::now() - told < rest) return;
                                     told = Clock::now();
                                     m_center.post({read, toRead, {}, this});
                                 }}));
    m_center.post({0, 0, std::move(result), this});
}

} // namespace songsweep
