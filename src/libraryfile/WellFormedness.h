// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/LibraryFile.h"

namespace songsweep {

/// Reads the whole file with a full parser and says whether it is well-formed XML: nothing is built on a file
/// that only looks so to the fast scan. Not well formed is an error with its line. Expansion of entities is
/// bounded. For a file that was indexed: it is taken for UTF-8, whatever name it gives that. A file of 150 MB
/// costs about a second.
Result<void> checkWellFormedness(const LibraryFile& file);

} // namespace songsweep
