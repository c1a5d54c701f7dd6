// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/LibraryFile.h"

#include <string>
#include <vector>

namespace songsweep {

/// Makes a new file of every byte of another but those of the ranges (in order, none overlapping), with the
/// permissions and, where possible, the owner of the other, and sees to it that it is on the disk. An error
/// where something of that name exists. What a failed copy wrote is removed. As fast as copying a file: long
/// runs are copied by the system.
Result<void> copyWithoutRanges(const LibraryFile& original, const std::vector<ByteRange>& ranges,
                               const std::string& path);

} // namespace songsweep
