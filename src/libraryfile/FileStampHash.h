// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/LibraryFile.h"

#include <cstddef>
#include <functional>

namespace songsweep {

/// For tables by file. Inodes alone tell files apart, but where the file system has none.
struct FileStampHash {
    std::size_t operator()(const FileStamp& file) const {
        return std::hash<std::uint64_t>()(file.inode ^ (file.size << 40U));
    }
};

} // namespace songsweep
