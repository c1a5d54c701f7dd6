// SPDX-License-Identifier: MIT
#include "dupes/NameParts.h"

#include "dupes/LooseText.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>

namespace songsweep {
namespace {

std::string kept(std::string_view letters, Featuring featuring = Featuring::ignored) {
    std::string pieces;
    for (const std::string_view part : essentialParts(letters, featuring))
        (pieces += part) += ' ';
    std::string words;
    appendWords(words, pieces);
    return words;
}

TEST(NameParts, PartsThatTellOfRemasteringAloneGo) {
    for (const char* name : {"song (remastered 2009)", "song - remaster", "song [2009 remaster]",
                             "song – 2011 remastered version", "song (digitally remastered)",
                             "song {remaster}", "song 【remastered】", "song (remastered) - 2009 remaster"})
        EXPECT_EQ(kept(name), "song") << name;
}

TEST(NameParts, AllOtherPartsStay) {
    for (const char* name : {"song (live)", "song [remix]", "song - acoustic", "song (demo)",
                             "song (mono remaster)", "song (live remastered)", "song (instrumental)",
                             "song (2009)", "song (version)", "song (remaster 17)"})
        EXPECT_NE(kept(name), "song") << name;
    EXPECT_EQ(kept("song (live) - remastered 2009"), "song live");
    EXPECT_EQ(kept("song (remastered) [live]"), "song live");
}

TEST(NameParts, ANameOfRemasteringKeepsItsName) {
    EXPECT_EQ(kept("remastered"), "remastered");
    EXPECT_EQ(kept("(remastered)"), "remastered");
    EXPECT_EQ(kept("remaster (live)"), "remaster live");
    EXPECT_EQ(kept("remastered-song"), "remastered song");
}

TEST(NameParts, AGuestGoesWhereItIsIgnored) {
    for (const char* name : {"song (feat. x & y)", "song feat. x", "song [ft x]", "song featuring x",
                             "song - feat. x", "song (feat. x (of y))", "song ft. x - 2009 remaster"})
        EXPECT_EQ(kept(name), "song") << name;
    EXPECT_EQ(kept("song (feat. x)", Featuring::counts), "song feat x");
}

TEST(NameParts, WhatStandsBesideAGuestStays) {
    EXPECT_EQ(kept("song (live feat. x)"), "song live");
    EXPECT_EQ(kept("song feat. x (remix)"), "song remix");
    EXPECT_EQ(kept("song (feat. x) - live"), "song live");
    EXPECT_EQ(kept("song feat. x - live"), "song live");
}

TEST(NameParts, AGuestOfAVersionStaysWithIt) {
    EXPECT_EQ(kept("song (feat. x remix)"), "song feat x remix");
    EXPECT_EQ(kept("song ft. x live"), "song ft x live");
}

TEST(NameParts, WordsThatOnlyLookLikeAGuestStay) {
    EXPECT_EQ(kept("10 ft. tall"), "10 ft tall");
    EXPECT_EQ(kept("the feat"), "the feat");
    EXPECT_EQ(kept("feat. x"), "feat x");
    EXPECT_EQ(kept("a feature film"), "a feature film");
    EXPECT_EQ(kept("left behind"), "left behind");
    EXPECT_EQ(kept("song (feat.)"), "song feat");
}

TEST(NameParts, BracketsThatDoNotCloseEndWithTheName) {
    EXPECT_EQ(kept("song (feat. x"), "song");
    EXPECT_EQ(kept("song (live"), "song live");
    EXPECT_EQ(kept("song) (remastered"), "song");
}

TEST(NameParts, TheQuickLookMissesNothing) {
    EXPECT_FALSE(mayHaveOtherParts("song (live)", Featuring::ignored));
    EXPECT_TRUE(mayHaveOtherParts("song remastered", Featuring::counts));
    EXPECT_FALSE(mayHaveOtherParts("song (feat. x)", Featuring::counts));
    for (const char* name : {"song feat x", "song ft x", "song featuring x"})
        EXPECT_TRUE(mayHaveOtherParts(name, Featuring::ignored)) << name;
}

TEST(NameParts, HostileNamesTakeNoLongTime) {
    for (const char* piece : {" (", " - ", "((", " feat. ", " 1 ft ", "remaster ", ") ", " feat.. "}) {
        std::string name = "x";
        while (name.size() < 200'000)
            name += piece;
        const auto start = std::chrono::steady_clock::now();
        essentialParts(name, Featuring::ignored);
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2)) << piece;
    }
}

} // namespace
} // namespace songsweep
