// SPDX-License-Identifier: MIT
#include "platform/HomeFolder.h"

#include <pwd.h>
#include <unistd.h>

#include <cerrno>
#include <vector>

namespace songsweep {

std::string passwordHomeFolder() {
    constexpr std::size_t largestEntry = 1U << 20U;
    struct passwd entry {};
    struct passwd* found = nullptr;
    for (std::size_t size = 1024; size <= largestEntry; size *= 2) {
        std::vector<char> buffer(size);
        if (::getpwuid_r(::getuid(), &entry, buffer.data(), buffer.size(), &found) == ERANGE) continue;
        return found != nullptr && entry.pw_dir != nullptr ? entry.pw_dir : std::string();
    }
    return {};
}

} // namespace songsweep
