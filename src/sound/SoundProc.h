// SPDX-License-Identifier: MIT
#pragma once

#include "operations/NotificationCenter.h"
#include "operations/Operation.h"
#include "sound/SoundComparison.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace songsweep {

/// What a SoundProc tells: how far it is, and at its end what it found.
struct SoundEvent {
    std::size_t done = 0; ///< files, of those that are to be heard
    std::size_t total = 0;
    std::shared_ptr<Result<ComparedSounds>> result; ///< null but for the last event
    const Operation* sender = nullptr;
};

/// Nobody waits until a step was shown.
inline bool isCount(const SoundEvent& event) { return !event.result; }

/// Compares the sound of copies on a worker thread; tells some times a second how far it is. The only one
/// that uses the Listening meanwhile, which outlives it.
class SoundProc final : public Operation {
  public:
    SoundProc(std::vector<ComparedCopy> copies, Listening& listening, NotificationCenter<SoundEvent>& center)
        : m_copies(std::move(copies))
        , m_listening(listening)
        , m_center(center) {}

    void main() override;

  private:
    std::vector<ComparedCopy> m_copies;
    Listening& m_listening;
    NotificationCenter<SoundEvent>& m_center;
};

} // namespace songsweep
