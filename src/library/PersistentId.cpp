// SPDX-License-Identifier: MIT
#include "library/PersistentId.h"

#include "platform/Ascii.h"

namespace songsweep {

namespace {

constexpr std::size_t exactLength = 16;

/// FNV-1a over the lower-cased bytes.
std::uint64_t hashOf(std::string_view text) {
    std::uint64_t hash = 0xcbf29ce484222325;
    for (const char c : text) {
        hash = (hash ^ static_cast<unsigned char>(asciiLower(c))) * 0x100000001b3;
    }
    return hash;
}

} // namespace

PersistentId PersistentId::of(std::string_view text) {
    if (text.empty()) return {};
    std::uint64_t value = 0;
    if (text.size() == exactLength) {
        std::size_t digits = 0;
        for (; digits < exactLength && hexDigit(text[digits]) >= 0; ++digits)
            value = value << 4 | static_cast<std::uint64_t>(hexDigit(text[digits]));
        if (digits == exactLength) return {value, Kind::exact};
    }
    return {hashOf(text), Kind::hashed};
}

} // namespace songsweep
