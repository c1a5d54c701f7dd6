// SPDX-License-Identifier: MIT
#include "hosts/TrackProperties.h"

#include "hosts/TrackValues.h"
#include "library/Trim.h"
#include "library/ValueFormats.h"

#include <algorithm>
#include <array>

namespace songsweep {

namespace {

using interpreter::MissingValue;
using interpreter::Value;
using Form = TrackProperty::Form;

constexpr double millisecondsOfOneSecond = 1000;

constexpr std::array trackProperties{
    TrackProperty{ITunesProperty::genre, "Genre", Form::text},
    TrackProperty{ITunesProperty::year, "Year", Form::number},
    TrackProperty{ITunesProperty::duration, "Total Time", Form::milliseconds},
    TrackProperty{ITunesProperty::albumArtist, "Album Artist", Form::text},
    TrackProperty{ITunesProperty::composer, "Composer", Form::text},
    TrackProperty{ITunesProperty::comment, "Comments", Form::text},
    TrackProperty{ITunesProperty::kind, "Kind", Form::text},
    TrackProperty{ITunesProperty::trackNumber, "Track Number", Form::number},
    TrackProperty{ITunesProperty::discNumber, "Disc Number", Form::number},
    TrackProperty{ITunesProperty::enabled, "Disabled", Form::absence},
    TrackProperty{ITunesProperty::playedDate, "Play Date UTC", Form::date},
    TrackProperty{ITunesProperty::skippedCount, "Skip Count", Form::number},
    TrackProperty{ITunesProperty::skippedDate, "Skip Date", Form::date},
    TrackProperty{ITunesProperty::loved, "Loved", Form::presence},
    TrackProperty{ITunesProperty::albumRating, "Album Rating", Form::number},
    TrackProperty{ITunesProperty::modificationDate, "Date Modified", Form::date},
};

} // namespace

const TrackProperty* trackProperty(ITunesProperty property) {
    const auto* const row = std::ranges::find(trackProperties, property, &TrackProperty::property);
    return row == trackProperties.end() ? nullptr : row;
}

Value valueOf(const TrackProperty& property, const EntryValues& values) {
    const EntryValue* const found = values.find(property.key);
    const std::string_view text = found ? trimmed(found->text) : std::string_view();
    switch (property.form) {
    case Form::text:
        return found ? found->text : std::string();
    case Form::number:
        return text.empty() ? Value(std::int64_t{0}) : numberOrText(text);
    case Form::milliseconds: {
        const auto time = wholeNumber(text);
        return time ? Value(static_cast<double>(*time) / millisecondsOfOneSecond) : Value(MissingValue());
    }
    case Form::date:
        return dateOrMissing(text);
    case Form::presence:
    case Form::absence:
        break;
    }
    const bool isTrue = found && found->element == "true";
    return isTrue == (property.form == Form::presence);
}

} // namespace songsweep
