// SPDX-License-Identifier: MIT
#include "app/MapGuess.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace songsweep::test {
namespace {

class MapGuessTest : public ::testing::Test {
  protected:
    MapGuessTest() {
        for (const char* file :
             {"music/Abba/Gold/SOS.mp3", "music/Abba/Gold/Eagle.mp3", "music/Can/Mushroom.mp3"})
            folder.write(file, "sound");
    }
    std::string path(const std::string& name) const { return folder.path() + "/" + name; }

    TemporaryFolder folder;
    std::vector<std::string> paths = {"/Users/ann/Music/Abba/Gold/SOS.mp3",
                                      "/Users/ann/Music/Can/Mushroom.mp3", "/Users/ann/Music/Gone/Gone.mp3"};
};

TEST_F(MapGuessTest, FindsTheFilesInTheMusicFolder) {
    const auto guess = guessMap(paths, {path("music")});
    ASSERT_TRUE(guess);
    EXPECT_EQ(guess->rule.from, "/Users/ann/Music");
    EXPECT_EQ(guess->rule.to, path("music"));
    EXPECT_EQ(guess->found, 2);
    EXPECT_EQ(guess->tried, 3);
}

TEST_F(MapGuessTest, FindsTheFilesFromTheFolderAboveAndFromAnArtistsFolder) {
    for (const std::string& chosen : {folder.path(), path("music/Abba")}) {
        const auto guess = guessMap(paths, {chosen});
        ASSERT_TRUE(guess) << chosen;
        EXPECT_EQ(guess->rule.from, "/Users/ann/Music") << chosen;
        EXPECT_EQ(guess->rule.to, path("music")) << chosen;
    }
}

TEST_F(MapGuessTest, KnowsDrivesOfOtherSystems) {
    const auto guess = guessMap({"/C:/Users/Ann/Music/Can/Mushroom.mp3"}, {path("music")});
    ASSERT_TRUE(guess);
    EXPECT_EQ(guess->rule.from, "/C:/Users/Ann/Music");
}

TEST_F(MapGuessTest, IsNothingWhereNothingIsFound) {
    EXPECT_FALSE(guessMap({"/Users/ann/Music/Gone/Gone.mp3"}, {path("music")}));
    EXPECT_FALSE(guessMap(paths, {path("no such folder")}));
    EXPECT_FALSE(guessMap({}, {path("music")}));
}

TEST_F(MapGuessTest, TheBestOfSeveralFoldersWins) {
    folder.write("other/Can/Mushroom.mp3", "sound");
    EXPECT_EQ(guessMap(paths, {path("other"), path("music")})->rule.to, path("music"));
}

TEST(PathSampleTest, IsSpreadEvenly) {
    PathSample sample;
    for (int number = 0; number < 1000; ++number)
        sample.add("/" + std::to_string(number));
    EXPECT_GE(sample.paths().size(), 16U);
    EXPECT_LE(sample.paths().size(), 32U);
    EXPECT_EQ(sample.paths().front(), "/0");
    EXPECT_GE(std::stoi(sample.paths().back().substr(1)), 900);
    for (std::size_t place = 1; place < sample.paths().size(); ++place)
        EXPECT_EQ(std::stoi(sample.paths()[place].substr(1)) - std::stoi(sample.paths()[place - 1].substr(1)),
                  std::stoi(sample.paths()[1].substr(1)));
}

} // namespace
} // namespace songsweep::test
