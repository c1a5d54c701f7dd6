// SPDX-License-Identifier: MIT
#include "platform/Words.h"

#include "platform/DecimalPoint.h"

#include <QLocale>

#include <gtest/gtest.h>

namespace songsweep {
namespace {

TEST(Words, AreEnglishWithoutATranslation) {
    EXPECT_EQ(words("Nowhere", "as it is “here”"), "as it is “here”");
}

TEST(Words, HaveAWordingForOneAndOneForMany) {
    EXPECT_EQ(countedWords("Nowhere", "%1 files go", "1 file goes", 1), "1 file goes");
    EXPECT_EQ(countedWords("Nowhere", "%1 files go", "1 file goes", 0), "0 files go");
    EXPECT_EQ(countedWords(countable("Nowhere", "%1 files go", "1 file goes"), 2), "2 files go");
}

TEST(Words, LeaveOtherPlaceholdersOfACountForLater) {
    EXPECT_EQ(countedWords("Nowhere", "%2 of %1 files", "%2 of 1 file", 3), "%2 of 3 files");
    EXPECT_EQ(countedWords("Nowhere", "%2 of %1 files", "%2 of 1 file", 1), "%2 of 1 file");
}

TEST(Words, WriteNumbersInTheWayOfTheLocale) {
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(numberText(1234567), "1.234.567");
    EXPECT_EQ(countedWords("Nowhere", "%1 files", "1 file", 1234), "1.234 files");
    EXPECT_EQ(withDecimalPoint("11.8 MB"), "11,8 MB");
    EXPECT_EQ(withDecimalPoint("12 MB"), "12 MB");
    QLocale::setDefault(before);
}

TEST(Words, TakeValuesInTheOrderOfTheNumbers) {
    EXPECT_EQ(filled("%2 before %1", {"a", "b"}), "b before a");
    EXPECT_EQ(filled("%3, %2, %3", {"a", "b"}), "b, a, b");
}

TEST(Words, LeaveAValueAsItIs) { EXPECT_EQ(filled("%1 and %2", {"%2", "100 %"}), "%2 and 100 %"); }

TEST(Words, KeepWhatIsNoPlaceholderOrHasNoValue) {
    EXPECT_EQ(filled("100 %, %0, %a, %", {"x"}), "100 %, %0, %a, %");
    EXPECT_EQ(filled("%1 of %2", {"x"}), "x of %2");
}

} // namespace
} // namespace songsweep
