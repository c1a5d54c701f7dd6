// SPDX-License-Identifier: MIT
#include "hosts/TrackValues.h"

#include "library/LocationUrl.h"
#include "library/Trim.h"
#include "library/ValueFormats.h"
#include "platform/Files.h"

#include <algorithm>
#include <charconv>
#include <ctime>

namespace songsweep {

namespace {

using interpreter::Value;

constexpr std::int64_t secondsFrom1904To1970 = 2'082'844'800;

/// A number where its text is the one that the number would be written with; else the text, so that nothing
/// of it is lost.
Value numberOrText(std::string_view text) {
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool whole = error == std::errc() && end == text.data() + text.size();
    if (whole && std::to_string(number) == text) return number;
    return std::string(text);
}

Value duration(std::string_view milliseconds) {
    if (milliseconds.empty()) return std::string();
    return SecToTime(integerValue(milliseconds));
}

Value date(std::string_view text) {
    const auto seconds = parseLibraryDate(text);
    if (!seconds) return interpreter::MissingValue();
    return interpreter::Date{longDateTime(*seconds)};
}

Value location(std::string_view url, const Files& files) {
    auto path = pathOfUrl(url);
    if (!path || !files.exists(*path)) return interpreter::MissingValue();
    return interpreter::Alias{std::move(*path)};
}

} // namespace

std::optional<Value> trackValue(const TrackFields& fields, ITunesProperty property, const Files& files) {
    const auto text = [&](std::string_view key) { return trimmed(fields.text(key)); };
    switch (property) {
    case ITunesProperty::name:
        return std::string(fields.text("name"));
    case ITunesProperty::artist:
        return std::string(fields.text("artist"));
    case ITunesProperty::album:
        return std::string(fields.text("album"));
    case ITunesProperty::time:
        return duration(text("total time"));
    case ITunesProperty::bitRate:
        return numberOrText(text("bit rate"));
    case ITunesProperty::size:
        return numberOrText(text("size"));
    case ITunesProperty::dateAdded:
        return date(text("date added"));
    case ITunesProperty::rating:
        return std::int64_t{integerValue(text("rating"))};
    case ITunesProperty::persistentId:
        return std::string(text("persistent id").empty() ? "0" : text("persistent id"));
    case ITunesProperty::playedCount:
        return text("play count").empty() ? Value(std::int64_t{0}) : numberOrText(text("play count"));
    case ITunesProperty::location:
        return location(text("location"), files);
    default:
        return {};
    }
}

std::size_t artworkCount(const TrackFields& fields) {
    return static_cast<std::size_t>(std::max(integerValue(trimmed(fields.text("artwork count"))), 0));
}

std::int64_t longDateTime(std::int64_t secondsSince1970) {
    const auto instant = static_cast<std::time_t>(secondsSince1970);
    std::tm local{};
    ::localtime_r(&instant, &local);
    return secondsSince1970 + local.tm_gmtoff + secondsFrom1904To1970;
}

} // namespace songsweep
