// SPDX-License-Identifier: MIT
#include "hosts/TrackChanges.h"

#include "library/ValueFormats.h"
#include "platform/LocalTime.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>

namespace songsweep {

namespace {

using interpreter::Value;

/// A property that can be set.
struct Settable {
    enum class Form : std::uint8_t { name, text, number, percentage, date, presence, absence };

    ITunesProperty property;
    std::string_view word;
    std::string_view key;
    Form form;
};
using Form = Settable::Form;

constexpr std::array settables{
    Settable{ITunesProperty::name, "name", "Name", Form::name},
    Settable{ITunesProperty::artist, "artist", "Artist", Form::text},
    Settable{ITunesProperty::album, "album", "Album", Form::text},
    Settable{ITunesProperty::albumArtist, "album artist", "Album Artist", Form::text},
    Settable{ITunesProperty::composer, "composer", "Composer", Form::text},
    Settable{ITunesProperty::genre, "genre", "Genre", Form::text},
    Settable{ITunesProperty::comment, "comment", "Comments", Form::text},
    Settable{ITunesProperty::year, "year", "Year", Form::number},
    Settable{ITunesProperty::trackNumber, "track number", "Track Number", Form::number},
    Settable{ITunesProperty::discNumber, "disc number", "Disc Number", Form::number},
    Settable{ITunesProperty::playedCount, "played count", "Play Count", Form::number},
    Settable{ITunesProperty::skippedCount, "skipped count", "Skip Count", Form::number},
    Settable{ITunesProperty::rating, "rating", "Rating", Form::percentage},
    Settable{ITunesProperty::albumRating, "album rating", "Album Rating", Form::percentage},
    Settable{ITunesProperty::dateAdded, "date added", "Date Added", Form::date},
    Settable{ITunesProperty::playedDate, "played date", "Play Date UTC", Form::date},
    Settable{ITunesProperty::skippedDate, "skipped date", "Skip Date", Form::date},
    Settable{ITunesProperty::loved, "loved", "Loved", Form::presence},
    Settable{ITunesProperty::enabled, "enabled", "Disabled", Form::absence},
};

/// A whole number, written as one or as a real.
std::optional<std::int64_t> wholeNumberIn(const Value& value) {
    if (const auto* const integer = std::get_if<std::int64_t>(&value)) return *integer;
    const auto* const real = std::get_if<double>(&value);
    const bool isWhole =
        real && std::abs(*real) < std::numeric_limits<std::int32_t>::max() && std::trunc(*real) == *real;
    return isWhole ? std::optional(static_cast<std::int64_t>(*real)) : std::nullopt;
}

Error mustBe(const Settable& row, const std::string& what) {
    return {Error::Code::invalid, std::string(row.word) + " is " + what};
}

Result<ValueChange> textChange(const Settable& row, const Value& value) {
    const auto* const text = std::get_if<std::string>(&value);
    if (!text) return mustBe(row, "a text");
    if (!text->empty()) return ValueChange{std::string(row.key), ValueChange::Form::text, *text};
    if (row.form == Form::name) return mustBe(row, "never empty");
    return ValueChange{std::string(row.key), ValueChange::Form::none, {}};
}

Result<ValueChange> numberChange(const Settable& row, const Value& value, std::int64_t highest) {
    const auto number = wholeNumberIn(value);
    if (!number || *number < 0 || *number > highest)
        return mustBe(row, "a whole number from 0 to " + std::to_string(highest));
    if (*number == 0) return ValueChange{std::string(row.key), ValueChange::Form::none, {}};
    return ValueChange{std::string(row.key), ValueChange::Form::integer, std::to_string(*number)};
}

Result<ValueChange> dateChange(const Settable& row, const Value& value) {
    const auto* const date = std::get_if<interpreter::Date>(&value);
    const auto text = date ? libraryDate(utcOfLongDateTime(date->longDateTime)) : std::nullopt;
    if (!text) return mustBe(row, "a date of the years 1 to 9999");
    return ValueChange{std::string(row.key), ValueChange::Form::date, *text};
}

Result<ValueChange> truthChange(const Settable& row, const Value& value) {
    const auto* const truth = std::get_if<bool>(&value);
    if (!truth) return mustBe(row, "true or false");
    const bool isWritten = *truth == (row.form == Form::presence);
    return ValueChange{
        std::string(row.key), isWritten ? ValueChange::Form::isTrue : ValueChange::Form::none, {}};
}

Result<ValueChange> changeOf(const Settable& row, const Value& value) {
    switch (row.form) {
    case Form::name:
    case Form::text:
        return textChange(row, value);
    case Form::number:
        return numberChange(row, value, std::numeric_limits<std::int32_t>::max());
    case Form::percentage:
        return numberChange(row, value, 100);
    case Form::date:
        return dateChange(row, value);
    case Form::presence:
    case Form::absence:
        break;
    }
    return truthChange(row, value);
}

/// What else the file has to say when a property is another one: a rating that somebody gave is not one that
/// iTunes computed, and the time of the last play stands there twice.
void addCompanions(ITunesProperty property, const Value& value, std::vector<ValueChange>& changes) {
    if (property == ITunesProperty::rating)
        changes.push_back({"Rating Computed", ValueChange::Form::none, {}});
    if (property == ITunesProperty::albumRating)
        changes.push_back({"Album Rating Computed", ValueChange::Form::none, {}});
    if (property == ITunesProperty::playedDate)
        changes.push_back({"Play Date", ValueChange::Form::integer,
                           std::to_string(std::get<interpreter::Date>(value).longDateTime)});
}

} // namespace

Result<std::vector<ValueChange>> changesOf(ITunesProperty property, const Value& value) {
    const auto* const row = std::ranges::find(settables, property, &Settable::property);
    if (row == settables.end()) return std::vector<ValueChange>();
    auto change = changeOf(*row, value);
    if (!change) return change.error();
    std::vector<ValueChange> changes{std::move(change).value()};
    addCompanions(property, value, changes);
    return changes;
}

} // namespace songsweep
