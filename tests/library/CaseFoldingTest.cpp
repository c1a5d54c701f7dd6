// SPDX-License-Identifier: MIT
#include "library/CaseFolding.h"

#include <gtest/gtest.h>

namespace songsweep {
namespace {

TEST(CaseFolding, IgnoresTheCaseOfLetters) {
    EXPECT_TRUE(equalIgnoringCase("Song", "SONG"));
    EXPECT_TRUE(equalIgnoringCase("ÄRZTE", "ärzte"));
    EXPECT_TRUE(equalIgnoringCase("ΣΟΦΙΑ", "σοφια"));
    EXPECT_TRUE(equalIgnoringCase("σ", "ς"));
    EXPECT_TRUE(equalIgnoringCase("ПЕСНЯ", "песня"));
    EXPECT_TRUE(equalIgnoringCase("", ""));
}

TEST(CaseFolding, TakesCanonicallyEquivalentTextsForEqual) {
    EXPECT_TRUE(equalIgnoringCase("\u00e9", "e\u0301"));
    EXPECT_TRUE(equalIgnoringCase("\u00c9", "e\u0301"));
    EXPECT_TRUE(equalIgnoringCase("Bjo\u0308rk", "BJÖRK"));
    EXPECT_TRUE(equalIgnoringCase("\u212b", "\u00e5"));
    EXPECT_TRUE(equalIgnoringCase("a\u0323\u0307", "a\u0307\u0323"));
}

TEST(CaseFolding, KeepsAccentsAndWidthsApart) {
    EXPECT_FALSE(equalIgnoringCase("e", "é"));
    EXPECT_FALSE(equalIgnoringCase("A", "\uff21"));
    EXPECT_FALSE(equalIgnoringCase("ｶ", "カ"));
}

TEST(CaseFolding, FoldsOneCharacterToOne) {
    EXPECT_FALSE(equalIgnoringCase("ß", "ss"));
    EXPECT_TRUE(equalIgnoringCase("ẞ", "ß"));
    EXPECT_FALSE(equalIgnoringCase("ﬁ", "fi"));
}

TEST(CaseFolding, KeepsBlanks) {
    EXPECT_FALSE(equalIgnoringCase("Song ", "Song"));
    EXPECT_FALSE(equalIgnoringCase("a b", "ab"));
}

TEST(CaseFolding, OrdersByTheCodePointsOfTheFoldedText) {
    EXPECT_LT(compareIgnoringCase("abc", "ABD"), 0);
    EXPECT_GT(compareIgnoringCase("B", "a"), 0);
    EXPECT_EQ(compareIgnoringCase("abc", "ABC"), 0);
    EXPECT_LT(compareIgnoringCase("ab", "abc"), 0);
    EXPECT_LT(compareIgnoringCase("_", "a"), 0); // behind "Z", before "a": capitals count as small ones
    EXPECT_LT(compareIgnoringCase("é", "f"), 0); // decomposed, it begins with "e"
    EXPECT_LT(compareIgnoringCase("\uffee", "\U0001f3b5"), 0);
}

TEST(CaseFolding, AppendsAKeyToWhatThereIs) {
    std::string key = "A:";
    appendFoldedKey(key, "BÉ");
    EXPECT_EQ(key, "A:be\u0301");
}

TEST(CaseFolding, FoldsAKeyOnce) {
    for (const char* text : {"Ärzte", "ǅ", "ΑΣ", "ﬀ", "İstanbul", "Ⅷ", "plain"})
        EXPECT_EQ(foldedKey(foldedKey(text)), foldedKey(text)) << text;
}

TEST(Lowercase, FollowsNoLanguage) {
    EXPECT_EQ(lowercase("TRACK ID"), "track id");
    EXPECT_EQ(lowercase("ÄÖÜ ΣΑΣ"), "äöü σας");
    EXPECT_EQ(lowercase("Trac\u212a"), "track");
    EXPECT_EQ(lowercase(""), "");
    EXPECT_EQ(uppercase("straße"), "STRASSE");
    EXPECT_EQ(uppercase("title i"), "TITLE I");
}

} // namespace
} // namespace songsweep
