// SPDX-License-Identifier: MIT
#pragma once

#include "library/LibraryOverview.h"
#include "operations/Operation.h"
#include "platform/Result.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace songsweep {

struct WorkerEvent;
template <typename Event>
class NotificationCenter;

/// Indexes the library on a worker thread, and tells by "libraryRead" what it holds or why it cannot be read,
/// and which other libraries there are, since the medium of one may sleep.
///
/// A library of a million tracks takes seconds, in which the window has to answer; whoever needs the index
/// later finds it made.
class LibraryReading final : public Operation {
  public:
    struct Sources {
        std::function<Result<LibraryContents>()> contents; ///< not set where no library is known
        std::function<std::vector<std::string>()> others;  ///< paths of other libraries
    };

    LibraryReading(Sources sources, NotificationCenter<WorkerEvent>& center)
        : m_sources(std::move(sources))
        , m_center(center) {}

    void main() override;

  private:
    Sources m_sources;
    NotificationCenter<WorkerEvent>& m_center;
};

/// What came of it.
struct LibraryAnswer {
    std::optional<Result<LibraryContents>> contents; ///< nothing where no library is known
    std::vector<std::string> others;
};

} // namespace songsweep
