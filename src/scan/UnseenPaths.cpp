// SPDX-License-Identifier: MIT
#include "scan/UnseenPaths.h"

namespace songsweep {

std::optional<std::string> UnseenPaths::around(std::string_view path) const {
    if (m_paths.empty()) return {};
    for (std::string folder(path);;) {
        if (m_paths.contains(folder)) return folder;
        if (folder.empty()) return {};
        const std::size_t slash = folder.rfind('/');
        folder.resize(slash == std::string::npos ? 0 : slash);
    }
}

} // namespace songsweep
