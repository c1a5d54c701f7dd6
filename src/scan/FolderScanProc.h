// SPDX-License-Identifier: MIT
#pragma once

#include "operations/NotificationCenter.h"
#include "operations/Operation.h"
#include "scan/FolderScan.h"

#include <cstddef>
#include <memory>

namespace songsweep {

/// What a FolderScanProc tells: how far it is, and at its end what came of it.
struct FolderScanEvent {
    std::size_t read = 0; ///< files, of those that are to be read
    std::size_t toRead = 0;
    std::shared_ptr<Result<ScanReport>> result; ///< null but for the last event
    const Operation* sender = nullptr;
};

/// Nobody waits until a step was shown.
inline bool isCount(const FolderScanEvent& event) { return !event.result; }

/// Brings the library of a folder up to date on a worker thread; tells a few times a second how far it is.
class FolderScanProc final : public Operation {
  public:
    FolderScanProc(FolderLibrary place, NotificationCenter<FolderScanEvent>& center)
        : m_place(std::move(place))
        , m_center(center) {}

    void main() override;

  private:
    FolderLibrary m_place;
    NotificationCenter<FolderScanEvent>& m_center;
};

} // namespace songsweep
