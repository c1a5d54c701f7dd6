// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace songsweep::interpreter {

/// Texts as the language compares them: without regard to letter case, and composed and decomposed
/// characters alike. UTF-8; what is not valid UTF-8 compares by the replacement character.

/// The form in which two such texts are byte for byte the same.
std::string foldedText(std::string_view text);

/// Whether two texts are the same; no copy is made where both are ASCII.
bool isSameText(std::string_view left, std::string_view right);

/// The number of characters (code points) of a text.
std::size_t characterCount(std::string_view text);

/// Where character `index`, counted from 0, begins, in bytes; the length of the text when it is past the end.
std::size_t characterOffset(std::string_view text, std::size_t index);

} // namespace songsweep::interpreter
