// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"

#include <string>
#include <string_view>

namespace songsweep::cli {

/// The text of a script, in UTF-8 without a mark, from a file or, for "-", from standard input.
///
/// Reading stops where no script may be as long, so that an endless device is refused, too.
Result<std::string> readScript(const std::string& file);

/// The text that the bytes of a file stand for: UTF-8 with or without a mark, or UTF-16 with its mark. The
/// error names any other encoding, as a guess would run another script than the one that was written.
Result<std::string> decodedScript(std::string_view bytes);

} // namespace songsweep::cli
