// SPDX-License-Identifier: MIT
#include "libraryfile/FileNames.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace songsweep {

namespace {

enum class Way { exchange, freeName };

int renameBy(Way way, const std::string& from, const std::string& to) {
#ifdef __APPLE__
    const unsigned flags = way == Way::exchange ? RENAME_SWAP : RENAME_EXCL;
    return ::renamex_np(from.c_str(), to.c_str(), flags) == 0 ? 0 : errno;
#else
    const unsigned flags = way == Way::exchange ? RENAME_EXCHANGE : RENAME_NOREPLACE;
    return ::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), flags) == 0 ? 0 : errno;
#endif
}

bool isUnknownToFileSystem(int errorNumber) {
    return errorNumber == EINVAL || errorNumber == ENOSYS || errorNumber == ENOTSUP ||
           errorNumber == EOPNOTSUPP;
}

/// Claims the name with a second name of the file, or with an empty file that the rename replaces.
int renameAfterClaiming(const std::string& from, const std::string& to) {
    if (::link(from.c_str(), to.c_str()) == 0) {
        ::unlink(from.c_str());
        return 0;
    }
    if (errno == EEXIST) return EEXIST;
    const int claimed = ::open(to.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (claimed < 0) return errno;
    ::close(claimed);
    if (std::rename(from.c_str(), to.c_str()) == 0) return 0;
    const int errorNumber = errno;
    ::unlink(to.c_str());
    return errorNumber;
}

} // namespace

int exchangeFiles(const std::string& one, const std::string& other) {
    return renameBy(Way::exchange, one, other);
}

bool lacksExchange(int errorNumber) { return isUnknownToFileSystem(errorNumber); }

int renameToFreeName(const std::string& from, const std::string& to) {
    const int errorNumber = renameBy(Way::freeName, from, to);
    return isUnknownToFileSystem(errorNumber) ? renameAfterClaiming(from, to) : errorNumber;
}

int flushFolder(const std::string& folder) {
    const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    // A folder that may be written to but not listed cannot be opened; its file system flushes it in time.
    if (descriptor < 0) return errno == EACCES ? 0 : errno;
    const int errorNumber = ::fsync(descriptor) == 0 ? 0 : errno;
    ::close(descriptor);
    return isUnknownToFileSystem(errorNumber) || errorNumber == EBADF ? 0 : errorNumber;
}

std::string folderOf(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos) return ".";
    return slash == 0 ? "/" : path.substr(0, slash);
}

std::string nameOf(const std::string& path) { return path.substr(path.rfind('/') + 1); }

} // namespace songsweep
