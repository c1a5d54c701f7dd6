// SPDX-License-Identifier: MIT
#include "libraryfile/EntryValues.h"

#include <gtest/gtest.h>

namespace songsweep {
namespace {

const std::string entry = "\n\t\t<key>7</key>\n\t\t<dict>\n\t\t\t<key>Track ID</key><integer>7</integer>\n"
                          "\t\t\t<key>Genre</key><string>Rock &#38; Roll<!-- no --></string>\n"
                          "\t\t\t<!-- <key>Year</key> -->\n"
                          "\t\t\t<key>Disabled</key><true/>\n"
                          "\t\t\t<key>Cover</key><dict><key>Genre</key><string>inner</string></dict>\n"
                          "\t\t\t<key> GENRE </key>\n\t\t\t<string>Pop</string>\n\t\t</dict>";

TEST(EntryValuesTest, KnowsEveryValueAndItsElement) {
    const auto values = EntryValues::parse(entry, {}).value();
    ASSERT_EQ(values.all().size(), 5U);
    EXPECT_EQ(values.all()[1].key, "Genre");
    EXPECT_EQ(values.all()[1].text, "Rock & Roll");
    EXPECT_EQ(values.find("disabled")->element, "true");
    EXPECT_EQ(values.find("Cover")->text, "");
    EXPECT_EQ(values.find("Year"), nullptr);
}

TEST(EntryValuesTest, OfSeveralValuesOfAKeyTheLastCounts) {
    EXPECT_EQ(EntryValues::parse(entry, {})->find("genre")->text, "Pop");
}

TEST(EntryValuesTest, KnowsWhereAValueStands) {
    const auto values = EntryValues::parse(entry, {}).value();
    const EntryValue& genre = values.all()[1];
    EXPECT_EQ(entry.substr(genre.keyBegin, genre.end - genre.keyBegin),
              "<key>Genre</key><string>Rock &#38; Roll<!-- no --></string>");
    EXPECT_EQ(entry.substr(genre.begin, 8), "<string>");
    const EntryValue& cover = values.all()[3];
    EXPECT_EQ(entry.substr(cover.begin, cover.end - cover.begin),
              "<dict><key>Genre</key><string>inner</string></dict>");
    EXPECT_EQ(entry.substr(values.contentEnd().value()), "\n\t\t</dict>");
}

TEST(EntryValuesTest, AnEmptyTagHasNoValuesAndNoPlaceForOne) {
    const auto values = EntryValues::parse("<key>1</key><dict/>", {}).value();
    EXPECT_TRUE(values.all().empty());
    EXPECT_FALSE(values.contentEnd());
    EXPECT_EQ(EntryValues::parse("<key>1</key><dict></dict>", {})->contentEnd(), 18U);
}

TEST(EntryValuesTest, BytesThatAreCutOffAreNoEntry) {
    EXPECT_FALSE(EntryValues::parse("<key>1</key><dict><key>Genre</key><string>x", {}));
    EXPECT_FALSE(EntryValues::parse("<key>1</key><dict><key>Genre</key><string>x</string>", {}));
    EXPECT_FALSE(EntryValues::parse("<dict><key>Genre</key><string>&#0;</string></dict>", {}));
}

} // namespace
} // namespace songsweep
