// SPDX-License-Identifier: MIT
#pragma once

#include "operations/Operation.h"

#include <string>

namespace songsweep {

class Files;
class Trash;
struct WorkerEvent;
template <typename Event>
class NotificationCenter;

/// Looks on a worker thread whether the newest deletion of a library was killed; tells by "interruptionFound"
/// only where that is so.
class InterruptionSearch final : public Operation {
  public:
    InterruptionSearch(std::string library, const Files& files, Trash& trash,
                       NotificationCenter<WorkerEvent>& center)
        : m_library(std::move(library))
        , m_files(files)
        , m_trash(trash)
        , m_center(center) {}

    void main() override;

  private:
    std::string m_library;
    const Files& m_files;
    Trash& m_trash;
    NotificationCenter<WorkerEvent>& m_center;
};

} // namespace songsweep
