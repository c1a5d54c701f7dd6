// SPDX-License-Identifier: MIT
#pragma once

#include "EventLoopWatch.h"
#include "app/AppController.h"
#include "app/Program.h"
#include "app/WindowActions.h"
#include "app/Windows.h"

#include <functional>
#include <memory>
#include <string>

namespace songsweep {
class Log;
}

namespace songsweep::bench {

/// The measurement that has a limit of its own.
inline constexpr const char* firstPaint = "start to first paint";

/// The program with its windows, as it is started, and what a user does with it from start to end.
///
/// Prints a line for each measurement, which the process of all rounds reads. Main thread.
class StallRound {
  public:
    /// `library` loses tracks; `other` is opened after that.
    StallRound(const std::string& library, std::string other, Log& log);

    void run();

  private:
    using Action = std::function<void()>;
    using Condition = std::function<bool()>;

    void measure(
        const char* what, const Action& act, const Condition& holds = [] { return true; });
    void measureSearch(const char* what);
    void start();
    void sort();
    void mark();
    void lookAtCopies();
    void filter();
    void remove();
    void openOther();
    void close();
    MainWindow& window() { return m_windows.mainWindow(); }

    Program m_program;
    Windows m_windows;
    std::unique_ptr<AppController> m_controller;
    std::unique_ptr<WindowActions> m_actions;
    std::string m_other;
    EventLoopWatch m_watch;
};

} // namespace songsweep::bench
