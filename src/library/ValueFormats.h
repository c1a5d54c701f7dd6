// SPDX-License-Identifier: MIT
#pragma once

#include "library/TrackRecord.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace songsweep {

/// The forms in which values are written and read. Free functions, thread-safe.

/// A display duration of milliseconds, half a second rounding down: 1501 gives "0:02", 3600000 "1:00:00".
std::string SecToTime(std::int32_t milliseconds);

/// Whole seconds of a display duration: "3:45" gives 225, "" 0; fields left of the hours are ignored.
std::int32_t TimestringToSec(std::string_view time);

/// The leading decimal integer of a text, blanks before it skipped, held to 32 bits: "12abc" gives 12, "" 0.
std::int32_t integerValue(std::string_view text);

/// The number that a text is, blanks around it left out; nothing for any other text.
std::optional<std::int64_t> wholeNumber(std::string_view text);

/// A file size for display: "5.1 MB" of 5242880 bytes, one tenth above the truncated value.
std::string sizestring(std::int32_t bytes);
/// The record's size for display, "" where the library gave none.
std::string sizestring(const TrackRecord& record);

/// A sum of file sizes, in the same form, with the decimal point of the user's locale: "5,1 MB".
std::string megabytes(std::uint64_t bytes);

/// "1 file", "3 files", "0 files": a count before a noun that takes an "s".
std::string counted(std::size_t count, std::string_view noun);

/// Seconds since 1970 UTC of a library date ("2009-03-14T15:09:26Z"); nothing where it is none.
std::optional<std::int64_t> parseLibraryDate(std::string_view text);

/// The library date of an instant; nothing outside of the years that it can write, 0 to 9999.
std::optional<std::string> libraryDate(std::int64_t secondsSince1970);

/// A date in the user's locale and time zone, short date and short time style.
std::string shortDateTime(std::int64_t secondsSince1970);
/// The same with the seconds, for dates that read alike without them.
std::string dateTimeWithSeconds(std::int64_t secondsSince1970);
/// The record's date added for display, "" where the library gave none.
std::string dateadded(const TrackRecord& record);

} // namespace songsweep
