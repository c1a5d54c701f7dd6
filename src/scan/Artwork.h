// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"

#include <string>

namespace songsweep {

/// The bytes of the picture that a sound file carries, of its front cover where it has several; empty where
/// it has none. They are as the file has them: an image of any format, or of none.
///
/// `path` is the file as the system finds it. An error where it cannot be read, or is no sound file by its
/// name. Whatever bytes it has, nothing else comes of it. Any thread, several at once.
Result<std::string> artworkOf(const std::string& path);

} // namespace songsweep
