// SPDX-License-Identifier: MIT
#pragma once

#include <mutex>
#include <optional>
#include <string>
#include <utility>

namespace songsweep {

/// The first read error of a library file: its line (from 1; 0 where the file itself failed) and the reason.
struct ReadError {
    int line = 0;
    std::string reason;

    bool operator==(const ReadError&) const = default;
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
