// SPDX-License-Identifier: MIT
#pragma once

#include "app/Progress.h"
#include "library/WorkerEvent.h"

#include <QElapsedTimer>
#include <QTimer>

#include <optional>
#include <string>

namespace songsweep {

class ProgressView;
struct ProgressCounts;

/// The two progress bars: the one in the sheet, while deleting, and the one in the main window, while
/// searching.
enum class ProgressBar { progress, formprogress };

/// How far a search or a deletion is, and the timer that redraws its bar twice a second, however many events
/// arrive. Main thread.
class ProgressDisplay {
  public:
    ProgressDisplay(ProgressView& progress, ProgressView& formprogress);

    void showProgressWindow(ProgressBar bar);
    /// Nothing where that bar is not shown: a cancel that comes after the worker's last look at it closes the
    /// display twice.
    void closeProgressWindow(ProgressBar bar);
    void setText(ProgressBar bar, const std::string& text);
    /// Both bars stand there until the next redraw.
    void setValue(double percent);
    /// For the end of the program: no redraw comes any more.
    void stop() { m_progressTimer.stop(); }

    void count(int units) { m_progress.prc += units; }
    void onProgressx(ProgressUnits units) { count(units.prg); }
    Progress& progress() { return m_progress; }
    const Progress& progress() const { return m_progress; }

  private:
    ProgressView& view(ProgressBar bar);
    void updateProgress();
    ProgressCounts counts() const;

    ProgressView& m_progressView;
    ProgressView& m_formprogressView;
    Progress m_progress;
    std::optional<ProgressBar> m_shownBar;
    QElapsedTimer m_elapsed; ///< since the bar was shown
    QTimer m_progressTimer;
};

} // namespace songsweep
