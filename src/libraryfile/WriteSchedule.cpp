// SPDX-License-Identifier: MIT
#include "libraryfile/WriteSchedule.h"

#include <algorithm>

namespace songsweep {

void WriteSchedule::changed(Clock::time_point now) {
    if (!m_first) m_first = now;
    m_last = now;
}

void WriteSchedule::written() {
    m_first.reset();
    m_notBefore.reset();
}

void WriteSchedule::failed(Clock::time_point now) {
    if (!m_first) m_first = now;
    m_notBefore = now + m_times.retry;
}

std::optional<WriteSchedule::Clock::time_point> WriteSchedule::due() const {
    if (!m_first) return {};
    const auto due = std::min(m_last + m_times.quiet, *m_first + m_times.longest);
    return m_notBefore ? std::max(due, *m_notBefore) : due;
}

} // namespace songsweep
