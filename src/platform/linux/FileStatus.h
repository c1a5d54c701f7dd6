// SPDX-License-Identifier: MIT
#pragma once

#include <sys/stat.h>

#include <optional>
#include <string>

namespace songsweep {

/// What the system tells of a file, of a link itself; nothing where the name names nothing.
inline std::optional<struct stat> statusOf(const std::string& path) {
    struct stat status {};
    if (::lstat(path.c_str(), &status) != 0) return std::nullopt;
    return status;
}

inline bool isThere(const std::string& path) { return statusOf(path).has_value(); }

} // namespace songsweep
