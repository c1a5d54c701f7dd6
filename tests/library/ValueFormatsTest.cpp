// SPDX-License-Identifier: MIT
#include "library/ValueFormats.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unicode/datefmt.h>
#include <unicode/locid.h>
#include <unicode/timezone.h>
#include <unicode/unistr.h>

#include <array>
#include <cstdint>
#include <limits>
#include <memory>
#include <string>

namespace songsweep {
namespace {

TEST(Megabytes, AreWrittenLikeASizeAndKnowNoLimit) {
    EXPECT_EQ(megabytes(0), "0.1 MB");
    EXPECT_EQ(megabytes(5'242'880), sizestring(5'242'880));
    EXPECT_EQ(megabytes(10'737'418'240), "10240.1 MB");
}

TEST(Counted, KnowsTheSingular) {
    EXPECT_EQ(counted(0, "file"), "0 files");
    EXPECT_EQ(counted(1, "file"), "1 file");
    EXPECT_EQ(counted(12, "clean-up"), "12 clean-ups");
}

TEST(SecToTime, ShowsMinutesAndSeconds) {
    EXPECT_EQ(SecToTime(0), "0:00");
    EXPECT_EQ(SecToTime(187000), "3:07");
    EXPECT_EQ(SecToTime(45000), "0:45");
}

TEST(SecToTime, RoundsHalfASecondDown) {
    EXPECT_EQ(SecToTime(1500), "0:01");
    EXPECT_EQ(SecToTime(1501), "0:02");
    EXPECT_EQ(SecToTime(59500), "0:59");
    EXPECT_EQ(SecToTime(59501), "1:00");
    EXPECT_EQ(SecToTime(3599499), "59:59");
}

TEST(SecToTime, ShowsHoursFromTheFirstOn) {
    EXPECT_EQ(SecToTime(3600000), "1:00:00");
    EXPECT_EQ(SecToTime(3723000), "1:02:03");
    EXPECT_EQ(SecToTime(36000000), "10:00:00");
    EXPECT_EQ(SecToTime(3599501), "1:00:00");
}

TEST(SecToTime, TruncatesNegativeDurationsTowardsZero) {
    EXPECT_EQ(SecToTime(-999), "0:00");
    EXPECT_EQ(SecToTime(-1999), "0:-01");
    EXPECT_EQ(SecToTime(std::numeric_limits<std::int32_t>::max()), "596:31:24");
}

TEST(TimestringToSec, ReadsUpToThreeFields) {
    EXPECT_EQ(TimestringToSec("45"), 45);
    EXPECT_EQ(TimestringToSec("3:45"), 225);
    EXPECT_EQ(TimestringToSec("1:02:03"), 3723);
    EXPECT_EQ(TimestringToSec("1:00:00"), 3600);
}

TEST(TimestringToSec, ReadsMissingFieldsAsZero) {
    EXPECT_EQ(TimestringToSec(""), 0);
    EXPECT_EQ(TimestringToSec(":30"), 30);
    EXPECT_EQ(TimestringToSec("3:"), 180);
    EXPECT_EQ(TimestringToSec("::"), 0);
    EXPECT_EQ(TimestringToSec("x:1y"), 1);
}

TEST(TimestringToSec, IgnoresFieldsLeftOfTheHours) {
    EXPECT_EQ(TimestringToSec("2:3:4:5"), 3 * 3600 + 4 * 60 + 5);
    EXPECT_EQ(TimestringToSec("9:9:0:0:1"), 1);
}

TEST(TimestringToSec, GivesBackWhatSecToTimeShows) {
    for (const std::int32_t seconds : {0, 1, 59, 60, 3599, 3600, 3661, 86399, 360000})
        EXPECT_EQ(TimestringToSec(SecToTime(seconds * 1000)), seconds);
}

TEST(IntegerValue, ReadsTheLeadingInteger) {
    EXPECT_EQ(integerValue("12abc"), 12);
    EXPECT_EQ(integerValue(""), 0);
    EXPECT_EQ(integerValue("abc"), 0);
    EXPECT_EQ(integerValue(" \t\n42"), 42);
    EXPECT_EQ(integerValue("-7.9"), -7);
    EXPECT_EQ(integerValue("+7"), 7);
    EXPECT_EQ(integerValue("- 7"), 0);
}

TEST(IntegerValue, IsHeldTo32Bits) {
    EXPECT_EQ(integerValue("2147483647"), 2147483647);
    EXPECT_EQ(integerValue("2147483648"), 2147483647);
    EXPECT_EQ(integerValue("-2147483648"), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(integerValue("-2147483649"), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(integerValue("99999999999999999999999999"), 2147483647);
    EXPECT_EQ(integerValue("-99999999999999999999999999"), std::numeric_limits<std::int32_t>::min());
}

TEST(Sizestring, RoundsUpByOneTenth) {
    EXPECT_EQ(sizestring(0), "0.1 MB");
    EXPECT_EQ(sizestring(1048576), "1.1 MB");
    EXPECT_EQ(sizestring(1153433), "1.1 MB");
    EXPECT_EQ(sizestring(1153434), "1.2 MB");
    EXPECT_EQ(sizestring(5242880), "5.1 MB");
}

TEST(Sizestring, ShowsASizeAboveTwoGibibytesAsTheLargestInteger) {
    EXPECT_EQ(sizestring(TrackRecord{.size = "3000000000"}), sizestring(2147483647));
    EXPECT_EQ(sizestring(2147483647), "2048.0 MB");
}

TEST(Sizestring, IsEmptyWithoutASize) {
    EXPECT_EQ(sizestring(TrackRecord{}), "");
    EXPECT_EQ(sizestring(TrackRecord{.size = "0"}), "0.1 MB");
}

TEST(WholeNumber, IsTheWholeTextButForBlanks) {
    EXPECT_EQ(wholeNumber("1873"), 1873);
    EXPECT_EQ(wholeNumber(" -7\n"), -7);
    EXPECT_EQ(wholeNumber("007"), 7);
    for (const char* const text : {"", " ", "12abc", "1 2", "+1", "9223372036854775808"})
        EXPECT_EQ(wholeNumber(text), std::nullopt) << text;
}

TEST(LibraryDate, IsReadAsUniversalTime) {
    EXPECT_EQ(parseLibraryDate("1970-01-01T00:00:00Z"), 0);
    EXPECT_EQ(parseLibraryDate("2009-03-14T15:09:26Z"), 1237043366);
    EXPECT_EQ(parseLibraryDate("1904-01-01T00:00:00Z"), -2082844800);
    EXPECT_EQ(parseLibraryDate("2000-02-29T23:59:59Z"), 951868799);
}

TEST(LibraryDate, TakesAnOffsetForTheZone) {
    EXPECT_EQ(parseLibraryDate("2009-03-14T16:09:26+0100"), 1237043366);
    EXPECT_EQ(parseLibraryDate("2009-03-14T10:39:26-0430"), 1237043366);
    EXPECT_EQ(parseLibraryDate("2009-03-14T15:09:26-0000"), 1237043366);
}

TEST(LibraryDate, IsNoneForAnythingElse) {
    for (const char* text : {"", "yesterday", "2009-03-14", "2009-03-14T15:09:26", "2009-03-14 15:09:26Z",
                             "2009-13-14T15:09:26Z", "2009-02-29T15:09:26Z", "2009-03-14T24:09:26Z",
                             "2009-03-14T15:60:26Z", "2009-03-14T15:09:60Z", "2009-03-14T15:09:26ZZ",
                             "2009-03-14T15:09:26Z ", "2009-03-1xT15:09:26Z", "09-03-14T15:09:26Z"})
        EXPECT_FALSE(parseLibraryDate(text).has_value()) << text;
}

class ShortDateTime : public testing::Test {
  protected:
    void SetUp() override { setZone("Etc/GMT-1"); }
    void TearDown() override { setZone("Etc/UTC"); }
    static void setZone(const char* name) {
        icu::TimeZone::adoptDefault(icu::TimeZone::createTimeZone(icu::UnicodeString::fromUTF8(name)));
    }
};

TEST_F(ShortDateTime, ShowsTheUsersTimeZone) {
    EXPECT_THAT(shortDateTime(1237043366), testing::HasSubstr("4:09"));
    setZone("Etc/UTC");
    EXPECT_THAT(shortDateTime(1237043366), testing::HasSubstr("3:09"));
}

/// The text as the system's own format writes it in one piece.
std::string written(std::int64_t secondsSince1970, icu::DateFormat::EStyle time, const icu::Locale& locale) {
    const std::unique_ptr<icu::DateFormat> format(
        icu::DateFormat::createDateTimeInstance(icu::DateFormat::kShort, time, locale));
    icu::UnicodeString text;
    format->format(static_cast<UDate>(secondsSince1970) * 1000.0, text);
    std::string utf8;
    return text.toUTF8String(utf8);
}

TEST_F(ShortDateTime, IsThatOfTheSystemInEveryLocaleAndZone) {
    const icu::Locale before;
    std::int32_t count = 0;
    const icu::Locale* const locales = icu::Locale::getAvailableLocales(count);
    const std::array zones{"Europe/Berlin", "America/St_Johns", "Asia/Kathmandu", "Pacific/Apia"};
    std::int64_t second = -1'000'000'000;
    for (std::int32_t i = 0; i < count; ++i) {
        UErrorCode status = U_ZERO_ERROR;
        icu::Locale::setDefault(locales[i], status);
        setZone(zones[static_cast<std::size_t>(i) % zones.size()]);
        for (int date = 0; date < 4; ++date, second += 1'234'567) {
            const std::string expected = written(second, icu::DateFormat::kShort, locales[i]);
            EXPECT_EQ(shortDateTime(second), expected) << locales[i].getName();
            EXPECT_EQ(shortDateTime(second), expected) << "asked for again";
            EXPECT_EQ(dateTimeWithSeconds(second), written(second, icu::DateFormat::kMedium, locales[i]));
        }
    }
    UErrorCode status = U_ZERO_ERROR;
    icu::Locale::setDefault(before, status);
}

TEST_F(ShortDateTime, OfARecordIsEmptyWithoutADate) {
    EXPECT_EQ(dateadded(TrackRecord{}), "");
    EXPECT_EQ(dateadded(TrackRecord{.dateaddedv = 1237043366, .hasdate = true}), shortDateTime(1237043366));
    EXPECT_NE(dateadded(TrackRecord{.dateaddedv = 0, .hasdate = true}), "");
}

TEST(LibraryDate, IsWrittenAsItIsRead) {
    for (const std::string text : {"2009-03-14T15:09:26Z", "1969-12-31T23:59:59Z", "0001-01-01T00:00:00Z"})
        EXPECT_EQ(libraryDate(parseLibraryDate(text).value()), text);
    EXPECT_EQ(libraryDate(253402300800), std::nullopt) << "the year 10000";
}

} // namespace
} // namespace songsweep
