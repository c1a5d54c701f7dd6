// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

namespace songsweep {

/// A number of 64 bits that differs wherever the bytes do, but for chance; the same on every machine, as it
/// is kept in files. No protection against bytes that were made for it.
std::uint64_t hash64(std::string_view bytes);

} // namespace songsweep
