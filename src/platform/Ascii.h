// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace songsweep {

/// The letters A to Z, in which fixed names are written. Texts of a user have CaseFolding.

constexpr char asciiLower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; }
constexpr char asciiUpper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - ('a' - 'A')) : c; }

/// The text with its letters A to Z in lower case, all other bytes as they are.
inline std::string asciiLower(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), [](char c) { return asciiLower(c); });
    return text;
}

constexpr bool isAscii(char c) { return static_cast<unsigned char>(c) < 0x80; }

/// Whether no byte is part of a character beyond ASCII. Looks at all of them, which for short texts is
/// faster than to stop at the first.
constexpr bool isAscii(std::string_view text) {
    unsigned char bits = 0;
    for (const char c : text)
        bits = static_cast<unsigned char>(bits | static_cast<unsigned char>(c));
    return bits < 0x80;
}

/// By character, since the digits of an ID follow no rule that a processor could foresee.
constexpr auto hexDigits = [] {
    std::array<std::int8_t, 256> digits{};
    digits.fill(-1);
    for (std::int8_t value = 0; value < 16; ++value) {
        const auto digit = static_cast<unsigned char>("0123456789abcdef"[value]);
        digits[digit] = digits[static_cast<unsigned char>(asciiUpper(static_cast<char>(digit)))] = value;
    }
    return digits;
}();

/// The value of a hexadecimal digit, in either case; -1 for anything else.
constexpr int hexDigit(char c) { return hexDigits[static_cast<unsigned char>(c)]; }

} // namespace songsweep
