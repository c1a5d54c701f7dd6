// SPDX-License-Identifier: MIT
#include "platform/LocalName.h"

#include <filesystem>
#include <system_error>

namespace songsweep {

std::string canonicalPath(const std::string& localPath) {
    std::error_code error;
    const std::filesystem::path canonical = std::filesystem::canonical(localPath, error);
    return error ? localPath : canonical.string();
}

bool isNameTaken(const std::string& localPath) {
    std::error_code error;
    return std::filesystem::symlink_status(localPath, error).type() != std::filesystem::file_type::not_found;
}

} // namespace songsweep
