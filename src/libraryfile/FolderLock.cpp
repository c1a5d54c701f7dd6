// SPDX-License-Identifier: MIT
#include "libraryfile/FolderLock.h"

#include "libraryfile/LibraryFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <thread>
#include <utility>

namespace songsweep {

namespace {

constexpr std::chrono::milliseconds pause{20};

} // namespace

Result<FolderLock> FolderLock::acquire(const std::string& folder, std::chrono::milliseconds timeout) {
    const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) return systemError(errno, "open", folder);
    FolderLock lock(descriptor);
    const auto last = std::chrono::steady_clock::now() + timeout;
    while (::flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK && errno != EINTR) break;
        if (std::chrono::steady_clock::now() >= last)
            return Error{Error::Code::busy, "another program is writing to " + folder};
        std::this_thread::sleep_for(pause);
    }
    return lock;
}

FolderLock::FolderLock(FolderLock&& other) noexcept
    : m_descriptor(std::exchange(other.m_descriptor, -1)) {}

FolderLock& FolderLock::operator=(FolderLock&& other) noexcept {
    std::swap(m_descriptor, other.m_descriptor);
    return *this;
}

FolderLock::~FolderLock() {
    if (m_descriptor >= 0) ::close(m_descriptor);
}

} // namespace songsweep
