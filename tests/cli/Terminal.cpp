// SPDX-License-Identifier: MIT
#include "Terminal.h"

#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>

#include <array>

namespace songsweep::test {

Terminal::Terminal()
    : m_terminal(::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK)) {
    std::array<char, 128> name{};
    ::grantpt(m_terminal);
    ::unlockpt(m_terminal);
    ::ptsname_r(m_terminal, name.data(), name.size());
    m_name = name.data();
    m_other = ::open(m_name.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
}

Terminal::~Terminal() {
    ::close(m_other);
    ::close(m_terminal);
}

std::string Terminal::shown() const {
    std::string shown;
    std::array<char, 65536> buffer{};
    for (ssize_t count = 0; (count = ::read(m_terminal, buffer.data(), buffer.size())) > 0;)
        shown.append(buffer.data(), static_cast<std::size_t>(count));
    return shown;
}

} // namespace songsweep::test
