// SPDX-License-Identifier: MIT
#include "libraryfile/WriteSchedule.h"

#include <algorithm>

namespace songsweep {

void WriteSchedule::changed(Clock::time_point now) {
    if (!m_first) m_first = now;
    m_last = now;
}

void WriteSchedule::written() { m_first.reset(); }

std::optional<WriteSchedule::Clock::time_point> WriteSchedule::due() const {
    if (!m_first) return {};
    return std::min(m_last + m_times.quiet, *m_first + m_times.longest);
}

} // namespace songsweep
