// SPDX-License-Identifier: MIT
#include "library/Trim.h"

#include <unicode/uchar.h>
#include <unicode/utf8.h>

#include <cstdint>

namespace songsweep {

namespace {

/// The length of the white space character at the beginning, 0 where there is none.
std::size_t leadingSpace(std::string_view text) {
    std::int32_t position = 0;
    UChar32 character = 0;
    U8_NEXT(text.data(), position, static_cast<std::int32_t>(text.size()), character);
    return character >= 0 && u_isUWhiteSpace(character) ? static_cast<std::size_t>(position) : 0;
}

std::size_t trailingSpace(std::string_view text) {
    auto position = static_cast<std::int32_t>(text.size());
    UChar32 character = 0;
    U8_PREV(text.data(), 0, position, character);
    return character >= 0 && u_isUWhiteSpace(character) ? text.size() - static_cast<std::size_t>(position)
                                                        : 0;
}

/// A visible ASCII character ends the white space without a look into the tables.
bool isPlain(char c) { return c > ' ' && c < 0x7f; }

} // namespace

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && !isPlain(text.front())) {
        const std::size_t space = leadingSpace(text);
        if (space == 0) break;
        text.remove_prefix(space);
    }
    while (!text.empty() && !isPlain(text.back())) {
        const std::size_t space = trailingSpace(text);
        if (space == 0) break;
        text.remove_suffix(space);
    }
    return text;
}

} // namespace songsweep
