// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace songsweep {

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
    /// The phase, or what is done at all.
    virtual void setProgressText(const std::string& /*text*/) {}
};

} // namespace songsweep
