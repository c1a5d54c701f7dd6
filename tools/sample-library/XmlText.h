// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace songsweep::sample {

/// The pieces of which a library file is made, each appended to a text. They allocate nothing of their own.
void appendEscaped(std::string& text, std::string_view value); ///< & < > as entities
void appendFileUrl(std::string& text, std::string_view path);  ///< file:///…, percent-encoded
void appendNumber(std::string& text, std::int64_t value);
void appendHex(std::string& text, std::uint64_t value);            ///< 16 upper-case digits
void appendDate(std::string& text, std::int64_t secondsSince1970); ///< 2009-03-14T15:09:26Z

} // namespace songsweep::sample
