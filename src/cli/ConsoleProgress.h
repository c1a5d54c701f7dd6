// SPDX-License-Identifier: MIT
#pragma once

#include "app/views/ProgressView.h"

#include <string>

namespace songsweep::cli {

/// A progress bar on the console: the phase and the percentage in one line of standard error, where that is a
/// terminal. Main thread.
class ConsoleProgress final : public ProgressView {
  public:
    enum class Line { free, taken }; ///< taken by the log, whose lines are to stay whole
    explicit ConsoleProgress(Line line);

    void beginProgress() override;
    void endProgress() override;
    void setProgressValue(double percent) override;
    void setProgressText(const std::string& text) override;

  private:
    std::string m_text;
    double m_percent = 0; ///< the highest so far: a bar that runs backwards tells nothing
    bool m_isVisible;
    bool m_shown = false;
};

} // namespace songsweep::cli
