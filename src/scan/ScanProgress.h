// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <string>

namespace songsweep {

/// What a user is told while a folder is read: "Reading 3,800 of 6,000 files…", and behind it, as soon as
/// that is known well enough, "about 2 minutes left". The clock is the caller's: a free function,
/// thread-safe.
std::string scanProgressText(std::size_t read, std::size_t toRead, std::chrono::milliseconds elapsed);

/// "3 files could not be read"; empty for none.
std::string unreadFilesText(std::size_t count);

} // namespace songsweep
