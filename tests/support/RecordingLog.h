// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Log.h"

#include <mutex>
#include <string>
#include <vector>

namespace songsweep::test {

/// A log that keeps its lines for the test to look at.
class RecordingLog final : public Log {
  public:
    void line(std::string_view text) override {
        const std::lock_guard lock(m_mutex);
        m_lines.emplace_back(text);
    }
    std::vector<std::string> lines() const {
        const std::lock_guard lock(m_mutex);
        return m_lines;
    }

  private:
    mutable std::mutex m_mutex;
    std::vector<std::string> m_lines;
};

} // namespace songsweep::test
