// SPDX-License-Identifier: MIT
#include "libraryfile/SmallFileSystem.h"

#include <sys/mount.h>

#include <filesystem>

namespace songsweep::test {

SmallFileSystem::SmallFileSystem(std::string folder, std::size_t bytes)
    : m_folder(std::move(folder)) {
    std::filesystem::create_directory(m_folder);
    const std::string options = "size=" + std::to_string(bytes);
    m_mounted = ::mount("tmpfs", m_folder.c_str(), "tmpfs", 0, options.c_str()) == 0;
}

SmallFileSystem::~SmallFileSystem() {
    // Lazily: a file of it may still be open.
    if (m_mounted) ::umount2(m_folder.c_str(), MNT_DETACH);
}

bool SmallFileSystem::makeReadOnly() const {
    return ::mount("tmpfs", m_folder.c_str(), "tmpfs", MS_REMOUNT | MS_RDONLY, nullptr) == 0;
}

} // namespace songsweep::test
