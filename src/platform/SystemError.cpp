// SPDX-License-Identifier: MIT
#include "platform/SystemError.h"

#include <cerrno>
#include <system_error>

namespace songsweep {

namespace {

Error::Code codeOf(int number) {
    switch (number) {
    case ENOENT:
    case ENOTDIR:
        return Error::Code::notFound;
    case EACCES:
    case EPERM:
    case EROFS:
        return Error::Code::noPermission;
    case EEXIST:
    case ENOTEMPTY:
        return Error::Code::alreadyExists;
    case ENOSPC:
    case EDQUOT:
        return Error::Code::noSpace;
    case ENAMETOOLONG:
        return Error::Code::invalid;
    case EXDEV:
        return Error::Code::notSupported;
    case EBUSY:
        return Error::Code::busy;
    case EIO:
        return Error::Code::inputOutput;
    default:
        return Error::Code::failed;
    }
}

} // namespace

Error systemError(int number, const std::string& path) {
    return {codeOf(number), path + ": " + std::generic_category().message(number)};
}

Error systemError(int number, const std::string& action, const std::string& path) {
    return systemError(number, "cannot " + action + " " + path);
}

} // namespace songsweep
