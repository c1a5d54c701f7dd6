// SPDX-License-Identifier: MIT
#pragma once

#include "app/views/ProgressView.h"

#include <string>

namespace songsweep::cli {

/// A progress bar on the console: the phase, the percentage and the time left in one line of standard error,
/// where that is a terminal. Main thread.
class ConsoleProgress final : public ProgressView {
  public:
    enum class Line { free, taken }; ///< taken by the log, whose lines are to stay whole
    explicit ConsoleProgress(Line line);

    void beginProgress() override;
    void endProgress() override;
    void setProgressValue(double percent) override;
    /// What is left of the time, where that is known.
    void setProgressCounts(const ProgressCounts& counts) override;
    void setProgressText(const std::string& text) override;

  private:
    void draw() const;

    std::string m_text;
    std::string m_timeLeft;
    double m_percent = 0; ///< the highest so far: a bar that runs backwards tells nothing
    bool m_isVisible;
    bool m_shown = false;
};

} // namespace songsweep::cli
