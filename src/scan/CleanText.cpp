// SPDX-License-Identifier: MIT
#include "scan/CleanText.h"

#include <unicode/utf8.h>

#include <algorithm>
#include <cstdint>
#include <string_view>

namespace songsweep {

namespace {

bool isPlain(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte >= 0x20 && byte < 0x7F;
}

bool isXmlCharacter(UChar32 character) {
    if (character < 0x20) return character == '\t' || character == '\n' || character == '\r';
    return character != 0xFFFE && character != 0xFFFF;
}

} // namespace

std::string cleanText(std::string text) {
    constexpr std::string_view replacement = "\xEF\xBF\xBD";
    if (std::all_of(text.begin(), text.end(), isPlain)) return text;
    std::string clean;
    const auto length = static_cast<std::int32_t>(text.size());
    for (std::int32_t i = 0; i < length;) {
        const std::int32_t begin = i;
        UChar32 character = 0;
        U8_NEXT(text.data(), i, length, character);
        if (character < 0) {
            clean += replacement;
        } else if (isXmlCharacter(character)) {
            clean.append(text, static_cast<std::size_t>(begin), static_cast<std::size_t>(i - begin));
        }
    }
    return clean;
}

} // namespace songsweep
