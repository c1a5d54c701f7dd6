// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace songsweep {

// Numbers in what windows say. Free functions, thread-safe.

/// "3,800": a number as the user's language groups its digits.
std::string groupedNumber(std::size_t number);

/// "1 file", "3,800 files": such a count before a noun that takes an "s".
std::string groupedCount(std::size_t count, std::string_view noun);

} // namespace songsweep
