// SPDX-License-Identifier: MIT
#include "dupes/LooseText.h"

#include "library/CaseFolding.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <string>

namespace songsweep {
namespace {

std::string letters(std::string_view text) {
    std::string made;
    appendLetters(made, text);
    return made;
}

std::string words(std::string_view text) {
    std::string made;
    appendWords(made, letters(text));
    return made;
}

TEST(LooseText, CaseAndCompatibilityFormsDoNotCount) {
    EXPECT_EQ(letters("SONG"), "song");
    EXPECT_EQ(letters("Ｓｏｎｇ"), "song");
    EXPECT_EQ(letters("ﬁre"), "fire");
    EXPECT_EQ(letters("Straße"), letters("STRASSE"));
    EXPECT_EQ(letters("ｶﾞ"), letters("ガ"));
}

TEST(LooseText, AccentsOfLatinAndGreekLettersDoNotCount) {
    EXPECT_EQ(letters("Beyoncé"), "beyonce");
    EXPECT_EQ(letters("Bjo\u0308rk"), "bjork");
    EXPECT_EQ(letters("Μαρία"), letters("Μαρια"));
    EXPECT_EQ(letters("Röyksøpp Łódź"), "royksopp lodz");
    EXPECT_EQ(letters("Œuvre Ærø"), "oeuvre aero");
}

TEST(LooseText, MarksOfOtherScriptsCount) {
    EXPECT_NE(letters("はな"), letters("ばな"));
    EXPECT_NE(letters("мой"), letters("мои"));
    EXPECT_NE(letters("กา"), letters("ก่า"));
}

TEST(LooseText, PunctuationAndBlanksOfAnyKindPartWords) {
    for (const char* text : {"Don't Stop", "Don’t  Stop", "don´t\tstop", "Don`t—Stop!", " (Don't) [Stop]…",
                             "Don\u00a0t\u3000Stop", "Don't、Stop。"})
        EXPECT_EQ(words(text), "don t stop") << text;
    EXPECT_EQ(words("AC/DC"), "ac dc");
}

TEST(LooseText, AnAmpersandIsAWord) {
    EXPECT_EQ(words("Simon & Garfunkel"), "simon and garfunkel");
    EXPECT_EQ(words("R&B"), "r and b");
    EXPECT_EQ(words("You＆Me"), "you and me");
    EXPECT_EQ(words("&"), "and");
}

TEST(LooseText, SymbolsThatMayBeAWholeNameStay) {
    EXPECT_EQ(words("÷"), "÷");
    EXPECT_NE(words("+"), words("="));
    EXPECT_EQ(words("A$AP"), "a$ap");
}

TEST(LooseText, PunctuationAloneHasNoWord) {
    for (const char* text : {"", " ", "???", "...", "( )", "“”"})
        EXPECT_EQ(words(text), "") << text;
}

TEST(LooseText, JoinsWhatWasAddedBeforeWithoutABlank) {
    std::string key = "x";
    appendWords(key, "- a");
    EXPECT_EQ(key, "xa");
}

TEST(LooseText, BytesThatAreNoUtf8AreTaken) {
    EXPECT_EQ(letters("a\xff"), letters("A\xfe"));
    EXPECT_EQ(words("\xc3 b"), "\uFFFD b");
}

/// What the exact comparison takes for equal must not be parted by the looser one.
TEST(LooseText, TextsEqualWithoutRegardToCaseHaveEqualWords) {
    constexpr std::array<const char*, 22> pieces = {"a",      "A",  "\u0301",  "é", "E", "ß", "ẞ", "ς",
                                                    "Σ",      "İ",  "i\u0307", "K", "k", "Å", "Å", "(",
                                                    "\u3099", "か", "\u0345",  "ι", " ", "-"};
    std::mt19937 random(7);
    int equal = 0;
    for (int i = 0; i < 200'000; ++i) {
        std::string a;
        std::string b;
        for (int length = 0; length < 2; ++length) {
            a += pieces[random() % pieces.size()];
            b += pieces[random() % pieces.size()];
        }
        if (!equalIgnoringCase(a, b)) continue;
        ++equal;
        EXPECT_EQ(words(a), words(b)) << a << " / " << b;
    }
    EXPECT_GT(equal, 1000);
}

} // namespace
} // namespace songsweep
