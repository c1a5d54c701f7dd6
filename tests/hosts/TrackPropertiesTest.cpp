// SPDX-License-Identifier: MIT
#include "hosts/TrackProperties.h"

#include "platform/LocalTime.h"

#include <gtest/gtest.h>

namespace songsweep {
namespace {

using interpreter::Date;
using interpreter::MissingValue;
using interpreter::Value;

Value valueIn(std::string_view xml, ITunesProperty property) {
    const auto values = EntryValues::parse("<key>1</key><dict>" + std::string(xml) + "</dict>", {});
    return valueOf(*trackProperty(property), values.value());
}

Value text(std::string value) { return Value(std::move(value)); }
Value number(std::int64_t value) { return Value(value); }

TEST(TrackPropertiesTest, TextsComeAsTheyStand) {
    EXPECT_EQ(valueIn("<key>Genre</key><string> R&#38;B </string>", ITunesProperty::genre), text(" R&B "));
    EXPECT_EQ(valueIn("<key>Album Artist</key><string>a</string>", ITunesProperty::albumArtist), text("a"));
    EXPECT_EQ(valueIn("<key>Composer</key><string>c</string>", ITunesProperty::composer), text("c"));
    EXPECT_EQ(valueIn("<key>Comments</key><string>live</string>", ITunesProperty::comment), text("live"));
    EXPECT_EQ(valueIn("<key>Kind</key><string>MPEG audio file</string>", ITunesProperty::kind),
              text("MPEG audio file"));
}

TEST(TrackPropertiesTest, NumbersComeAsNumbersOrAsTheTextOfTheFile) {
    EXPECT_EQ(valueIn("<key>Year</key><integer>1999</integer>", ITunesProperty::year), number(1999));
    EXPECT_EQ(valueIn("<key>Track Number</key><integer> 7 </integer>", ITunesProperty::trackNumber),
              number(7));
    EXPECT_EQ(valueIn("<key>Disc Number</key><integer>02</integer>", ITunesProperty::discNumber), text("02"));
    EXPECT_EQ(valueIn("<key>Skip Count</key><integer>3</integer>", ITunesProperty::skippedCount), number(3));
}

TEST(TrackPropertiesTest, TheDurationIsInSeconds) {
    EXPECT_EQ(valueIn("<key>Total Time</key><integer>245500</integer>", ITunesProperty::duration),
              Value(245.5));
    EXPECT_EQ(valueIn("<key>Total Time</key><integer>long</integer>", ITunesProperty::duration),
              Value(MissingValue()));
}

TEST(TrackPropertiesTest, DatesAreLocalTime) {
    const Value date = Date{longDateTime(1237043366)};
    EXPECT_EQ(
        valueIn("<key>Play Date UTC</key><date>2009-03-14T15:09:26Z</date>", ITunesProperty::playedDate),
        date);
    EXPECT_EQ(valueIn("<key>Skip Date</key><date>2009-03-14T15:09:26Z</date>", ITunesProperty::skippedDate),
              date);
    EXPECT_EQ(valueIn("<key>Date Modified</key><date>2009-03-14T15:09:26Z</date>",
                      ITunesProperty::modificationDate),
              date);
}

TEST(TrackPropertiesTest, ATrackIsEnabledUnlessItIsDisabled) {
    EXPECT_EQ(valueIn("", ITunesProperty::enabled), Value(true));
    EXPECT_EQ(valueIn("<key>Disabled</key><true/>", ITunesProperty::enabled), Value(false));
    EXPECT_EQ(valueIn("<key>Disabled</key><false/>", ITunesProperty::enabled), Value(true));
}

TEST(TrackPropertiesTest, WhatATrackHasNotIsEmptyZeroOrMissing) {
    EXPECT_EQ(valueIn("", ITunesProperty::genre), text(""));
    EXPECT_EQ(valueIn("", ITunesProperty::year), number(0));
    EXPECT_EQ(valueIn("", ITunesProperty::duration), Value(MissingValue()));
    EXPECT_EQ(valueIn("", ITunesProperty::playedDate), Value(MissingValue()));
}

TEST(TrackPropertiesTest, WhatASearchReadsIsNoRow) {
    EXPECT_EQ(trackProperty(ITunesProperty::dateAdded), nullptr);
    EXPECT_EQ(trackProperty(ITunesProperty::smart), nullptr);
}

} // namespace
} // namespace songsweep
