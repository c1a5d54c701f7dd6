// SPDX-License-Identifier: MIT
#include "platform/Utf8.h"

#include <unicode/utf8.h>

#include <cstdint>

namespace songsweep {

bool isUtf8(std::string_view bytes) {
    const auto length = static_cast<std::int32_t>(bytes.size());
    for (std::int32_t i = 0; i < length;) {
        UChar32 character = 0;
        U8_NEXT(bytes.data(), i, length, character);
        if (character < 0) return false;
    }
    return true;
}

} // namespace songsweep
