// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace songsweep {

/// Comparison without regard to case: simple case folding (one character to one, so ß is not ss), canonically
/// equivalent texts equal, accents and widths distinct.

/// The key of a text: decomposed, then folded. Keys compare byte by byte, which is by code point.
std::string foldedKey(std::string_view text);
/// The same, put behind what `key` holds already; costs no memory of its own for plain ASCII.
void appendFoldedKey(std::string& key, std::string_view text);

/// Whether two texts are equal without regard to case.
bool equalIgnoringCase(std::string_view a, std::string_view b);

/// Below, at or above 0 as a stands before, with or after b without regard to case.
int compareIgnoringCase(std::string_view a, std::string_view b);

/// The text in lower or upper case, by the rules of no language.
std::string lowercase(std::string_view text);
std::string uppercase(std::string_view text);

} // namespace songsweep
