// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace songsweep {

/// Changes of names in one folder, as the system does them in one step. Each gives 0 or the errno.
///
/// Not every file system can do all of them, so that callers look at `lacksExchange` and choose another way.

/// Lets two files change places; none of the names is ever without a file.
int exchangeFiles(const std::string& one, const std::string& other);
/// Whether this errno of `exchangeFiles` says that the file system does not know how. It checks permissions,
/// attributes and mounts before it says so.
bool lacksExchange(int errorNumber);

/// Gives a file a name that nothing has; EEXIST where something has it. Where the file system cannot do that
/// in one step, an empty file may stay under the new name if the program is killed meanwhile.
int renameToFreeName(const std::string& from, const std::string& to);

/// Sees to it that names changed in a folder are on the disk; 0 also where the file system cannot.
int flushFolder(const std::string& folder);

/// The folder of a path, "/" and "." included, without a slash at its end.
std::string folderOf(const std::string& path);
std::string nameOf(const std::string& path);

} // namespace songsweep
