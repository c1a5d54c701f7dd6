// SPDX-License-Identifier: MIT
#include "hosts/TrackValues.h"

#include "library/LibraryValues.h"
#include "library/LocationUrl.h"
#include "library/Trim.h"
#include "platform/Files.h"
#include "platform/LocalTime.h"

#include <charconv>

namespace songsweep {

namespace {

using interpreter::Value;

Value duration(std::string_view milliseconds) {
    if (milliseconds.empty()) return std::string();
    return durationOf(milliseconds);
}

/// The text of a value, or what a record begins with where the file gives none.
std::string_view givenOr(Text initial, std::string_view text) { return text.empty() ? initial.view() : text; }

Value location(std::string_view url, const Files& files) {
    auto path = pathOfFileUrl(url);
    if (!path || !files.exists(*path)) return interpreter::MissingValue();
    return interpreter::Alias{std::move(*path)};
}

} // namespace

Value numberOrText(std::string_view text) {
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool whole = error == std::errc() && end == text.data() + text.size();
    if (whole && std::to_string(number) == text) return number;
    return std::string(text);
}

Value dateOrMissing(std::string_view text) {
    const auto seconds = parseLibraryDate(text);
    if (!seconds) return interpreter::MissingValue();
    return interpreter::Date{longDateTime(*seconds)};
}

std::optional<Value> trackValue(const TrackFields& fields, ITunesProperty property, const Files& files) {
    const auto text = [&](LibraryKey key) { return trimmed(fields.text(key)); };
    switch (property) {
    case ITunesProperty::name:
        return std::string(fields.text(LibraryKey::name));
    case ITunesProperty::artist:
        return std::string(fields.text(LibraryKey::artist));
    case ITunesProperty::album:
        return std::string(fields.text(LibraryKey::album));
    case ITunesProperty::time:
        return duration(text(LibraryKey::totalTime));
    case ITunesProperty::bitRate:
        return numberOrText(text(LibraryKey::bitRate));
    case ITunesProperty::size:
        return numberOrText(text(LibraryKey::size));
    case ITunesProperty::dateAdded:
        return dateOrMissing(text(LibraryKey::dateAdded));
    case ITunesProperty::rating:
        return std::int64_t{integerValue(text(LibraryKey::rating))};
    case ITunesProperty::persistentId:
        return std::string(givenOr(TrackRecord().pid, text(LibraryKey::persistentId)));
    case ITunesProperty::playedCount:
        return numberOrText(givenOr(TrackRecord().playcount, text(LibraryKey::playCount)));
    case ITunesProperty::location:
        return location(text(LibraryKey::location), files);
    default:
        return {};
    }
}

std::size_t artworkCount(const TrackFields& fields) {
    return static_cast<std::size_t>(artworkCountOf(trimmed(fields.text(LibraryKey::artworkCount))));
}

} // namespace songsweep
