// SPDX-License-Identifier: MIT
#include "scan/MountedFolders.h"

#include <sys/stat.h>

#include <algorithm>
#include <optional>

namespace songsweep {

namespace {

std::optional<std::uint64_t> deviceOf(const std::string& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) return {};
    return static_cast<std::uint64_t>(status.st_dev);
}

/// A link that is gone was taken away by somebody; a folder on which a disk is mounted comes and goes with
/// it.
bool isRemovedLink(const MountedFolder& mounted, const std::string& path) {
    struct stat status {};
    return mounted.isLink && ::lstat(path.c_str(), &status) != 0;
}

} // namespace

MountedFolders MountedFolders::of(const std::string& folder, const std::vector<MountedFolder>& before,
                                  const std::vector<MountedFolder>& now,
                                  const std::function<bool(const std::string& path)>& hasFoundTracks) {
    MountedFolders all{now, {}};
    for (const MountedFolder& mounted : before) {
        const std::string path = mounted.path.empty() ? folder : folder + "/" + mounted.path;
        if (deviceOf(path) == mounted.device || isRemovedLink(mounted, path)) continue;
        all.away.push_back(mounted.path);
        if (hasFoundTracks(mounted.path)) continue;
        std::erase_if(all.known, [&](const MountedFolder& each) { return each.path == mounted.path; });
        all.known.push_back(mounted);
    }
    return all;
}

} // namespace songsweep
