// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

namespace songsweep {

/// How far a task is, in what it counts. A value.
struct ProgressCounts {
    int done = 0;
    int total = 0;
    std::optional<int> secondsLeft = {};
};

/// One of the two progress bars, with its text. See ApplicationView.
class ProgressView {
  public:
    ProgressView() = default;
    ProgressView(const ProgressView&) = delete;
    ProgressView& operator=(const ProgressView&) = delete;
    virtual ~ProgressView() = default;

    virtual void beginProgress() {}
    virtual void endProgress() {}
    /// A percentage, 0 to 100; it comes to both bars, shown or not.
    virtual void setProgressValue(double /*percent*/) {}
    /// "3 800 of 6 000", and what is left in seconds where that can be told by now.
    virtual void setProgressCounts(const ProgressCounts& /*counts*/) {}
    /// The phase, or what is done at all.
    virtual void setProgressText(const std::string& /*text*/) {}
};

} // namespace songsweep
