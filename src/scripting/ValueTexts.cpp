// SPDX-License-Identifier: MIT
#include "scripting/ValueTexts.h"

#include "platform/Epochs.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <limits>

namespace songsweep {
namespace {

constexpr double firstWithExponent = 10000.0;
constexpr double lastWithExponent = 0.0001;

std::string digits(double number, std::chars_format format) {
    std::array<char, 400> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number, format).ptr;
    return {text.data(), end};
}

/// "1.5e+04" as AppleScript has it: "1.5E+4".
std::string scientificText(double number) {
    const std::string text = digits(number, std::chars_format::scientific);
    const std::size_t exponent = text.find('e');
    std::string mantissa = text.substr(0, exponent);
    if (mantissa.find('.') == std::string::npos) mantissa += ".0";
    const std::size_t firstDigit = text.find_first_not_of('0', exponent + 2);
    return mantissa + 'E' + text[exponent + 1] + text.substr(std::min(firstDigit, text.size() - 1));
}

} // namespace

std::string realText(double number) {
    if (std::isnan(number)) return "NaN";
    if (std::isinf(number)) return number > 0 ? "Infinity" : "-Infinity";
    const double size = std::abs(number);
    if (size >= firstWithExponent || (size > 0 && size <= lastWithExponent)) return scientificText(number);
    const std::string text = digits(number, std::chars_format::fixed);
    return text.find('.') == std::string::npos ? text + ".0" : text;
}

std::int64_t leadingInteger(std::string_view text) {
    std::size_t position = std::min(text.find_first_not_of(" \t\r\n"), text.size());
    if (text.substr(position).starts_with('+')) ++position;
    text.remove_prefix(position);
    std::int64_t number = 0;
    const auto parsed = std::from_chars(text.data(), text.data() + text.size(), number);
    if (parsed.ec != std::errc::result_out_of_range) return number;
    return text.starts_with('-') ? std::numeric_limits<std::int64_t>::min()
                                 : std::numeric_limits<std::int64_t>::max();
}

std::string dateText(std::int64_t longDateTime) {
    using namespace std::chrono;
    const sys_seconds moment = longDateTimeEpoch + seconds(longDateTime);
    const auto day = floor<days>(moment);
    const year_month_day date(day);
    const hh_mm_ss time(moment - day);
    static constexpr std::array dayNames{"Sunday",   "Monday", "Tuesday", "Wednesday",
                                         "Thursday", "Friday", "Saturday"};
    static constexpr std::array monthNames{"January",   "February", "March",    "April",
                                           "May",       "June",     "July",     "August",
                                           "September", "October",  "November", "December"};
    const auto hour = time.hours().count();
    std::array<char, 100> text{};
    std::snprintf(text.data(), text.size(), "%s, %s %u, %d at %d:%02d:%02d %s",
                  dayNames.at(weekday(day).c_encoding()), monthNames.at(unsigned(date.month()) - 1),
                  unsigned(date.day()), int(date.year()), int(hour % 12 == 0 ? 12 : hour % 12),
                  int(time.minutes().count()), int(time.seconds().count()), hour < 12 ? "AM" : "PM");
    return text.data();
}

} // namespace songsweep
