// SPDX-License-Identifier: MIT
#include "cli/ConsoleProgress.h"

#include "app/Progress.h"

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
}

void ConsoleProgress::setProgressValue(double percent) {
    m_percent = std::max(percent, m_percent);
    if (m_shown && !m_text.empty())
        std::fprintf(stderr, "\r\033[K%s %d %%", m_text.c_str(), wholePercent(m_percent));
}

void ConsoleProgress::setProgressText(const std::string& text) {
    m_text = text;
    setProgressValue(m_percent);
}

} // namespace songsweep::cli
