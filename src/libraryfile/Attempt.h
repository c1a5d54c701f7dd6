// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"

namespace songsweep {

/// Does something again where somebody else, who knows no lock, writes the library at the same time; gives up
/// after a few times.
template <class Step>
Result<void> attempt(const Step& step) {
    constexpr int mostAttempts = 3;
    Result<void> done;
    for (int i = 0; i < mostAttempts; ++i) {
        done = step();
        if (done || done.error().code != Error::Code::busy) break;
    }
    return done;
}

} // namespace songsweep
