// SPDX-License-Identifier: MIT
#include "app/Guide.h"

#include <filesystem>
#include <system_error>

namespace songsweep {

std::optional<std::string> guideFile(const std::string& programFolder) {
    constexpr const char* places[] = {"../share/doc/songsweep", "../Resources", "doc"};
    for (const char* const place : places) {
        const std::filesystem::path file = std::filesystem::path(programFolder) / place / "user-guide.html";
        std::error_code error;
        if (std::filesystem::is_regular_file(file, error)) return file.lexically_normal().string();
    }
    return std::nullopt;
}

} // namespace songsweep
