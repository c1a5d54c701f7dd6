// SPDX-License-Identifier: MIT
#include "platform/TerminalText.h"

#include <unicode/uchar.h>
#include <unicode/utf8.h>

#include <cstdint>
#include <cstdio>

namespace songsweep {

namespace {

enum class Breaks { stay, areShown };

bool isToBeShown(UChar32 character) {
    switch (u_charType(character)) {
    case U_CONTROL_CHAR:
    case U_LINE_SEPARATOR:
    case U_PARAGRAPH_SEPARATOR:
        return true;
    default:
        return u_hasBinaryProperty(character, UCHAR_BIDI_CONTROL);
    }
}

/// A carriage return alone would write over what stands before it in the line.
bool isBreak(std::string_view rest) {
    return rest.starts_with('\n') || rest.starts_with('\t') || rest.starts_with("\r\n");
}

std::string code(const char* form, unsigned value) {
    char written[16] = {};
    std::snprintf(written, sizeof written, form, value);
    return written;
}

std::string shown(std::string_view text, Breaks breaks) {
    std::string result;
    const auto length = static_cast<std::int32_t>(text.size());
    for (std::int32_t at = 0; at < length;) {
        const std::int32_t begin = at;
        UChar32 character = 0;
        U8_NEXT(text.data(), at, length, character);
        const std::string_view bytes = text.substr(begin, at - begin);
        if (character < 0) {
            for (const char byte : bytes)
                result += code("<%02X>", static_cast<unsigned char>(byte));
        } else if (isToBeShown(character) && (breaks == Breaks::areShown || !isBreak(text.substr(begin)))) {
            result += code("<U+%04X>", static_cast<unsigned>(character));
        } else {
            result += bytes;
        }
    }
    return result;
}

} // namespace

std::string terminalText(std::string_view text) { return shown(text, Breaks::stay); }

std::string terminalLine(std::string_view text) { return shown(text, Breaks::areShown); }

} // namespace songsweep
