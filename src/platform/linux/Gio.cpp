// SPDX-License-Identifier: MIT
#include "platform/linux/Gio.h"

namespace songsweep::gio {

namespace {

Error::Code codeFor(gint code) {
    switch (code) {
    case G_IO_ERROR_NOT_FOUND:
        return Error::Code::notFound;
    case G_IO_ERROR_PERMISSION_DENIED:
    case G_IO_ERROR_READ_ONLY:
        return Error::Code::noPermission;
    case G_IO_ERROR_NOT_SUPPORTED:
        return Error::Code::notSupported;
    case G_IO_ERROR_NO_SPACE:
        return Error::Code::noSpace;
    case G_IO_ERROR_TIMED_OUT:
    case G_IO_ERROR_BUSY:
        return Error::Code::busy;
    case G_IO_ERROR_CANCELLED:
        return Error::Code::cancelled;
    case G_IO_ERROR_FILENAME_TOO_LONG:
    case G_IO_ERROR_INVALID_FILENAME:
        return Error::Code::invalid;
    default:
        return Error::Code::failed;
    }
}

} // namespace

Error errorFrom(GError* error) {
    if (error == nullptr) return {Error::Code::failed, "Unknown error"};
    const Owned<GError> owner(error);
    const Error::Code code = error->domain == G_IO_ERROR ? codeFor(error->code) : Error::Code::failed;
    return {code, error->message};
}

} // namespace songsweep::gio
