// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QTimer>

#include <vector>

namespace songsweep::bench {

/// For how long the event loop of the main thread did not come to a key or a click. A value.
struct Stalls {
    double longest = 0; ///< milliseconds
    int over16 = 0;     ///< more of them are frames that were missed
    int over100 = 0;    ///< more of them are felt as standing still

    void add(double milliseconds);
};

/// Watches the event loop by a timer of a millisecond: what comes late by so much, a key would have waited
/// for, too.
///
/// The timer costs about a hundredth of a core. Main thread.
class EventLoopWatch {
  public:
    EventLoopWatch();

    void begin();
    /// With what the loop has not yet come back from.
    Stalls end();

  private:
    void tick();

    QTimer m_timer;
    QElapsedTimer m_since;
    Stalls m_stalls;
};

} // namespace songsweep::bench
