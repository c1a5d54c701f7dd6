// SPDX-License-Identifier: MIT
#include "platform/HfsPath.h"

#include <algorithm>

namespace songsweep {

namespace {

/// The one volume there is; its name is the one that new Macs give theirs.
constexpr std::string_view volumeName = "Macintosh HD";

char swappedSeparator(char character) {
    if (character == '/') return ':';
    if (character == ':') return '/';
    return character;
}

} // namespace

// Exchanging the two separators is its own inverse, and an absolute path's first "/" becomes the ":" after
// the volume name. So every path has exactly one counterpart, empty components included.

std::optional<std::string> hfsPath(std::string_view posixPath) {
    if (!posixPath.starts_with('/')) return std::nullopt;
    std::string path(volumeName);
    path.resize(volumeName.size() + posixPath.size());
    std::transform(posixPath.begin(), posixPath.end(), path.begin() + volumeName.size(), swappedSeparator);
    return path;
}

std::optional<std::string> posixPath(std::string_view hfsPath) {
    if (!hfsPath.starts_with(volumeName)) return std::nullopt;
    std::string path(hfsPath.substr(volumeName.size()));
    if (!path.starts_with(':')) return std::nullopt;
    std::transform(path.begin(), path.end(), path.begin(), swappedSeparator);
    return path;
}

} // namespace songsweep
