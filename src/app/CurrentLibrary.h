// SPDX-License-Identifier: MIT
#pragma once

#include "app/Workers.h"
#include "library/LibraryOverview.h"
#include "platform/Result.h"

#include <cstdint>
#include <functional>
#include <optional>

namespace songsweep {

class ApplicationView;
class LibraryView;
struct ControllerServices;
struct ControllerViews;

/// The library that the program works with, as its windows show it.
///
/// It is indexed on a worker, on a queue of its own, as soon as it is known, so that no window waits for it.
/// Main thread.
class CurrentLibrary {
  public:
    /// Whether a library that cannot be read is told by an alert, too.
    enum class Telling { page, alert };

    CurrentLibrary(const ControllerServices& services, const ControllerViews& views, Workers workers);

    /// The library is another one, or the first: shows it, and has it read.
    void begin(Telling telling);
    /// It has changed: what is told of it follows.
    void refresh();
    /// For the end of the program.
    void stop() { m_queue.cancelAllOperations(); }

    const LibraryOverview& overview() const { return m_overview; }
    bool isMissing() const { return m_overview.state == LibraryOverview::State::none; }
    bool isReading() const { return m_overview.state == LibraryOverview::State::reading; }
    /// Asks the user for one.
    void choose();

    // What its worker says.
    void onLibraryRead(const WorkerEvent& event);

  private:
    void read();
    void take(const Result<LibraryContents>& contents);

    const ControllerServices& m_services;
    ApplicationView& m_applicationView;
    LibraryView& m_view;
    NotificationCenter<WorkerEvent>& m_center;
    LibraryOverview m_overview;
    Telling m_telling = Telling::page;
    std::optional<std::uint64_t> m_pending; ///< serial of the worker whose answer is waited for
    OperationQueue m_queue;
};

} // namespace songsweep
