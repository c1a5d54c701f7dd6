// SPDX-License-Identifier: MIT
#include "platform/linux/TrashUse.h"

#include "platform/linux/FileStatus.h"
#include "platform/linux/Gio.h"
#include "platform/linux/PathParts.h"
#include "platform/linux/TrashFolders.h"

#include <fcntl.h>
#include <gio/gunixmounts.h>
#include <unistd.h>

#include <cerrno>
#include <string_view>

namespace songsweep {

namespace {

struct FreeMount {
    void operator()(GUnixMountEntry* entry) const { g_unix_mount_free(entry); }
};

std::optional<struct statx> statxOf(const std::string& folder) {
    struct statx status {};
    if (::statx(AT_FDCWD, folder.c_str(), 0, STATX_BASIC_STATS | STATX_MNT_ID, &status) != 0)
        return std::nullopt;
    return status;
}

/// What the administrator asked of the mount wins; the system's own mounts have no Trash.
bool hasNoTrash(const std::string& top) {
    const std::unique_ptr<GUnixMountEntry, FreeMount> mount(g_unix_mount_at(top.c_str(), nullptr));
    if (mount == nullptr) return true;
    const char* const options = g_unix_mount_get_options(mount.get());
    const std::string_view given = options == nullptr ? "" : options;
    if (given.find("x-gvfs-trash") != std::string_view::npos) return false;
    if (given.find("x-gvfs-notrash") != std::string_view::npos) return true;
    return g_unix_mount_is_system_internal(mount.get()) != 0;
}

bool canBeWritten(const std::string& folder) {
    const std::optional<struct statx> status = statxOf(folder);
    if (!status || !S_ISDIR(status->stx_mode) || (status->stx_attributes & STATX_ATTR_IMMUTABLE) != 0)
        return false;
    return ::faccessat(AT_FDCWD, folder.c_str(), W_OK | X_OK, AT_EACCESS) == 0;
}

std::string nearestOf(std::string path) {
    while (path != "/" && !isThere(path))
        path = folderOf(path);
    return path;
}

/// A volume's Trash counts only where it is the user's own folder, or can be made.
bool isOwnOrFree(const std::string& folder) {
    const std::optional<struct stat> status = statusOf(folder);
    if (status) return S_ISDIR(status->st_mode) && status->st_uid == ::geteuid();
    return canBeWritten(folderOf(folder));
}

bool isSharedTrash(const std::string& folder) {
    const std::optional<struct stat> status = statusOf(folder);
    return status && S_ISDIR(status->st_mode) && (status->st_mode & S_ISVTX) != 0;
}

std::optional<TrashFolder> ofVolume(const std::vector<TrashFolder>& folders) {
    if (isSharedTrash(folderOf(folders[0].folder)) && isOwnOrFree(folders[0].folder)) return folders[0];
    if (isOwnOrFree(folders[1].folder)) return folders[1];
    return std::nullopt;
}

/// One file system can be mounted in several places, and no file goes from one to another.
bool areOneMount(const std::string& a, const std::string& b) {
    const std::optional<struct statx> first = statxOf(a);
    const std::optional<struct statx> second = statxOf(b);
    if (!first || !second || (first->stx_mask & second->stx_mask & STATX_MNT_ID) == 0) return true;
    return first->stx_mnt_id == second->stx_mnt_id;
}

Error noTrash(const std::string& folder) {
    return {Error::Code::notSupported, "there is no Trash for files of " + folder};
}

} // namespace

Result<void> canLeave(const std::string& folder) {
    if (canBeWritten(folder)) return {};
    const bool isReadOnly = ::faccessat(AT_FDCWD, folder.c_str(), W_OK, AT_EACCESS) != 0 && errno == EROFS;
    return Error{Error::Code::noPermission,
                 "its folder " + folder + (isReadOnly ? " can only be read" : " cannot be written")};
}

Result<std::string> usableTrash(const std::string& folder, dev_t device) {
    const std::vector<TrashFolder> folders = trashFoldersFor(folder, device);
    TrashFolder trash = folders.front();
    if (!trash.top.empty()) {
        const std::optional<TrashFolder> found = ofVolume(folders);
        if (hasNoTrash(trash.top) || !found) return noTrash(folder);
        trash = *found;
    }
    const std::string files = nearestOf(trash.filesFolder());
    if (!areOneMount(files, folder)) return noTrash(folder);
    if (!canBeWritten(files) || !canBeWritten(nearestOf(trash.infoFolder())))
        return Error{Error::Code::noPermission, "the Trash " + trash.folder + " cannot be written"};
    return files;
}

} // namespace songsweep
