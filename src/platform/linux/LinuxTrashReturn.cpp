// SPDX-License-Identifier: MIT
#include "platform/linux/FileStatus.h"
#include "platform/linux/Gio.h"
#include "platform/linux/LinuxTrash.h"
#include "platform/linux/MadeFolders.h"
#include "platform/linux/MoveToFreeName.h"
#include "platform/linux/PathParts.h"
#include "platform/linux/TrashFolders.h"

#include <unistd.h>

namespace songsweep {

namespace {

using Time = std::chrono::system_clock::time_point;

/// File systems keep times as coarsely as this, and the kernel's clock lags a little.
constexpr std::chrono::seconds coarsestTime{2};

std::optional<Time> writtenAt(const std::string& record) {
    const std::optional<struct stat> status = statusOf(record);
    if (!status) return std::nullopt;
    const auto sinceEpoch =
        std::chrono::seconds(status->st_mtim.tv_sec) + std::chrono::nanoseconds(status->st_mtim.tv_nsec);
    return Time(std::chrono::duration_cast<Time::duration>(sinceEpoch));
}

std::vector<std::string> namesIn(const std::string& folder) {
    struct Close {
        void operator()(GDir* dir) const { g_dir_close(dir); }
    };
    std::vector<std::string> names;
    const std::unique_ptr<GDir, Close> dir(g_dir_open(folder.c_str(), 0, nullptr));
    if (dir == nullptr) return names;
    while (const gchar* name = g_dir_read_name(dir.get()))
        names.emplace_back(name);
    return names;
}

/// The newest file of the folder that the search is for.
class Newest {
  public:
    Newest(const std::string& path, Time notBefore)
        : m_path(path)
        , m_time(notBefore - coarsestTime) {}

    void lookThrough(const TrashFolder& folder) {
        for (const std::string& name : namesIn(folder.filesFolder()))
            if (isNumberedName(name, nameOf(m_path))) lookAt(folder, name);
    }
    const std::optional<TrashedFile>& found() const { return m_found; }

  private:
    void lookAt(const TrashFolder& folder, const std::string& name) {
        const std::optional<Time> time = writtenAt(folder.recordOf(name));
        if (!time || *time < m_time || !folder.isRecorded(name, m_path)) return;
        m_time = *time;
        m_found = TrashedFile{folder.filesFolder(), name};
    }

    const std::string& m_path;
    Time m_time;
    std::optional<TrashedFile> m_found;
};

} // namespace

Result<RestoredFile> LinuxTrash::restoreFromTrash(const TrashedFile& file, const std::string& path) {
    if (!path.starts_with('/')) return Error{Error::Code::invalid, "Not an absolute path"};
    const TrashFolder folder = trashFolderOf(file);
    if (!isThere(file.path())) {
        // Left by a program that was killed between the two steps below.
        if (folder.isRecorded(file.name, path)) ::unlink(folder.recordOf(file.name).c_str());
        return Error{Error::Code::notFound, path + " is not in the Trash any more"};
    }
    if (!folder.isRecorded(file.name, path))
        return Error{Error::Code::notFound, file.path() + " is not what " + path + " was"};
    MadeFolders made;
    if (const Result<void> parents = made.make(folderOf(path)); !parents) return parents.error();
    if (const Result<void> moved = moveToFreeName(file.path(), path); !moved) return moved.error();
    ::unlink(folder.recordOf(file.name).c_str());
    return RestoredFile{made.keep()};
}

std::optional<TrashedFile> LinuxTrash::findInTrash(const std::string& path, Time notBefore) {
    Newest newest(path, notBefore);
    for (const TrashFolder& folder : trashFoldersOnceFor(path))
        newest.lookThrough(folder);
    return newest.found();
}

} // namespace songsweep
