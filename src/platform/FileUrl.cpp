// SPDX-License-Identifier: MIT
#include "platform/FileUrl.h"

namespace songsweep {

namespace {

bool isPlain(char character) {
    constexpr std::string_view marks = "-._~/";
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           (character >= '0' && character <= '9') || marks.find(character) != std::string_view::npos;
}

} // namespace

std::string fileUrl(std::string_view absolutePath) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string url = "file://";
    for (const char character : absolutePath) {
        if (isPlain(character)) {
            url += character;
            continue;
        }
        const auto byte = static_cast<unsigned char>(character);
        url += '%';
        url += digits[byte >> 4U];
        url += digits[byte & 0xFU];
    }
    return url;
}

} // namespace songsweep
