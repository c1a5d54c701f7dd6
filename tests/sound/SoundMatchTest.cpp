// SPDX-License-Identifier: MIT
#include "sound/SoundMatch.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace songsweep {
namespace {

Fingerprint randomSound(unsigned seed, std::size_t items = 470) {
    std::mt19937 random(seed);
    Fingerprint sound(items);
    for (std::uint32_t& item : sound)
        item = static_cast<std::uint32_t>(random());
    return sound;
}

/// With about so many of a hundred bits turned around.
Fingerprint worn(Fingerprint sound, unsigned percent, unsigned seed = 99) {
    std::mt19937 random(seed);
    for (std::uint32_t& item : sound)
        for (int bit = 0; bit < 32; ++bit)
            if (random() % 100 < percent) item ^= 1U << bit;
    return sound;
}

Fingerprint from(const Fingerprint& sound, std::ptrdiff_t first) {
    return {sound.begin() + first, sound.end()};
}

TEST(SoundMatch, ASoundIsTheSameAsItself) {
    const SoundMatch match = matchSounds(randomSound(1), randomSound(1));
    EXPECT_EQ(match.sameness, Sameness::same);
    EXPECT_EQ(match.agreement, 1);
    EXPECT_EQ(match.offset, 0);
}

TEST(SoundMatch, OthersAgreeByChanceAlone) {
    const SoundMatch match = matchSounds(randomSound(1), randomSound(2));
    EXPECT_EQ(match.sameness, Sameness::differs);
    EXPECT_NEAR(match.agreement, 0.52, 0.04);
}

TEST(SoundMatch, FindsASoundThatBeginsLaterOrEarlier) {
    const Fingerprint sound = randomSound(1);
    for (const std::ptrdiff_t items : {1, 40, 85}) {
        EXPECT_EQ(matchSounds(sound, from(sound, items)).offset, items);
        EXPECT_EQ(matchSounds(from(sound, items), sound).offset, -items);
        EXPECT_EQ(matchSounds(sound, from(sound, items)).sameness, Sameness::same);
    }
    EXPECT_EQ(matchSounds(sound, from(sound, 120)).sameness, Sameness::differs);
}

TEST(SoundMatch, IsUnsureBetweenTheBorders) {
    const Fingerprint sound = randomSound(1);
    EXPECT_EQ(matchSounds(sound, worn(sound, 8)).sameness, Sameness::same);
    EXPECT_EQ(matchSounds(sound, worn(sound, 22)).sameness, Sameness::unsure);
    EXPECT_EQ(matchSounds(sound, worn(sound, 38)).sameness, Sameness::differs);
}

/// A sound whose items change slowly, as those of music do, one item a step.
Fingerprint flowingSound(double tempo) {
    std::mt19937 random(4);
    Fingerprint all = {0x5A5A5A5A};
    while (all.size() < 500)
        all.push_back(all.back() ^ 1U << random() % 32 ^ 1U << random() % 32);
    Fingerprint sound;
    for (double place = 0; place < 470; place += tempo)
        sound.push_back(all[static_cast<std::size_t>(place)]);
    return sound;
}

TEST(SoundMatch, APerformanceThatRunsAheadIsNeverTheSame) {
    EXPECT_EQ(matchSounds(flowingSound(1), flowingSound(1)).sameness, Sameness::same);
    const SoundMatch match = matchSounds(flowingSound(1), flowingSound(1.01));
    EXPECT_GT(match.agreement, leastOfSame) << "though most of it agrees";
    EXPECT_EQ(match.sameness, Sameness::unsure);
}

TEST(SoundMatch, APartThatIsAnotherIsNeverTheSame) {
    const Fingerprint sound = randomSound(1);
    Fingerprint other = sound;
    std::copy_n(randomSound(2).begin(), 90, other.end() - 90);
    const SoundMatch match = matchSounds(sound, other);
    EXPECT_GT(match.agreement, leastOfSame);
    EXPECT_EQ(match.sameness, Sameness::unsure);
}

TEST(SoundMatch, IsUnsureOfLessThanTenSeconds) {
    const Fingerprint sound = randomSound(1, 79);
    EXPECT_EQ(matchSounds(sound, sound).sameness, Sameness::unsure);
    EXPECT_EQ(matchSounds(randomSound(1, 80), randomSound(1, 80)).sameness, Sameness::same);
    EXPECT_EQ(matchSounds({}, sound).sameness, Sameness::unsure);
}

TEST(SoundMatch, SilenceIsNeverTheSame) {
    const Fingerprint silence(470, 627964279U);
    EXPECT_EQ(matchSounds(silence, silence).sameness, Sameness::unsure);
}

} // namespace
} // namespace songsweep
