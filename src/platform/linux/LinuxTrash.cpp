// SPDX-License-Identifier: MIT
#include "platform/linux/LinuxTrash.h"

#include "platform/linux/FileStatus.h"
#include "platform/linux/Gio.h"
#include "platform/linux/LinuxTrashCheck.h"
#include "platform/linux/MoveToFreeName.h"
#include "platform/linux/NumberedMove.h"
#include "platform/linux/PathParts.h"
#include "platform/linux/TrashFolders.h"
#include "platform/linux/TrashRecord.h"

#include <unistd.h>

namespace songsweep {

/// What stays the same while a file is renamed.
struct LinuxTrash::Identity {
    dev_t device = 0;
    ino_t inode = 0;

    static std::optional<Identity> of(const std::string& path) {
        const std::optional<struct stat> status = statusOf(path);
        if (!status) return std::nullopt;
        return Identity{status->st_dev, status->st_ino};
    }
    bool operator==(const Identity&) const = default;
};

namespace {

constexpr int crowded = 16; // files of one name that GIO may try through

Result<void> moveByGio(const std::string& path) {
    const gio::Owned<GFile> file(g_file_new_for_path(path.c_str()));
    GError* error = nullptr;
    if (g_file_trash(file.get(), nullptr, &error) == 0) return gio::errorFrom(error);
    return {};
}

/// An error where the file could not be put back either: the last that is known of it.
Error putBack(const TrashedFile& file, const std::string& path, const std::string& record) {
    const bool isEmpty = !recordedPath(record);
    const std::string why = isEmpty ? "The Trash could not note where " + path +
                                          " came from (the disk may be full, or the name too long)"
                                    : "The Trash noted another place than " + path;
    const auto code = Error::Code::failed;
    if (const Result<void> moved = moveToFreeName(file.path(), path); !moved)
        return {code, why + "; the file is " + file.path() + " (" + moved.error().message + ")"};
    ::unlink(record.c_str());
    return {code, why + "; the file was put back"};
}

} // namespace

Result<TrashedFile> LinuxTrash::moveToTrash(const std::string& path) {
    // GIO would take a relative path from the working folder, which nobody means.
    if (!path.starts_with('/')) return Error{Error::Code::invalid, "Not an absolute path"};
    const std::optional<Identity> file = Identity::of(path);
    const auto before = std::chrono::system_clock::now();
    if (file)
        if (const auto moved = moveToCrowdedName(path, *file)) return *moved;
    if (const Result<void> moved = moveByGio(path); !moved) return moved.error();
    if (file) return confirm(path, *file, before);
    return Error{Error::Code::failed, path + " went to the Trash just when it appeared"};
}

/// Nothing where few files of that name went there, or it failed: GIO tells why.
std::optional<Result<TrashedFile>> LinuxTrash::moveToCrowdedName(const std::string& path,
                                                                 const Identity& file) {
    for (const TrashFolder& folder : trashFoldersFor(folderOf(path), file.device)) {
        const std::string place = folder.folder + '/' + std::string(nameOf(path));
        const int last = lastNumber(place);
        if (last < crowded) continue;
        const std::optional<int> number = moveToNumber(path, folder, last + 1);
        if (!number) return std::nullopt;
        setLastNumber(place, *number);
        const TrashedFile trashed{folder.filesFolder(), numberedName(nameOf(path), *number)};
        if (folder.isRecorded(trashed.name, path)) return trashed;
        return putBack(trashed, path, folder.recordOf(trashed.name));
    }
    return std::nullopt;
}

Result<TrashedFile> LinuxTrash::confirm(const std::string& path, const Identity& file, Time before) {
    for (const TrashFolder& folder : trashFoldersFor(folderOf(path), file.device)) {
        const std::optional<TrashedFile> trashed = whereIs(file, folder, std::string(nameOf(path)));
        if (!trashed) continue;
        if (folder.isRecorded(trashed->name, path)) return *trashed;
        return putBack(*trashed, path, folder.recordOf(trashed->name));
    }
    // Some file systems give a moved file another number.
    if (const auto trashed = findInTrash(path, before)) return *trashed;
    return Error{Error::Code::failed, path + " went to the Trash, which does not tell of it"};
}

/// GIO takes the first number whose record is free.
std::optional<TrashedFile> LinuxTrash::whereIs(const Identity& file, const TrashFolder& folder,
                                               const std::string& name) {
    const auto isNumber = [&](int number) {
        return Identity::of(folder.filesFolder() + '/' + numberedName(name, number)) == file;
    };
    const auto found = [&](int number) {
        if (number > 1) setLastNumber(folder.folder + '/' + name, number);
        return TrashedFile{folder.filesFolder(), numberedName(name, number)};
    };
    if (isNumber(1)) return found(1);
    const int next = lastNumber(folder.folder + '/' + name) + 1;
    if (isNumber(next)) return found(next);
    for (int number = 2; isThere(folder.recordOf(numberedName(name, number))); ++number)
        if (isNumber(number)) return found(number);
    return std::nullopt;
}

int LinuxTrash::lastNumber(const std::string& place) {
    const std::lock_guard lock(m_mutex);
    const auto found = m_lastNumbers.find(place);
    return found == m_lastNumbers.end() ? 1 : found->second;
}

void LinuxTrash::setLastNumber(const std::string& place, int number) {
    const std::lock_guard lock(m_mutex);
    m_lastNumbers[place] = number;
}

std::unique_ptr<TrashCheck> LinuxTrash::newCheck() { return std::make_unique<LinuxTrashCheck>(); }

} // namespace songsweep
