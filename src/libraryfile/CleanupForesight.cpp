// SPDX-License-Identifier: MIT
#include "libraryfile/CleanupForesight.h"

#include "libraryfile/CleanupRecord.h"
#include "libraryfile/FileNames.h"
#include "platform/SystemError.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <vector>

namespace songsweep {

namespace {

constexpr std::uint64_t versions = 2;   // the backup and the new one
constexpr std::uint64_t smallFiles = 2; // the lock, and what the folder grows by

bool isInGroup(gid_t group) {
    if (::getegid() == group) return true;
    std::vector<gid_t> groups(static_cast<std::size_t>(std::max(0, ::getgroups(0, nullptr))));
    const int count = ::getgroups(static_cast<int>(groups.size()), groups.data());
    groups.resize(static_cast<std::size_t>(std::max(0, count)));
    return std::find(groups.begin(), groups.end(), group) != groups.end();
}

Result<void> checkOwner(const struct stat& status, const std::string& path) {
    const bool isOwn = status.st_uid == ::geteuid() && isInGroup(status.st_gid);
    if (isOwn || ::geteuid() == 0) return {};
    return Error{Error::Code::noPermission,
                 "cannot write " + path + ": it belongs to another user or group and would become yours"};
}

/// What the file system says of a file that is fixed in its place.
Result<void> checkAttributes([[maybe_unused]] const std::string& path) {
#ifdef __linux__
    struct statx status {};
    if (::statx(AT_FDCWD, path.c_str(), 0, STATX_BASIC_STATS, &status) != 0) return {};
    if ((status.stx_attributes & (STATX_ATTR_IMMUTABLE | STATX_ATTR_APPEND)) != 0)
        return systemError(EPERM, "replace", path);
    if ((status.stx_attributes & STATX_ATTR_MOUNT_ROOT) != 0) return systemError(EBUSY, "replace", path);
#endif
    return {};
}

std::uint64_t inBlocks(std::uint64_t bytes, std::uint64_t blockSize) {
    return (bytes + blockSize - 1) / blockSize * blockSize;
}

Result<CleanupRoom> roomFor(const struct stat& status, const std::string& folder, const CleanupSize& size) {
    struct statvfs system {};
    if (::statvfs(folder.c_str(), &system) != 0) return CleanupRoom{}; // The clean-up will see.
    const std::uint64_t block = std::max<std::uint64_t>(1, system.f_frsize);
    const std::uint64_t needed = versions * inBlocks(static_cast<std::uint64_t>(status.st_size), block) +
                                 inBlocks(CleanupRecord::roomFor(size.tracks, size.textBytes), block) +
                                 smallFiles * block;
    if (std::uint64_t{system.f_bavail} * block < needed)
        return systemError(ENOSPC, "make a backup in", folder);
    return CleanupRoom{folder, needed};
}

} // namespace

Result<CleanupRoom> foreseeCleanup(const std::string& library, const CleanupSize& size) {
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(library.c_str(), nullptr), &std::free);
    if (!real) return systemError(errno, "find", library);
    const std::string path = real.get();
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) return systemError(errno, "read", path);
    if (::access(folderOf(path).c_str(), W_OK | X_OK) != 0)
        return systemError(errno, "write in", folderOf(path));
    if (auto checked = checkOwner(status, path); !checked) return checked.error();
    if (auto checked = checkAttributes(path); !checked) return checked.error();
    return roomFor(status, folderOf(path), size);
}

} // namespace songsweep
