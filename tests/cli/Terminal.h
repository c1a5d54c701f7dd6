// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace songsweep::test {

/// A terminal of a test's own: what a program writes to its name can be read here.
class Terminal {
  public:
    Terminal();
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;
    ~Terminal();

    const std::string& name() const { return m_name; }

    /// What was written so far, with the line breaks as a terminal makes them, "\r\n".
    std::string shown() const;

  private:
    int m_terminal;
    std::string m_name;
    int m_other; ///< keeps what was written when the program closes its end
};

} // namespace songsweep::test
