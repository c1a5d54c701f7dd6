// SPDX-License-Identifier: MIT
#include "libraryfile/TemporaryFile.h"

#include "libraryfile/FileNames.h"
#include "libraryfile/TemporaryName.h"
#include "platform/SystemError.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <random>
#include <utility>

namespace songsweep {

namespace {

constexpr int mostAttempts = 100;

bool knowsNoReservation(int errorNumber) {
    return errorNumber == EOPNOTSUPP || errorNumber == ENOTSUP || errorNumber == ENOSYS ||
           errorNumber == EINVAL;
}

/// 0 or the errno.
int allocate(int descriptor, std::uint64_t bytes) {
#ifdef __APPLE__
    struct fstore store = {F_ALLOCATEALL, F_PEOFPOSMODE, 0, static_cast<off_t>(bytes), 0};
    return ::fcntl(descriptor, F_PREALLOCATE, &store) == 0 ? 0 : errno;
#else
    while (::fallocate(descriptor, 0, 0, static_cast<off_t>(bytes)) != 0)
        if (errno != EINTR) return errno;
    return 0;
#endif
}

/// Whether the file is as long, and without holes: a full disk may refuse to reserve what is reserved.
bool hasRoomFor(int descriptor, std::uint64_t bytes) {
    constexpr std::uint64_t unit = 512; // of what the system counts
    struct stat status {};
    if (::fstat(descriptor, &status) != 0) return false;
    const auto size = static_cast<std::uint64_t>(status.st_size);
    return size >= bytes && static_cast<std::uint64_t>(status.st_blocks) * unit >= size;
}

int lookForRoom(int descriptor, std::uint64_t bytes) {
    struct statvfs status {};
    if (::fstatvfs(descriptor, &status) != 0) return 0; // Nobody knows; the write will.
    return std::uint64_t{status.f_bavail} * status.f_frsize >= bytes ? 0 : ENOSPC;
}

/// Whether no other name and no other open file, of whatever process, is that of this file.
bool isAlone([[maybe_unused]] int descriptor) {
#ifdef __linux__
    struct stat status {};
    if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode) || status.st_nlink != 1) return false;
    // A lease for writing is given to the only one who has the file open. Whoever opens it in this moment has
    // a signal sent, and the usual one would end the process.
    return ::fcntl(descriptor, F_SETSIG, SIGURG) == 0 && ::fcntl(descriptor, F_SETLEASE, F_WRLCK) == 0 &&
           ::fcntl(descriptor, F_SETLEASE, F_UNLCK) == 0;
#else
    return false;
#endif
}

} // namespace

Result<TemporaryFile> TemporaryFile::createBeside(const std::string& library) {
    std::random_device random;
    for (int attempt = 0; attempt < mostAttempts; ++attempt) {
        std::string path = folderOf(library) + "/" + TemporaryName::forWriting(nameOf(library), random());
        const int descriptor = ::open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600);
        if (descriptor >= 0) return TemporaryFile(std::move(path), descriptor);
        if (errno != EEXIST) return systemError(errno, "create a file beside", library);
    }
    return systemError(EEXIST, "create a file beside", library);
}

Result<TemporaryFile> TemporaryFile::reuse(TemporaryFile old, const std::string& library) {
    const int descriptor = ::open(old.m_path.c_str(), O_RDWR | O_NOFOLLOW | O_CLOEXEC);
    if (descriptor < 0) return systemError(errno, "open", old.m_path);
    TemporaryFile file({}, descriptor);
    if (!isAlone(descriptor)) return Error{Error::Code::busy, old.m_path + " is in use"};
    std::random_device random;
    const std::string path = folderOf(library) + "/" + TemporaryName::forWriting(nameOf(library), random());
    if (const int errorNumber = renameToFreeName(old.m_path, path); errorNumber != 0)
        return systemError(errorNumber, "rename a file beside", library);
    old.release();
    file.m_path = path;
    return file;
}

TemporaryFile::TemporaryFile(TemporaryFile&& other) noexcept
    : m_path(std::exchange(other.m_path, {}))
    , m_descriptor(std::exchange(other.m_descriptor, -1)) {}

TemporaryFile& TemporaryFile::operator=(TemporaryFile&& other) noexcept {
    std::swap(m_path, other.m_path);
    std::swap(m_descriptor, other.m_descriptor);
    return *this;
}

TemporaryFile::~TemporaryFile() {
    if (!m_path.empty()) ::unlink(m_path.c_str());
    if (m_descriptor >= 0) ::close(m_descriptor);
}

Result<FileStamp> TemporaryFile::stamp() const { return LibraryFile::stampOf(m_descriptor, m_path); }

Result<void> TemporaryFile::reserve(std::uint64_t bytes) const {
    if (hasRoomFor(m_descriptor, bytes)) return {};
    int errorNumber = allocate(m_descriptor, bytes);
    if (knowsNoReservation(errorNumber)) errorNumber = lookForRoom(m_descriptor, bytes);
    if (errorNumber != 0) return systemError(errorNumber, "reserve room beside", m_path);
    return {};
}

Result<void> TemporaryFile::announceExchange(const std::string& library, const FileStamp& expected) {
    const auto own = stamp();
    if (!own) return own.error();
    const std::string path =
        folderOf(m_path) + "/" + TemporaryName::forExchange(nameOf(library), {own.value(), expected});
    if (path == m_path) return {};
    if (std::rename(m_path.c_str(), path.c_str()) != 0)
        return systemError(errno, "rename a file beside", library);
    m_path = path;
    return {};
}

} // namespace songsweep
