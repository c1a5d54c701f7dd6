// SPDX-License-Identifier: MIT
#include "platform/linux/MadeFolders.h"

#include "platform/SystemError.h"
#include "platform/linux/PathParts.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace songsweep {

MadeFolders::~MadeFolders() {
    for (; !m_folders.empty(); m_folders.pop_back())
        ::rmdir(m_folders.back().c_str());
}

Result<void> MadeFolders::make(const std::string& folder) {
    std::vector<std::string> missing;
    for (std::string each = folder; each != "/" && ::access(each.c_str(), F_OK) != 0; each = folderOf(each))
        missing.push_back(each);
    std::reverse(missing.begin(), missing.end());
    for (const std::string& each : missing) {
        if (::mkdir(each.c_str(), 0777) == 0)
            m_folders.push_back(each);
        else if (errno != EEXIST)
            return systemError(errno, each);
    }
    return {};
}

} // namespace songsweep
