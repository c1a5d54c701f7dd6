// SPDX-License-Identifier: MIT
#include "libraryfile/CleanupForesight.h"

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

constexpr std::uint64_t versions = 2; // the backup and the new one

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

Result<void> checkRoom(const struct stat& status, const std::string& folder) {
    struct statvfs room {};
    if (::statvfs(folder.c_str(), &room) != 0) return {}; // The clean-up will see.
    const std::uint64_t needed = versions * static_cast<std::uint64_t>(status.st_size);
    if (std::uint64_t{room.f_bavail} * room.f_frsize >= needed) return {};
    return systemError(ENOSPC, "make a backup in", folder);
}

} // namespace

Result<void> foreseeCleanup(const std::string& library) {
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(library.c_str(), nullptr), &std::free);
    if (!real) return systemError(errno, "find", library);
    const std::string path = real.get();
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) return systemError(errno, "read", path);
    if (::access(folderOf(path).c_str(), W_OK | X_OK) != 0)
        return systemError(errno, "write in", folderOf(path));
    if (auto checked = checkOwner(status, path); !checked) return checked;
    if (auto checked = checkAttributes(path); !checked) return checked;
    return checkRoom(status, folderOf(path));
}

} // namespace songsweep
