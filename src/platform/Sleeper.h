// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

namespace songsweep {

/// Sleeps. An interface, so that tests need not wait for real seconds. Thread-safe.
class Sleeper {
  public:
    Sleeper() = default;
    Sleeper(const Sleeper&) = delete;
    Sleeper& operator=(const Sleeper&) = delete;
    virtual ~Sleeper() = default;

    virtual void sleep(std::chrono::milliseconds time);
};

} // namespace songsweep
