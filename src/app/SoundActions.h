// SPDX-License-Identifier: MIT
#pragma once

#include "app/ProgressSheet.h"
#include "app/SoundDialog.h"
#include "library/DisplayedList.h"
#include "operations/NotificationCenter.h"
#include "operations/OperationQueue.h"
#include "sound/Listening.h"
#include "sound/SoundProc.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

namespace songsweep {

class AppController;
class Log;
class Windows;

/// The window's comparison of sounds: asks whose, has them compared on a worker under a sheet that says how
/// far that is, and gives what was found to the controller.
///
/// What each file sounds like is remembered for the run, so that comparing again, or more, costs only what is
/// new, also after a cancellation. Main thread; on a queue of its own, since the rows stay the user's.
class SoundActions {
  public:
    /// `listener` is the program that decodes; where it is missing, the window offers nothing of all that.
    SoundActions(Windows& windows, AppController& controller, Log& log, const std::string& listener);

    /// Asks whose sound is to be compared; beeps where there is nothing to compare.
    void begin();

  private:
    void compare(SoundDialog::Scope scope);
    void handle(const SoundEvent& event);
    void showProgress(const SoundEvent& event);
    void connectWindows();
    void cancel();

    Windows& m_windows;
    AppController& m_controller;
    SoundDialog m_dialog;
    ProgressSheet m_sheet;
    DisplayedList m_compared;               ///< the rows whose sounds are being compared
    std::optional<std::uint64_t> m_awaited; ///< the serial of the worker that does it; nothing after a cancel
    std::chrono::steady_clock::time_point m_begun;
    Listening m_listening;
    NotificationCenter<SoundEvent> m_center;
    OperationQueue m_queue; ///< last: its end waits for its worker
};

} // namespace songsweep
