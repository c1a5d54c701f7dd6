// SPDX-License-Identifier: MIT
#include "scan/Hash64.h"

#include <bit>
#include <cstddef>
#include <cstring>

namespace songsweep {

namespace {

constexpr std::uint64_t multiplier = 0x9E3779B97F4A7C15;

std::uint64_t mixed(std::uint64_t value) {
    value = (value ^ (value >> 30U)) * 0xBF58476D1CE4E5B9;
    value = (value ^ (value >> 27U)) * 0x94D049BB133111EB;
    return value ^ (value >> 31U);
}

/// Up to eight bytes, the first one lowest.
std::uint64_t word(std::string_view bytes) {
    std::uint64_t value = 0;
    if (std::endian::native == std::endian::little && bytes.size() == sizeof(value)) {
        std::memcpy(&value, bytes.data(), sizeof(value));
        return value;
    }
    for (std::size_t i = 0; i < bytes.size(); ++i)
        value |= std::uint64_t{static_cast<unsigned char>(bytes[i])} << (8 * i);
    return value;
}

} // namespace

std::uint64_t hash64(std::string_view bytes) {
    std::uint64_t hash = mixed(bytes.size() + multiplier);
    for (; !bytes.empty(); bytes.remove_prefix(bytes.size() < 8 ? bytes.size() : 8))
        hash = mixed(hash ^ (word(bytes.substr(0, 8)) * multiplier));
    return hash;
}

} // namespace songsweep
