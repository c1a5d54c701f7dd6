// SPDX-License-Identifier: MIT
#include "scripting/TextLiteral.h"

namespace songsweep {

std::string escapedWords(std::string_view words) {
    std::string escaped;
    escaped.reserve(words.size());
    for (const char letter : words) {
        if (letter == '"' || letter == '\\') escaped += '\\';
        escaped += letter;
    }
    return escaped;
}

bool canStandInText(std::string_view words) { return words.find('\0') == std::string_view::npos; }

} // namespace songsweep
