// SPDX-License-Identifier: MIT
#pragma once

#include "library/SearchParameters.h"
#include "library/TrackStorage.h"
#include "operations/Operation.h"
#include "platform/Result.h"

#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>

namespace songsweep {

class AppleScript;
class Files;
class Log;
class NotificationCenter;
class Preferences;
class Sleeper;

/// What the readers work with; all of it outlives every worker.
struct ReaderServices {
    NotificationCenter& center;
    AppleScript& scripts;
    Files& files;
    Preferences& preferences;
    Sleeper& sleeper;
    Log& log;
};

/// The first read error of a library file: its line (from 1) and the reader's reason.
struct ReadError {
    int line = 0;
    std::string reason;
};

/// Where a reader leaves its first read error for whoever asks. Thread-safe.
class ReadErrorSlot {
  public:
    void set(ReadError error) {
        const std::lock_guard lock(m_mutex);
        if (!m_error) m_error = std::move(error);
    }
    void clear() {
        const std::lock_guard lock(m_mutex);
        m_error.reset();
    }
    std::optional<ReadError> get() const {
        const std::lock_guard lock(m_mutex);
        return m_error;
    }

  private:
    mutable std::mutex m_mutex;
    std::optional<ReadError> m_error;
};

} // namespace songsweep
