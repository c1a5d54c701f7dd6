// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace songsweep {

/// Words as they are written between the two quotes of a text, so that they read back as themselves: quotes
/// and backslashes get a backslash before them.
///
/// Texts hold words that come from library files, which anybody may have written. Words that end their
/// literal would go on as a script of their own, so that whoever makes a text writes its words with this.
/// Line breaks, and bytes that are no UTF-8, stand as they are.
std::string escapedWords(std::string_view words);

/// Whether a text can hold the words: a zero byte would end it for the system's own AppleScript.
bool canStandInText(std::string_view words);

} // namespace songsweep
