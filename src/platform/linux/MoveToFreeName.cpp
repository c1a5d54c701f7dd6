// SPDX-License-Identifier: MIT
#include "platform/linux/MoveToFreeName.h"

#include "platform/SystemError.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace songsweep {

namespace {

bool isLacking(int error) { return error == EINVAL || error == ENOSYS || error == EOPNOTSUPP; }

/// Takes the name with an empty file first, so that nobody else can.
int moveOverOwnFile(const char* from, const char* to) {
    const int file = ::open(to, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (file < 0) return errno;
    ::close(file);
    if (::rename(from, to) == 0) return 0;
    const int error = errno;
    ::unlink(to);
    return error;
}

int moveByLink(const char* from, const char* to) {
    if (::link(from, to) != 0) return errno == EPERM || isLacking(errno) ? moveOverOwnFile(from, to) : errno;
    if (::unlink(from) == 0) return 0;
    const int error = errno;
    ::unlink(to);
    return error;
}

int move(const char* from, const char* to) {
    if (::renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE) == 0) return 0;
    return isLacking(errno) ? moveByLink(from, to) : errno;
}

} // namespace

Result<void> moveToFreeName(const std::string& from, const std::string& to) {
    const int error = move(from.c_str(), to.c_str());
    if (error != 0) return systemError(error, to);
    return {};
}

} // namespace songsweep
