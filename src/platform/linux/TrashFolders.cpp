// SPDX-License-Identifier: MIT
#include "platform/linux/TrashFolders.h"

#include "platform/LocalName.h"
#include "platform/linux/Gio.h"
#include "platform/linux/PathParts.h"
#include "platform/linux/TrashRecord.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <optional>

namespace songsweep {

namespace {

constexpr std::string_view recordSuffix = ".trashinfo";

std::optional<dev_t> deviceOf(const std::string& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) return std::nullopt;
    return status.st_dev;
}

/// The topmost folder of the device that the folder is on.
std::string topOf(const std::string& folder, dev_t device) {
    std::string top = canonicalPath(folder);
    while (top != "/" && deviceOf(folderOf(top)) == device)
        top = folderOf(top);
    return top;
}

/// The folder may be gone by now, or part of its path.
std::filesystem::path resolvedFolder(const std::string& path) {
    std::error_code error;
    return std::filesystem::weakly_canonical(folderOf(path), error);
}

bool areOneName(const std::string& a, const std::string& b) {
    return a == b || (nameOf(a) == nameOf(b) && resolvedFolder(a) == resolvedFolder(b));
}

bool isNumber(std::string_view text) {
    return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

std::size_t firstDot(std::string_view name) { return std::min(name.find('.'), name.size()); }

} // namespace

std::string TrashFolder::recordOf(std::string_view name) const {
    return infoFolder() + '/' + std::string(name) + std::string(recordSuffix);
}

std::string TrashFolder::pathOf(std::string_view recorded) const {
    if (recorded.starts_with('/')) return std::string(recorded);
    return joined(top, recorded);
}

bool TrashFolder::isRecorded(std::string_view name, const std::string& path) const {
    const std::optional<std::string> recorded = recordedPath(recordOf(name));
    return recorded && areOneName(pathOf(*recorded), path);
}

std::vector<TrashFolder> trashFoldersFor(const std::string& folder, dev_t device) {
    if (deviceOf(g_get_home_dir()) == device) return {{std::string(g_get_user_data_dir()) + "/Trash", ""}};
    const std::string top = topOf(folder, device);
    const std::string user = std::to_string(::geteuid());
    return {{joined(top, ".Trash/" + user), top}, {joined(top, ".Trash-" + user), top}};
}

std::vector<TrashFolder> trashFoldersOnceFor(const std::string& path) {
    std::string folder = folderOf(path);
    while (folder != "/" && !deviceOf(folder))
        folder = folderOf(folder);
    const std::optional<dev_t> device = deviceOf(folder);
    return device ? trashFoldersFor(folder, *device) : std::vector<TrashFolder>();
}

TrashFolder trashFolderOf(const TrashedFile& file) {
    const std::string folder = folderOf(file.trashFolder);
    const std::string name(nameOf(folder));
    if (name.starts_with(".Trash-")) return {folder, folderOf(folder)};
    if (isNumber(name) && nameOf(folderOf(folder)) == ".Trash") return {folder, folderOf(folderOf(folder))};
    return {folder, ""};
}

std::string numberedName(std::string_view name, int number) {
    if (number == 1) return std::string(name);
    const std::size_t dot = firstDot(name);
    return std::string(name.substr(0, dot)) + '.' + std::to_string(number) + std::string(name.substr(dot));
}

bool isNumberedName(std::string_view numbered, std::string_view name) {
    if (numbered == name) return true;
    const std::size_t dot = firstDot(name);
    const std::string before = std::string(name.substr(0, dot)) + '.';
    const std::string_view after = name.substr(dot);
    if (numbered.size() <= before.size() + after.size()) return false;
    if (!numbered.starts_with(before) || !numbered.ends_with(after)) return false;
    return isNumber(numbered.substr(before.size(), numbered.size() - before.size() - after.size()));
}

} // namespace songsweep
