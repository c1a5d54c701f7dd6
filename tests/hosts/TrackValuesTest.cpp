// SPDX-License-Identifier: MIT
#include "hosts/TrackValues.h"

#include "platform/Files.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>

namespace songsweep {
namespace {

using interpreter::Alias;
using interpreter::Date;
using interpreter::MissingValue;
using interpreter::Value;

/// Sets the time zone for one test.
class TimeZone {
  public:
    explicit TimeZone(const char* name)
        : m_before(std::getenv("TZ") ? std::getenv("TZ") : "") {
        ::setenv("TZ", name, 1);
        ::tzset();
    }
    ~TimeZone() {
        if (m_before.empty()) {
            ::unsetenv("TZ");
        } else {
            ::setenv("TZ", m_before.c_str(), 1);
        }
        ::tzset();
    }
    TimeZone(const TimeZone&) = delete;
    TimeZone& operator=(const TimeZone&) = delete;

  private:
    std::string m_before;
};

Value valueOf(std::string_view xml, ITunesProperty property) {
    const auto fields = TrackFields::parse("<key>1</key><dict>" + std::string(xml) + "</dict>", {});
    return trackValue(fields.value(), property, Files()).value();
}

TEST(TrackValues, TextsComeAsTheyStand) {
    EXPECT_EQ(valueOf("<key>Name</key><string> a\n b </string>", ITunesProperty::name),
              Value(std::string(" a\n b ")));
    EXPECT_EQ(valueOf("<key>Artist</key><string>x</string>", ITunesProperty::artist),
              Value(std::string("x")));
    EXPECT_EQ(valueOf("<key>Album</key><string>y</string>", ITunesProperty::album), Value(std::string("y")));
}

TEST(TrackValues, WhatATrackHasNotIsAnEmptyTextOrZero) {
    for (const auto property : {ITunesProperty::name, ITunesProperty::artist, ITunesProperty::album,
                                ITunesProperty::time, ITunesProperty::bitRate, ITunesProperty::size})
        EXPECT_EQ(valueOf("", property), Value(std::string())) << static_cast<int>(property);
    EXPECT_EQ(valueOf("", ITunesProperty::rating), Value(std::int64_t{0}));
    EXPECT_EQ(valueOf("", ITunesProperty::playedCount), Value(std::int64_t{0}));
    EXPECT_EQ(valueOf("", ITunesProperty::persistentId), Value(std::string("0")));
    EXPECT_EQ(valueOf("", ITunesProperty::dateAdded), Value(MissingValue()));
    EXPECT_EQ(valueOf("", ITunesProperty::location), Value(MissingValue()));
}

TEST(TrackValues, NumbersKeepTheTextOfTheFile) {
    EXPECT_EQ(valueOf("<key>Size</key><integer>4294967296</integer>", ITunesProperty::size),
              Value(std::int64_t{4294967296}));
    EXPECT_EQ(valueOf("<key>Bit Rate</key><integer> 192 </integer>", ITunesProperty::bitRate),
              Value(std::int64_t{192}));
    EXPECT_EQ(valueOf("<key>Play Count</key><integer>007</integer>", ITunesProperty::playedCount),
              Value(std::string("007")));
}

TEST(TrackValues, TheTimeIsTheDisplayDuration) {
    EXPECT_EQ(valueOf("<key>Total Time</key><integer>245000</integer>", ITunesProperty::time),
              Value(std::string("4:05")));
    EXPECT_EQ(valueOf("<key>Total Time</key><integer>3723400</integer>", ITunesProperty::time),
              Value(std::string("1:02:03")));
}

TEST(TrackValues, TheRatingIsANumberOfAHundred) {
    EXPECT_EQ(valueOf("<key>Rating</key><integer>80</integer>", ITunesProperty::rating),
              Value(std::int64_t{80}));
}

TEST(TrackValues, ALocationIsAFileThatExists) {
    EXPECT_EQ(
        valueOf("<key>Location</key><string>file://localhost/dev/null</string>", ITunesProperty::location),
        Value(Alias{"/dev/null"}));
    EXPECT_EQ(
        valueOf("<key>Location</key><string>file://localhost/dev/none</string>", ITunesProperty::location),
        Value(MissingValue()));
    EXPECT_EQ(valueOf("<key>Location</key><string>not a url</string>", ITunesProperty::location),
              Value(MissingValue()));
}

TEST(TrackValues, AStreamHasNoLocation) {
    EXPECT_EQ(valueOf("<key>Location</key><string>http://host/dev/null</string>", ITunesProperty::location),
              Value(MissingValue()));
}

TEST(TrackValues, ALocationThatIsNotQuiteAUrlIsTheFileThatExists) {
    const test::TemporaryFolder folder;
    const std::string path = folder.write("100% ö.mp3", "x");
    EXPECT_EQ(
        valueOf("<key>Location</key><string>file://localhost" + path + "</string>", ITunesProperty::location),
        Value(Alias{path}));
}

TEST(TrackValues, ADateCountsLocalTimeAcrossTheChangeToSummerTime) {
    const TimeZone zone("CET-1CEST,M3.5.0,M10.5.0/3");
    // 2009-03-29 at 01:00 UTC the clocks went from 02:00 to 03:00.
    constexpr std::int64_t midnight = 3321129600; // 2009-03-29 00:00:00 since 1904-01-01
    EXPECT_EQ(valueOf("<key>Date Added</key><date>2009-03-29T00:59:59Z</date>", ITunesProperty::dateAdded),
              Value(Date{midnight + 1 * 3600 + 59 * 60 + 59}));
    EXPECT_EQ(valueOf("<key>Date Added</key><date>2009-03-29T01:00:00Z</date>", ITunesProperty::dateAdded),
              Value(Date{midnight + 3 * 3600}));
    EXPECT_EQ(valueOf("<key>Date Added</key><date>no date</date>", ITunesProperty::dateAdded),
              Value(MissingValue()));
}

TEST(TrackValues, CountsArtworks) {
    const auto count = [](std::string_view xml) {
        return artworkCount(TrackFields::parse("<dict>" + std::string(xml) + "</dict>", {}).value());
    };
    EXPECT_EQ(count("<key>Artwork Count</key><integer>3</integer>"), 3U);
    EXPECT_EQ(count("<key>Artwork Count</key><integer>-3</integer>"), 0U);
    EXPECT_EQ(count(""), 0U);
}

} // namespace
} // namespace songsweep
