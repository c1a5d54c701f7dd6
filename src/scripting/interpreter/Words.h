// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace songsweep::interpreter {

/// Words of the language compare without regard to the case of the letters A to Z.

constexpr char loweredLetter(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

inline bool isSameWord(std::string_view left, std::string_view right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char a, char b) { return loweredLetter(a) == loweredLetter(b); });
}

inline bool isWordLess(std::string_view left, std::string_view right) {
    return std::lexicographical_compare(left.begin(), left.end(), right.begin(), right.end(),
                                        [](char a, char b) {
                                            return static_cast<unsigned char>(loweredLetter(a)) <
                                                   static_cast<unsigned char>(loweredLetter(b));
                                        });
}

inline std::string loweredWord(std::string_view word) {
    std::string lowered(word);
    for (char& letter : lowered)
        letter = loweredLetter(letter);
    return lowered;
}

} // namespace songsweep::interpreter
