// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace songsweep {

/// The parts of an absolute path, by its bytes; nothing is asked of the file system.

/// "/a/b" gives "/a", "/a" and "/" give "/".
inline std::string folderOf(std::string_view path) {
    const std::size_t slash = path.rfind('/');
    return slash == 0 || slash == std::string_view::npos ? "/" : std::string(path.substr(0, slash));
}

/// "/a/b" gives "b"; "" for a path that ends in "/".
inline std::string_view nameOf(std::string_view path) { return path.substr(path.rfind('/') + 1); }

inline std::string joined(const std::string& folder, std::string_view name) {
    return (folder.ends_with('/') ? folder : folder + '/') + std::string(name);
}

} // namespace songsweep
