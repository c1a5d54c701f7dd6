// SPDX-License-Identifier: MIT
#include "sound/SoundSets.h"

#include "sound/SoundIndex.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <numeric>
#include <random>
#include <set>

namespace songsweep {
namespace {

using testing::ElementsAre;

Fingerprint randomSound(unsigned seed, std::size_t items = 200) {
    std::mt19937 random(seed);
    Fingerprint sound(items);
    for (std::uint32_t& item : sound)
        item = static_cast<std::uint32_t>(random());
    return sound;
}

Fingerprint worn(Fingerprint sound, unsigned percent, unsigned seed) {
    std::mt19937 random(seed);
    for (std::uint32_t& item : sound)
        for (int bit = 0; bit < 32; ++bit)
            if (random() % 100 < percent) item ^= 1U << bit;
    return sound;
}

std::vector<std::int32_t> setsOf(const std::vector<HeardCopy>& copies) {
    std::vector<std::int32_t> sets;
    for (const SoundPlace& place : soundSets(copies))
        sets.push_back(place.set);
    return sets;
}

TEST(SoundSets, CopiesOfOneRecordingShareASet) {
    const Fingerprint a = randomSound(1, 210);
    const Fingerprint b = randomSound(2);
    const Fingerprint wornA = worn(a, 5, 1);
    EXPECT_THAT(setsOf({{&a, 180}, {&b, 180}, {&wornA, 181}}), ElementsAre(1, 2, 1));
}

TEST(SoundSets, SetsAreNumberedAsTheCopiesMeetThem) {
    const Fingerprint a = randomSound(1, 200);
    const Fingerprint longer = randomSound(2, 210);
    EXPECT_THAT(setsOf({{&a, 180}, {&longer, 180}, {&a, 180}}), ElementsAre(1, 2, 1));
}

TEST(SoundSets, ACopyThatCouldNotBeHeardIsInNoSet) {
    const Fingerprint a = randomSound(1);
    EXPECT_THAT(setsOf({{nullptr, 180}, {&a, 180}}), ElementsAre(0, 1));
    EXPECT_THAT(setsOf({}), ElementsAre());
}

TEST(SoundSets, ACopyInDoubtIsKeptApart) {
    const Fingerprint a = randomSound(1, 210);
    const Fingerprint doubtful = worn(randomSound(1, 210), 22, 1);
    EXPECT_THAT(setsOf({{&a, 180}, {&doubtful, 180}}), ElementsAre(1, 2));
}

TEST(SoundSets, DoubtIsMutual) {
    const Fingerprint a = randomSound(1, 210);
    const Fingerprint doubtful = worn(randomSound(1, 210), 22, 1);
    const Fingerprint other = randomSound(2);
    const std::vector<SoundPlace> places = soundSets({{&a, 180}, {&doubtful, 180}, {&other, 180}});
    EXPECT_TRUE(places[0].isUnsure);
    EXPECT_TRUE(places[1].isUnsure);
    EXPECT_FALSE(places[2].isUnsure);
}

TEST(SoundSets, TellHowMuchACopyAgrees) {
    const Fingerprint a = randomSound(1, 210);
    const Fingerprint wornA = worn(a, 5, 1);
    const Fingerprint b = randomSound(2);
    const std::vector<SoundPlace> places = soundSets({{&b, 180}, {&a, 180}, {&wornA, 180}});
    EXPECT_NEAR(places[1].agreement, 0.95, 0.01) << "of the first of a set with the best of its others";
    EXPECT_EQ(places[1].agreement, places[2].agreement);
    EXPECT_NEAR(places[0].agreement, 0.53, 0.04) << "with the set most like it";
    EXPECT_EQ(soundSets({{&a, 180}})[0].agreement, 0);
}

TEST(SoundSets, EqualBeginningsOfUnequalLengthsAreInDoubt) {
    const Fingerprint a = randomSound(1);
    EXPECT_THAT(setsOf({{&a, 180}, {&a, 240}}), ElementsAre(1, 2));
    EXPECT_TRUE(soundSets({{&a, 180}, {&a, 240}})[1].isUnsure);
    EXPECT_THAT(setsOf({{&a, 180}, {&a, 0}}), ElementsAre(1, 1));
    EXPECT_THAT(setsOf({{&a, 180}, {&a, 190}}), ElementsAre(1, 1));
}

/// Whatever the number of sets, by which copies are compared with all sets or with some.
TEST(SoundSets, ThousandsOfCopiesAreComparedInSeconds) {
    constexpr std::size_t recordings = 400;
    constexpr std::size_t copies = 2000;
    std::vector<Fingerprint> sounds;
    for (std::size_t i = 0; i < copies; ++i)
        sounds.push_back(
            worn(randomSound(static_cast<unsigned>(i % recordings)), 4, static_cast<unsigned>(i)));
    std::vector<HeardCopy> heard;
    for (const Fingerprint& sound : sounds)
        heard.push_back({&sound, 180});
    const auto start = std::chrono::steady_clock::now();
    const std::vector<std::int32_t> sets = setsOf(heard);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(30));
    for (std::size_t i = 0; i < copies; ++i)
        ASSERT_EQ(sets[i], sets[i % recordings]) << i;
    EXPECT_EQ(std::set(sets.begin(), sets.end()).size(), recordings);
}

TEST(SoundIndex, FindsTheSetsWithTheMostItemsInCommon) {
    SoundIndex index;
    index.add(0, {1, 2, 3, 4});
    index.add(1, {3, 4, 5});
    EXPECT_THAT(index.candidates({4, 3, 2}), ElementsAre(0, 1));
    EXPECT_THAT(index.candidates({9}), ElementsAre());
}

TEST(SoundIndex, AnItemOfVeryManySetsTellsNothing) {
    SoundIndex index;
    for (std::size_t set = 0; set < 40; ++set)
        index.add(set, {7, 7, static_cast<std::uint32_t>(100 + set)});
    EXPECT_THAT(index.candidates({7}), ElementsAre());
    EXPECT_THAT(index.candidates({7, 105}), ElementsAre(5));
}

} // namespace
} // namespace songsweep
