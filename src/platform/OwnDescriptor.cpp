// SPDX-License-Identifier: MIT
#include "platform/OwnDescriptor.h"

#include <fcntl.h>

#include <charconv>
#include <filesystem>
#include <string_view>

namespace songsweep {

namespace {

constexpr int mostLinks = 40; // as many as the system follows

/// Where the system lists the open descriptors of a process, by their numbers.
bool isDescriptorFolder(const std::filesystem::path& folder) {
    std::error_code error;
    return std::filesystem::equivalent(folder, "/dev/fd", error);
}

std::optional<int> openDescriptor(std::string_view name) {
    int descriptor = -1;
    const char* const end = name.data() + name.size();
    const auto [last, failure] = std::from_chars(name.data(), end, descriptor);
    if (failure != std::errc() || last != end || ::fcntl(descriptor, F_GETFD) < 0) return std::nullopt;
    return descriptor;
}

} // namespace

std::optional<int> ownDescriptor(const std::string& path) {
    std::filesystem::path place = path;
    std::error_code error;
    for (int links = 0; links < mostLinks; ++links) {
        if (isDescriptorFolder(place.parent_path())) return openDescriptor(place.filename().native());
        const std::filesystem::path target = std::filesystem::read_symlink(place, error);
        if (error) break;
        place = place.parent_path() / target;
    }
    return std::nullopt;
}

} // namespace songsweep
