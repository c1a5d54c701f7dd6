// SPDX-License-Identifier: MIT
#include "scripting/interpreter/ValueProperties.h"

#include "platform/Epochs.h"
#include "scripting/interpreter/Calendar.h"
#include "scripting/interpreter/TextFolding.h"
#include "scripting/interpreter/Words.h"

#include <algorithm>
#include <array>
#include <chrono>

namespace songsweep::interpreter {
namespace {

using Items = std::vector<Value>;

constexpr std::int64_t secondsOfDay = 86400;

std::int64_t timeOfDay(Date date) {
    return ((date.longDateTime % secondsOfDay) + secondsOfDay) % secondsOfDay;
}

std::chrono::year_month_day calendarDay(Date date) {
    using namespace std::chrono;
    const sys_seconds moment = longDateTimeEpoch + seconds(date.longDateTime);
    return floor<days>(moment);
}

Constant weekdayOf(Date date) {
    const std::chrono::weekday day{std::chrono::sys_days(calendarDay(date))};
    return weekdays.at(day.c_encoding());
}

struct DateProperty {
    std::string_view name;
    Value (*valueOf)(Date);
};

constexpr std::array dateProperties{
    DateProperty{"year", [](Date date) { return Value(std::int64_t(int(calendarDay(date).year()))); }},
    DateProperty{"month",
                 [](Date date) { return Value(months.at(unsigned(calendarDay(date).month()) - 1)); }},
    DateProperty{"day", [](Date date) { return Value(std::int64_t(unsigned(calendarDay(date).day()))); }},
    DateProperty{"weekday", [](Date date) { return Value(weekdayOf(date)); }},
    DateProperty{"time", [](Date date) { return Value(timeOfDay(date)); }},
    DateProperty{"hours", [](Date date) { return Value(timeOfDay(date) / 3600); }},
    DateProperty{"minutes", [](Date date) { return Value(timeOfDay(date) / 60 % 60); }},
    DateProperty{"seconds", [](Date date) { return Value(timeOfDay(date) % 60); }},
};

std::optional<Result<Value>> listProperty(Context& context, Position position, const Items& items,
                                          std::string_view name) {
    if (isSameWord(name, "length")) return Value(static_cast<std::int64_t>(items.size()));
    if (isSameWord(name, "reverse")) return context.makeList(position, Items(items.rbegin(), items.rend()));
    if (!isSameWord(name, "rest")) return {};
    if (items.empty()) return context.fail(position, ErrorNumber::noSuchObject, "an empty list has no rest");
    return context.makeList(position, Items(items.begin() + 1, items.end()));
}

std::optional<Result<Value>> dateProperty(Date date, std::string_view name) {
    for (const DateProperty& property : dateProperties) {
        if (isSameWord(property.name, name)) return property.valueOf(date);
    }
    return {};
}

} // namespace

std::optional<Result<Value>> valueProperty(Context& context, Position position, const Value& value,
                                           std::string_view name) {
    if (const Items* const items = listItems(value)) return listProperty(context, position, *items, name);
    if (const auto* const date = std::get_if<Date>(&value)) return dateProperty(*date, name);
    const auto* const text = std::get_if<std::string>(&value);
    if (!text || !isSameWord(name, "length")) return {};
    return Value(static_cast<std::int64_t>(characterCount(*text)));
}

} // namespace songsweep::interpreter
