// SPDX-License-Identifier: MIT
#include "app/ProgressDisplay.h"

#include "app/views/ProgressView.h"

namespace songsweep {

namespace {

constexpr int progressIntervalMilliseconds = 500;

} // namespace

ProgressDisplay::ProgressDisplay(ProgressView& progress, ProgressView& formprogress)
    : m_progressView(progress)
    , m_formprogressView(formprogress) {
    m_progressTimer.setInterval(progressIntervalMilliseconds);
    m_progressTimer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_progressTimer, &QTimer::timeout, &m_progressTimer, [this] { updateProgress(); });
}

ProgressView& ProgressDisplay::view(ProgressBar bar) {
    return bar == ProgressBar::progress ? m_progressView : m_formprogressView;
}

void ProgressDisplay::showProgressWindow(ProgressBar bar) {
    m_progressTimer.start();
    m_shownBar = bar;
    m_elapsed.start();
    setValue(0);
    view(bar).setProgressCounts({});
    view(bar).beginProgress();
}

void ProgressDisplay::closeProgressWindow(ProgressBar bar) {
    if (m_shownBar != bar) return;
    m_shownBar.reset();
    m_progressTimer.stop();
    view(bar).endProgress();
}

void ProgressDisplay::setText(ProgressBar bar, const std::string& text) { view(bar).setProgressText(text); }

void ProgressDisplay::setValue(double percent) {
    m_progressView.setProgressValue(percent);
    m_formprogressView.setProgressValue(percent);
}

void ProgressDisplay::updateProgress() {
    setValue(m_progress.percent());
    if (m_shownBar) view(*m_shownBar).setProgressCounts(counts());
}

ProgressCounts ProgressDisplay::counts() const {
    return {.done = static_cast<int>(m_progress.prc),
            .total = m_progress.total,
            .secondsLeft = secondsLeft(m_progress.percent(), m_elapsed.elapsed())};
}

} // namespace songsweep
