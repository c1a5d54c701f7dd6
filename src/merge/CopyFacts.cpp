// SPDX-License-Identifier: MIT
#include "merge/CopyFacts.h"

#include "library/Trim.h"
#include "library/ValueFormats.h"

#include <string>
#include <string_view>

namespace songsweep {

namespace {

constexpr std::array<std::string_view, fillInCount> fillInKeys{"Genre",    "Year",         "Comments",
                                                               "Composer", "Track Number", "Disc Number"};

constexpr std::array isNumber{false, true, false, false, true, true};

std::string_view textOf(const EntryValues& values, std::string_view key) {
    const EntryValue* const value = values.find(key);
    return value ? trimmed(value->text) : std::string_view();
}

bool isTrue(const EntryValues& values, std::string_view key) {
    const EntryValue* const value = values.find(key);
    return value && value->element == "true";
}

std::int64_t numberOf(const EntryValues& values, std::string_view key) {
    const auto number = wholeNumber(textOf(values, key));
    return number && *number > 0 ? *number : 0;
}

std::int64_t givenRating(const EntryValues& values, std::string_view key, std::string_view computed) {
    return isTrue(values, computed) ? 0 : numberOf(values, key);
}

} // namespace

CopyFacts CopyFacts::of(const EntryValues& values) {
    CopyFacts facts;
    facts.plays = numberOf(values, "Play Count");
    facts.skips = numberOf(values, "Skip Count");
    facts.rating = givenRating(values, "Rating", "Rating Computed");
    facts.albumRating = givenRating(values, "Album Rating", "Album Rating Computed");
    facts.lastPlayed = parseLibraryDate(textOf(values, "Play Date UTC"));
    facts.lastSkipped = parseLibraryDate(textOf(values, "Skip Date"));
    facts.added = parseLibraryDate(textOf(values, "Date Added"));
    facts.isLoved = isTrue(values, "Loved");
    facts.isEnabled = !isTrue(values, "Disabled");
    for (std::size_t i = 0; i < fillInCount; ++i) {
        const std::string_view text = textOf(values, fillInKeys[i]);
        facts.has[i] = !text.empty() && text != "0";
        // A number that is written in some other way is nothing that can be set.
        facts.gives[i] =
            facts.has[i] && (!isNumber[i] || std::to_string(numberOf(values, fillInKeys[i])) == text);
    }
    return facts;
}

} // namespace songsweep
