// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

namespace songsweep {

/// What a file is that people take for the library but that is no library file: the database of iTunes or of
/// Music, an archive, a binary property list, an empty file. In sentences that name the file and the way to
/// one that can be read; nothing where the file may be a library, or cannot be looked at.
///
/// Looks at the beginning of the file and never at all of it. Thread-safe.
std::optional<std::string> foreignFile(const std::string& path);

/// The way to a library file, in one sentence.
std::string wayToLibraryFile();

} // namespace songsweep
