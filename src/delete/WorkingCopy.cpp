// SPDX-License-Identifier: MIT
#include "delete/WorkingCopy.h"

#include "delete/DeleteTexts.h"
#include "platform/Files.h"

#include <string>

namespace songsweep {

bool isWorkingCopy(const Files& files, std::string_view location) {
    if (!isPath(location)) return false;
    const std::string path(location);
    const auto attributes = files.attributes(path);
    return attributes && attributes->kind == FileAttributes::Kind::file && attributes->size > 0 &&
           files.isReadable(path);
}

} // namespace songsweep
