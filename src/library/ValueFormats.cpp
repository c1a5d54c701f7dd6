// SPDX-License-Identifier: MIT
#include "library/ValueFormats.h"

#include "library/Trim.h"
#include "platform/DecimalPoint.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>

namespace songsweep {

namespace {

bool isBlank(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
bool isDigit(char c) { return c >= '0' && c <= '9'; }

/// Digits are added downwards, since the lowest number has no positive counterpart.
std::int64_t negatedDigits(std::string_view digits) {
    constexpr std::int64_t lowest = -(std::int64_t{1} << 32);
    std::int64_t value = 0;
    for (const char c : digits) {
        if (!isDigit(c)) break;
        value = value * 10 - (c - '0');
        if (value < lowest) return lowest;
    }
    return value;
}

std::int32_t heldTo32Bits(std::int64_t value) {
    using Limits = std::numeric_limits<std::int32_t>;
    if (value > Limits::max()) return Limits::max();
    if (value < Limits::min()) return Limits::min();
    return static_cast<std::int32_t>(value);
}

std::string inMegabytes(double figure) {
    char text[32];
    return {text, static_cast<std::size_t>(std::snprintf(text, sizeof text, "%.1f MB", figure))};
}

/// At least two digits, behind the sign.
std::string twoDigits(int number) {
    if (number < 0) return '-' + twoDigits(-number);
    return (number < 10 ? "0" : "") + std::to_string(number);
}

} // namespace

std::string SecToTime(std::int32_t milliseconds) {
    int seconds = milliseconds / 1000;
    if (milliseconds - 1000 * seconds > 500) ++seconds;
    const int hours = seconds / 3600;
    const int minutes = seconds / 60 - 60 * hours;
    const int rest = seconds - 3600 * hours - 60 * minutes;
    if (seconds < 3600) return std::to_string(minutes) + ':' + twoDigits(rest);
    return std::to_string(hours) + ':' + twoDigits(minutes) + ':' + twoDigits(rest);
}

std::int32_t TimestringToSec(std::string_view time) {
    constexpr std::array<std::int64_t, 3> secondsOfField = {1, 60, 3600};
    std::int64_t total = 0;
    std::string_view left = time;
    for (const std::int64_t unit : secondsOfField) {
        const std::size_t colon = left.rfind(':');
        if (colon == std::string_view::npos)
            return static_cast<std::int32_t>(total + unit * integerValue(left));
        total += unit * integerValue(left.substr(colon + 1));
        left = left.substr(0, colon);
    }
    return static_cast<std::int32_t>(total);
}

std::int32_t integerValue(std::string_view text) {
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+')) text.remove_prefix(1);
    const std::int64_t value = negatedDigits(text);
    return heldTo32Bits(negative ? value : -value);
}

std::optional<std::int64_t> wholeNumber(std::string_view text) {
    text = trimmed(text);
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size()) return {};
    return number;
}

std::string sizestring(std::int32_t bytes) {
    // 1.0 and not 0.5: the figure is rounded up by one tenth.
    return inMegabytes(std::floor(bytes / 1048576.0 * 10 + 1.0) / 10);
}

std::string megabytes(std::uint64_t bytes) {
    return withDecimalPoint(inMegabytes(std::floor(static_cast<double>(bytes) / 1048576.0 * 10 + 1.0) / 10));
}

std::string counted(std::size_t count, std::string_view noun) {
    return std::to_string(count) + ' ' + std::string(noun) + (count == 1 ? "" : "s");
}

std::string sizestring(const TrackRecord& record) {
    if (record.size.empty()) return {};
    return sizestring(integerValue(record.size));
}

std::string dateadded(const TrackRecord& record) {
    if (!record.hasdate) return {};
    return shortDateTime(record.dateaddedv);
}

} // namespace songsweep
