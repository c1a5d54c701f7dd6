// SPDX-License-Identifier: MIT
#include "platform/Epochs.h"
#include "scripting/interpreter/Calendar.h"
#include "scripting/interpreter/ValueProperties.h"
#include "scripting/interpreter/Words.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>

namespace songsweep::interpreter {
namespace {

/// Reads a text from left to right.
class Reader {
  public:
    explicit Reader(std::string_view text)
        : m_rest(text) {}

    bool atEnd() {
        skipBlanks();
        return m_rest.empty();
    }
    bool take(char symbol) {
        if (!m_rest.starts_with(symbol)) return false;
        m_rest.remove_prefix(1);
        return true;
    }
    bool takeWord(std::string_view word) {
        skipBlanks();
        if (!isSameWord(m_rest.substr(0, word.size()), word)) return false;
        m_rest.remove_prefix(word.size());
        return true;
    }
    /// A number of at most `digits` digits.
    std::optional<int> number(std::size_t digits) {
        skipBlanks();
        int value = 0;
        const auto parsed = std::from_chars(m_rest.data(), m_rest.data() + m_rest.size(), value);
        const auto length = static_cast<std::size_t>(parsed.ptr - m_rest.data());
        if (parsed.ec != std::errc() || length > digits || value < 0) return {};
        m_rest.remove_prefix(length);
        return value;
    }
    /// Four digits. A year of two could be one of several centuries, and none of the first one.
    std::optional<int> year() {
        skipBlanks();
        const std::size_t before = m_rest.size();
        const std::optional<int> year = number(yearDigits);
        return before - m_rest.size() == yearDigits ? year : std::nullopt;
    }
    void skipBlanks() {
        while (m_rest.starts_with(' '))
            m_rest.remove_prefix(1);
    }

  private:
    static constexpr std::size_t yearDigits = 4;

    std::string_view m_rest;
};

using Day = std::optional<std::chrono::year_month_day>;

Day calendarDay(std::optional<int> year, std::optional<int> month, std::optional<int> day) {
    if (!year || !month || !day) return {};
    const std::chrono::year_month_day date{std::chrono::year(*year), std::chrono::month(unsigned(*month)),
                                           std::chrono::day(unsigned(*day))};
    return date.ok() ? Day(date) : Day();
}

/// "Saturday, November 21, 2026 at"
Day spelledDay(Reader reader, Reader& after) {
    for (const Constant& weekday : weekdays) {
        if (reader.takeWord(weekday.name)) reader.take(',');
    }
    for (const Constant& month : months) {
        if (!reader.takeWord(month.name)) continue;
        const std::optional<int> day = reader.number(2);
        reader.take(',');
        const std::optional<int> year = reader.year();
        reader.takeWord("at");
        after = reader;
        return calendarDay(year, int(month.number), day);
    }
    return {};
}

/// "2026-11-21"
Day yearFirstDay(Reader reader, Reader& after) {
    const std::optional<int> year = reader.year();
    if (!reader.take('-')) return {};
    const std::optional<int> month = reader.number(2);
    if (!reader.take('-')) return {};
    const std::optional<int> day = reader.number(2);
    reader.take('T');
    after = reader;
    return calendarDay(year, month, day);
}

/// "2026-11-21" or "11/21/2026"
Day numericDay(Reader reader, Reader& after) {
    if (const Day day = yearFirstDay(reader, after)) return day;
    const std::optional<int> month = reader.number(2);
    if (!reader.take('/')) return {};
    const std::optional<int> day = reader.number(2);
    if (!reader.take('/')) return {};
    const std::optional<int> year = reader.year();
    after = reader;
    return calendarDay(year, month, day);
}

/// "1:45", "1:45:30", "1:45:30 AM": the seconds of the day.
std::optional<int> timeOfDay(Reader& reader) {
    std::optional<int> hour = reader.number(2);
    if (!hour || !reader.take(':')) return {};
    const std::optional<int> minute = reader.number(2);
    const std::optional<int> second = reader.take(':') ? reader.number(2) : 0;
    if (!minute || !second || *minute > 59 || *second > 59) return {};
    const bool isMorning = reader.takeWord("AM");
    if (isMorning || reader.takeWord("PM")) {
        if (*hour < 1 || *hour > 12) return {};
        hour = *hour % 12 + (isMorning ? 0 : 12);
    }
    if (*hour > 23) return {};
    return *hour * 3600 + *minute * 60 + *second;
}

} // namespace

std::optional<Date> dateIn(std::string_view text) {
    using namespace std::chrono;
    Reader reader(text);
    Day day = spelledDay(Reader(text), reader);
    if (!day) day = numericDay(Reader(text), reader);
    if (!day) return {};
    const std::optional<int> time = reader.atEnd() ? 0 : timeOfDay(reader);
    if (!time || !reader.atEnd()) return {};
    return Date{duration_cast<seconds>(sys_days(*day) - longDateTimeEpoch).count() + *time};
}

} // namespace songsweep::interpreter
