// SPDX-License-Identifier: MIT
#include "library/ValueFormats.h"

#include <chrono>
#include <string>
#include <string_view>

namespace songsweep {

namespace {

/// Takes a date apart from its front; any mismatch makes the whole of it invalid.
class DateScanner {
  public:
    explicit DateScanner(std::string_view text)
        : m_left(text) {}

    int number(std::size_t digits) {
        int value = 0;
        for (std::size_t i = 0; i < digits; ++i) {
            const char c = next();
            if (c < '0' || c > '9') m_valid = false;
            value = value * 10 + (c - '0');
        }
        return value;
    }

    void literal(char expected) {
        if (next() != expected) m_valid = false;
    }

    /// East of Greenwich, in seconds: "Z", "+0100", "-0430".
    int zone() {
        const char sign = next();
        if (sign == 'Z') return 0;
        if (sign != '+' && sign != '-') m_valid = false;
        const int hours = number(2);
        const int seconds = hours * 3600 + number(2) * 60;
        return sign == '-' ? -seconds : seconds;
    }

    bool isCompleteAndValid() const { return m_valid && m_left.empty(); }

  private:
    char next() {
        if (m_left.empty()) {
            m_valid = false;
            return '\0';
        }
        const char c = m_left.front();
        m_left.remove_prefix(1);
        return c;
    }

    std::string_view m_left;
    bool m_valid = true;
};

std::string twoDigits(std::int64_t number) {
    const std::string text = std::to_string(number);
    return number < 10 ? "0" + text : text;
}

} // namespace

std::optional<std::int64_t> parseLibraryDate(std::string_view text) {
    using namespace std::chrono;
    DateScanner scanner(text);
    const year yearOfDate(scanner.number(4));
    scanner.literal('-');
    const month monthOfYear(static_cast<unsigned>(scanner.number(2)));
    scanner.literal('-');
    const day dayOfMonth(static_cast<unsigned>(scanner.number(2)));
    scanner.literal('T');
    const int hour = scanner.number(2);
    scanner.literal(':');
    const int minute = scanner.number(2);
    scanner.literal(':');
    const int second = scanner.number(2);
    const int zone = scanner.zone();

    const year_month_day date(yearOfDate, monthOfYear, dayOfMonth);
    if (!scanner.isCompleteAndValid() || !date.ok() || hour > 23 || minute > 59 || second > 59) return {};
    const sys_seconds instant = sys_days(date) + hours(hour) + minutes(minute) + seconds(second - zone);
    return std::int64_t{instant.time_since_epoch().count()};
}

std::optional<std::string> libraryDate(std::int64_t secondsSince1970) {
    using namespace std::chrono;
    const sys_seconds instant{seconds(secondsSince1970)};
    const auto midnight = floor<days>(instant);
    const year_month_day date(midnight);
    const hh_mm_ss time(instant - midnight);
    const int yearOfDate = int{date.year()};
    if (yearOfDate < 0 || yearOfDate > 9999) return {};
    return twoDigits(yearOfDate / 100) + twoDigits(yearOfDate % 100) + "-" +
           twoDigits(unsigned{date.month()}) + "-" + twoDigits(unsigned{date.day()}) + "T" +
           twoDigits(time.hours().count()) + ":" + twoDigits(time.minutes().count()) + ":" +
           twoDigits(time.seconds().count()) + "Z";
}

} // namespace songsweep
