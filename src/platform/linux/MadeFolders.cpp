// SPDX-License-Identifier: MIT
#include "platform/linux/MadeFolders.h"

#include "platform/linux/PathParts.h"
#include "platform/linux/SystemError.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <ranges>

namespace songsweep {

MadeFolders::~MadeFolders() {
    for (const std::string& folder : m_folders | std::views::reverse)
        ::rmdir(folder.c_str());
}

Result<void> MadeFolders::make(const std::string& folder) {
    std::vector<std::string> missing;
    for (std::string each = folder; each != "/" && ::access(each.c_str(), F_OK) != 0; each = folderOf(each))
        missing.push_back(each);
    for (const std::string& each : missing | std::views::reverse) {
        if (::mkdir(each.c_str(), 0777) == 0)
            m_folders.push_back(each);
        else if (errno != EEXIST)
            return systemError(errno, each);
    }
    return {};
}

} // namespace songsweep
