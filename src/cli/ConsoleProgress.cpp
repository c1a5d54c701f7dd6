// SPDX-License-Identifier: MIT
#include "cli/ConsoleProgress.h"

#include "app/Progress.h"
#include "library/TimeLeft.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>

namespace songsweep::cli {

ConsoleProgress::ConsoleProgress(Line line)
    : m_isVisible(line == Line::free && ::isatty(STDERR_FILENO) == 1) {}

void ConsoleProgress::beginProgress() {
    m_shown = m_isVisible;
    setProgressValue(m_percent);
}

void ConsoleProgress::endProgress() {
    if (m_shown) std::fputs("\r\033[K", stderr);
    m_shown = false;
    m_percent = 0;
    m_timeLeft.clear();
}

void ConsoleProgress::setProgressValue(double percent) {
    m_percent = std::max(percent, m_percent);
    draw();
}

void ConsoleProgress::setProgressCounts(const ProgressCounts& counts) {
    m_timeLeft = counts.secondsLeft ? ", " + timeLeftText(*counts.secondsLeft) : std::string();
    draw();
}

void ConsoleProgress::draw() const {
    if (!m_shown || m_text.empty()) return;
    std::fprintf(stderr, "\r\033[K%s %d %%%s", m_text.c_str(), wholePercent(m_percent), m_timeLeft.c_str());
}

void ConsoleProgress::setProgressText(const std::string& text) {
    m_text = text;
    setProgressValue(m_percent);
}

} // namespace songsweep::cli
