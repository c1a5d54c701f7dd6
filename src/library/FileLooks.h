// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>
#include <utility>
#include <vector>

namespace songsweep {

class Files;

/// Looks whether files exist, many at a time where a look is slow.
///
/// On a local disk a look takes a few microseconds, and threads would gain nothing; a network drive answers
/// after a millisecond, but answers many at once. So the first looks are timed, and the rest shared by
/// threads where they were slow. One thread asks.
class FileLooks {
  public:
    using Clock = std::chrono::steady_clock;

    /// A mean look longer than this is a slow one.
    static constexpr std::chrono::microseconds slowLook{200};
    static constexpr int mostThreads = 16;

    /// The files outlive it; `now` is asked before and after looks.
    explicit FileLooks(const Files& files, std::function<Clock::time_point()> now = Clock::now)
        : m_files(files)
        , m_now(std::move(now)) {}

    /// Whether something exists at each of the paths; nothing exists at an empty one.
    std::vector<char> exist(const std::vector<const char*>& paths);

  private:
    const Files& m_files;
    std::function<Clock::time_point()> m_now;
    bool m_areSlow = false;
};

} // namespace songsweep
