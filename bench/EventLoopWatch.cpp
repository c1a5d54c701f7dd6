// SPDX-License-Identifier: MIT
#include "EventLoopWatch.h"

#include <algorithm>

namespace songsweep::bench {

namespace {

constexpr double period = 1; ///< milliseconds
constexpr double frame = 16;
constexpr double standstill = 100;

} // namespace

void Stalls::add(double milliseconds) {
    longest = std::max(longest, milliseconds);
    if (milliseconds > frame) ++over16;
    if (milliseconds > standstill) ++over100;
}

EventLoopWatch::EventLoopWatch() {
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setInterval(static_cast<int>(period));
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { tick(); });
}

void EventLoopWatch::begin() {
    m_stalls = {};
    m_since.start();
    m_timer.start();
}

void EventLoopWatch::tick() {
    m_stalls.add(static_cast<double>(m_since.nsecsElapsed()) / 1e6 - period);
    m_since.start();
}

Stalls EventLoopWatch::end() {
    tick();
    m_timer.stop();
    return m_stalls;
}

} // namespace songsweep::bench
