// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Trash.h"

#include <sys/types.h>

#include <string>
#include <string_view>
#include <vector>

namespace songsweep {

/// One folder of the freedesktop Trash: "files" lie in it, and a record of each in "info".
struct TrashFolder {
    std::string folder; ///< "/home/ann/.local/share/Trash", "/media/disk/.Trash-1000"
    /// Records of a volume's Trash name paths below this folder, "/media/disk"; "" where they are absolute.
    std::string top;

    std::string filesFolder() const { return folder + "/files"; }
    std::string infoFolder() const { return folder + "/info"; }
    std::string recordOf(std::string_view name) const;
    /// The path that a record's text stands for.
    std::string pathOf(std::string_view recorded) const;
    /// Whether the record of that name is there and whole, and names the path, by whichever links.
    bool isRecorded(std::string_view name, const std::string& path) const;
};

/// The folders, best first, that may take a file of that device which lies in `folder`: the user's own Trash
/// where it is on the same device, else the two of the file's volume. None of them need exist.
std::vector<TrashFolder> trashFoldersFor(const std::string& folder, dev_t device);

/// The same for a file of that path that has gone there, whose folder need not exist any more.
std::vector<TrashFolder> trashFoldersOnceFor(const std::string& path);

/// The Trash folder that the file lies in.
TrashFolder trashFolderOf(const TrashedFile& file);

/// The name that a file called `name` gets in the Trash where `number` - 1 of its names are taken:
/// "a.b.mp3", "a.2.b.mp3", "a.3.b.mp3".
std::string numberedName(std::string_view name, int number);

/// Whether numberedName makes `numbered` of the name with some number.
bool isNumberedName(std::string_view numbered, std::string_view name);

} // namespace songsweep
