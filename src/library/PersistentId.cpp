// SPDX-License-Identifier: MIT
#include "library/PersistentId.h"

namespace songsweep {

namespace {

constexpr std::size_t exactLength = 16;

int hexDigit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    const char lower = static_cast<char>(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

/// FNV-1a over the lower-cased bytes.
std::uint64_t hashOf(std::string_view text) {
    std::uint64_t hash = 0xcbf29ce484222325;
    for (const char c : text) {
        const char lower = c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c;
        hash = (hash ^ static_cast<unsigned char>(lower)) * 0x100000001b3;
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
