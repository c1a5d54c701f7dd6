// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace songsweep {

/// Whether words written between two quotes in a text read back as themselves: a quote would end the literal,
/// and a backslash begins an escape.
///
/// Texts hold words that come from library files, which anybody may have written. Words that end their
/// literal would go on as a script of their own, so that whoever makes a text asks here first.
bool canStandInText(std::string_view words);

} // namespace songsweep
