// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace songsweep {

/// Numbers and dates as AppleScript writes them.

/// A real: "3.0", "0.25"; from 10000 on, and up to 0.0001, with an exponent: "1.0E+4", "2.5E-5". As many
/// digits as it takes to read the same number back.
std::string realText(double number);

/// The whole number at the start of a text, after blanks; 0 where there is none. Clamped to 64 bits.
std::int64_t leadingInteger(std::string_view text);

/// A date as seconds of local time since 1904-01-01: "Saturday, November 21, 2026 at 1:45:30 AM".
std::string dateText(std::int64_t longDateTime);

} // namespace songsweep
