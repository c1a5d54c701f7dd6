// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace songsweep {

/// Texts as a terminal may get them: names and paths are other people's, and their control characters would
/// move the cursor, hide what was said, or make the terminal type.
///
/// Shown as "<U+001B>" instead of sent: the controls of ASCII and of Latin-1, the marks that turn the
/// direction of writing, and the separators of lines and paragraphs. A byte that is not UTF-8 shows as
/// "<9B>". All else stays as it is. Thread-safe.

/// A text of several lines: line breaks ("\n", "\r\n") and tabs stay.
std::string terminalText(std::string_view text);

/// A text of one line, such as a name: its line breaks and tabs are shown too.
std::string terminalLine(std::string_view text);

} // namespace songsweep
