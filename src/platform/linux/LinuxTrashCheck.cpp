// SPDX-License-Identifier: MIT
#include "platform/linux/LinuxTrashCheck.h"

#include "platform/SystemError.h"
#include "platform/linux/PathParts.h"
#include "platform/linux/TrashFolders.h"
#include "platform/linux/TrashUse.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include <cerrno>

namespace songsweep {

namespace {

/// What GIO adds to the name for the record, and for the file that it writes before the record.
constexpr std::string_view recordSuffix = ".trashinfo.XXXXXX";

Error noPermission(std::string message) { return {Error::Code::noPermission, std::move(message)}; }

/// Attributes that only an administrator takes away, and that keep a file where it is.
bool isProtected(const struct statx& status) {
    return (status.stx_attributes & (STATX_ATTR_IMMUTABLE | STATX_ATTR_APPEND)) != 0;
}

std::optional<struct statx> statxOf(const std::string& path) {
    struct statx status {};
    if (::statx(AT_FDCWD, path.c_str(), AT_SYMLINK_NOFOLLOW, STATX_BASIC_STATS, &status) != 0)
        return std::nullopt;
    return status;
}

} // namespace

void LinuxTrashCheck::leaveRoom(const std::string& folder, std::uint64_t bytes) {
    roomOf(folder).leave(bytes);
}

Result<void> LinuxTrashCheck::add(const std::string& path) {
    const std::optional<struct statx> file = statxOf(path);
    if (!file) return systemError(errno, path);
    const Place& place = placeOf(folderOf(path), ::makedev(file->stx_dev_major, file->stx_dev_minor));
    if (!place.usable) return place.usable.error();
    const uid_t user = ::geteuid();
    if (place.isSticky && user != 0 && user != place.owner && user != file->stx_uid)
        return noPermission("it is another user's, in the folder " + folderOf(path) +
                            " where only owners may take files away");
    if (isProtected(*file)) return noPermission("it is protected against changes");
    if (nameOf(path).size() + recordSuffix.size() > place.room->longestName())
        return Error{Error::Code::invalid, "its name is too long for the Trash"};
    if (!place.room->take(path))
        return Error{Error::Code::noSpace, "there is no room for its record in the Trash"};
    return {};
}

const LinuxTrashCheck::Place& LinuxTrashCheck::placeOf(const std::string& folder, dev_t device) {
    std::string key = folder + '\0' + std::to_string(device);
    const auto found = m_places.find(key);
    if (found != m_places.end()) return found->second;
    return m_places.emplace(std::move(key), newPlace(folder, device)).first->second;
}

LinuxTrashCheck::Place LinuxTrashCheck::newPlace(const std::string& folder, dev_t device) {
    Place place;
    place.usable = canLeave(folder);
    if (!place.usable) return place;
    const Result<std::string> trash = usableTrash(folder, device);
    if (!trash) {
        place.usable = trash.error();
        return place;
    }
    if (const std::optional<struct statx> status = statxOf(folder + "/.")) {
        place.isSticky = (status->stx_mode & S_ISVTX) != 0;
        place.owner = status->stx_uid;
    }
    place.room = &roomOf(trash.value());
    return place;
}

/// Trash folders of one device share its room.
RecordRoom& LinuxTrashCheck::roomOf(const std::string& folder) {
    struct stat status {};
    ::stat(folder.c_str(), &status);
    const auto found = m_rooms.find(status.st_dev);
    if (found != m_rooms.end()) return found->second;
    return m_rooms.emplace(status.st_dev, RecordRoom::of(folder)).first->second;
}

} // namespace songsweep
