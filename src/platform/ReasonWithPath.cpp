// SPDX-License-Identifier: MIT
#include "platform/ReasonWithPath.h"

#include <filesystem>

namespace songsweep {

std::string reasonWithPath(const std::string& path, const std::string& reason) {
    if (path.empty()) return reason;
    // A relative path may be as short as a word of the reason.
    std::error_code error;
    const std::filesystem::path absolute = std::filesystem::absolute(path, error);
    const auto names = [&](const std::filesystem::path& file) {
        return !error && reason.find(file.string()) != std::string::npos;
    };
    return names(absolute) || names(absolute.lexically_normal()) ? reason : path + ": " + reason;
}

} // namespace songsweep
