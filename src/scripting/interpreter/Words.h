// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Ascii.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace songsweep::interpreter {

/// Words of the language compare without regard to the case of the letters A to Z.

constexpr bool isSameWord(std::string_view left, std::string_view right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char a, char b) { return asciiLower(a) == asciiLower(b); });
}

constexpr bool isWordLess(std::string_view left, std::string_view right) {
    return std::lexicographical_compare(
        left.begin(), left.end(), right.begin(), right.end(), [](char a, char b) {
            return static_cast<unsigned char>(asciiLower(a)) < static_cast<unsigned char>(asciiLower(b));
        });
}

inline std::string loweredWord(std::string_view word) { return asciiLower(std::string(word)); }

} // namespace songsweep::interpreter
