// SPDX-License-Identifier: MIT
//
// What the copies that go know goes to the copy that stays.
#include "ProgramRun.h"
#include "SampleLibrary.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <filesystem>

namespace songsweep {
namespace {

using nlohmann::json;
using test::libraryText;
using test::RunResult;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

/// Three copies of "A" with bit rates 128, 320 and 192, of which the first was played and stands in a list;
/// "B" has three, of which two are the best; "C" has two that are alike, and one whose file is missing.
class MergeTest : public test::ProgramTest {
  protected:
    MergeTest() { m_library = m_folder.write("Library.xml", before()); }

    test::SampleTrack track(int id, const std::string& name, int bitRate, int plays, int rating) {
        const std::string file = "music/" + std::to_string(id) + ".mp3";
        if (id != missing) m_folder.write(file, "music");
        return {.id = id,
                .name = name,
                .artist = "X",
                .milliseconds = 1000,
                .bitRate = bitRate,
                .rating = rating,
                .plays = plays,
                .path = path(file)};
    }
    std::string before() {
        return libraryText({track(1, "A", 128, 20, 80), track(2, "A", 320, 5, 40), track(3, "A", 192, 6, 0),
                            track(4, "B", 128, 3, 0), track(5, "B", 320, 1, 0), track(6, "B", 320, 0, 0),
                            track(missing, "C", 320, 9, 0), track(8, "C", 320, 0, 0),
                            track(9, "C", 320, 0, 0)},
                           {{"Library", {1, 2, 3, 4, 5, 6, missing, 8, 9}, true},
                            {"List", {3, 4, 1, 5}},
                            {"Other", {2, 1, missing}}});
    }
    std::string after(int plays, int rating, int playsOfB, const std::vector<int>& list) {
        return libraryText({track(2, "A", 320, plays, rating), track(5, "B", 320, playsOfB, 0),
                            track(6, "B", 320, 0, 0), track(8, "C", 320, 0, 0), track(9, "C", 320, 0, 0)},
                           {{"Library", {2, 5, 6, 8, 9}, true}, {"List", list}, {"Other", {2}}});
    }
    RunResult remove(std::vector<std::string> options) {
        options.insert(options.begin(), {"delete", "--library", m_library, "--rule", "highest-bitrate"});
        return run(options);
    }
    std::string library() const { return m_folder.read("Library.xml"); }

    static constexpr int missing = 7;
    std::string m_library;
};

TEST_F(MergeTest, TheCopyThatStaysIsGivenPlacesAndHistory) {
    const RunResult result = remove({"--yes"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(library(), after(31, 80, 4, {2, 5}));
    EXPECT_THAT(result.output,
                HasSubstr("(0000000000000001) deleted, 20 plays, rating given to 0000000000000002, "));
    EXPECT_THAT(result.output,
                HasSubstr("(0000000000000003) deleted, 1 place, 6 plays given to 0000000000000002, "));
    EXPECT_THAT(result.output,
                HasSubstr("(0000000000000004) deleted, 1 place, 3 plays given to 0000000000000005, "))
        << "of two that stay, the one that the reason names";
    EXPECT_THAT(result.output,
                HasSubstr("2 places in 1 playlist, 29 plays, 1 rating given to copies that stay\n"
                          "1 song keeps two copies or more: not merged\n"));
    EXPECT_EQ(run({"restore", "--library", m_library, "--yes"}).exitCode, 0);
    EXPECT_EQ(library(), before());
}

TEST_F(MergeTest, TheDryRunTellsAllOfItAndChangesNothing) {
    const RunResult result = remove({"--dry-run"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(library(), before());
    EXPECT_THAT(result.output,
                HasSubstr("(0000000000000003) would be deleted, 1 place, 6 plays would be given to "
                          "0000000000000002, "));
    EXPECT_THAT(result.output, HasSubstr("29 plays, 1 rating would be given to copies that stay\n"));
}

TEST_F(MergeTest, ARestoreThatLeavesACopyOutSaysThatTheCopyThatStayedKeepsWhatItWasGiven) {
    ASSERT_EQ(remove({"--yes", "--files"}).exitCode, 0);
    ASSERT_TRUE(std::filesystem::remove(path("home/data/Trash/files/1.mp3")));
    const RunResult result = run({"restore", "--library", m_library, "--yes", "--leave-lost"});
    EXPECT_THAT(result.output, HasSubstr("the copies that stayed keep what they were given: 1"));
    EXPECT_THAT(library(), HasSubstr("<key>Play Count</key><integer>31</integer>"));
    EXPECT_THAT(library(), Not(HasSubstr("0000000000000001")));
}

TEST_F(MergeTest, EachPartIsLeftOutByItsOption) {
    ASSERT_EQ(remove({"--yes", "--no-keep-places"}).exitCode, 0);
    EXPECT_EQ(library(), after(31, 80, 4, {5}));
    m_folder.write("Library.xml", before());
    ASSERT_EQ(remove({"--yes", "--no-keep-history"}).exitCode, 0);
    EXPECT_EQ(library(), after(5, 40, 1, {2, 5}));
    m_folder.write("Library.xml", before());
    const RunResult result = remove({"--yes", "--no-keep-places", "--no-keep-history"});
    EXPECT_EQ(library(), after(5, 40, 1, {5}));
    EXPECT_THAT(result.output, Not(HasSubstr("merged")));
}

TEST_F(MergeTest, JsonAndCsvTellOfEachCopy) {
    const json result = json::parse(remove({"--dry-run", "--format", "json"}).output);
    EXPECT_EQ(result.at("merge"), json::parse(R"({"places": 2, "playlists": 1, "plays": 29, "ratings": 1,
                                                 "values": 0, "keepseveral": 1, "unclear": 0})"));
    EXPECT_EQ(result.at("outcomes").at(0).at("merged"),
              json::parse(R"({"to": "0000000000000002", "places": 0, "plays": 20, "values": "rating"})"));
    EXPECT_FALSE(result.at("outcomes").at(3).contains("merged"));
    EXPECT_THAT(remove({"--dry-run", "--format", "csv"}).output,
                HasSubstr(",0000000000000002,\"20 plays, rating\"\r\n"));
}

TEST_F(MergeTest, FindTellsThePlaylistsOfEachCopy) {
    const json result = json::parse(run({"find", "--library", m_library, "--format", "json"}).output);
    const json& copies = result.at("groups").at(0).at("tracks");
    EXPECT_THAT(copies.at(0).at("playlists"), ElementsAre("List", "Other"));
    EXPECT_THAT(copies.at(1).at("playlists"), ElementsAre("Other"));
    EXPECT_THAT(result.at("groups").at(1).at("tracks").at(2).at("playlists"), IsEmpty());
}

} // namespace
} // namespace songsweep
