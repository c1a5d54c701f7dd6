// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace songsweep {

/// Where the program's log lines go: plain lines, no levels.
///
/// An interface, so that tests can look at the lines. Any thread may write; a line is never torn.
class Log {
  public:
    Log() = default;
    Log(const Log&) = delete;
    Log& operator=(const Log&) = delete;
    virtual ~Log() = default;

    /// Writes one line (UTF-8, without its line break).
    virtual void line(std::string_view text) = 0;
};

/// Writes lines to a file descriptor, descriptor 2 unless told otherwise. The descriptor stays the caller's.
class DescriptorLog final : public Log {
  public:
    explicit DescriptorLog(int descriptor = 2)
        : m_descriptor(descriptor) {}
    void line(std::string_view text) override;

  private:
    int m_descriptor;
};

/// Writes nothing.
class SilentLog final : public Log {
  public:
    void line(std::string_view) override {}
};

} // namespace songsweep
