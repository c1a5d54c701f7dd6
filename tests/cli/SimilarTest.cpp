// SPDX-License-Identifier: MIT
#include "ProgramRun.h"
#include "SampleLibrary.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace songsweep {
namespace {

using nlohmann::json;
using test::RunResult;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

/// Three recordings: "Umbrella" in four spellings, of which two are the same exactly, "Umbrella (Live)", and
/// "Paper" twice, four seconds apart.
class Similar : public test::ProgramTest {
  protected:
    Similar() {
        m_library = m_folder.write(
            "Library.xml",
            test::libraryText(
                {{.id = 1, .name = "Umbrella", .artist = "The X", .milliseconds = 180'000},
                 {.id = 2, .name = "UMBRELLA", .artist = "The X", .milliseconds = 180'000},
                 {.id = 3, .name = "Umbrella (feat. Y)", .artist = "X", .milliseconds = 181'000},
                 {.id = 4, .name = "Umbrella (Live)", .artist = "X", .milliseconds = 180'000},
                 {.id = 5, .name = "Paper", .artist = "X", .milliseconds = 100'000},
                 {.id = 6, .name = "Paper", .artist = "X", .milliseconds = 104'000}}));
    }

    RunResult command(const std::string& name, std::vector<std::string> options) {
        options.insert(options.begin(), {name, "--library", m_library});
        return run(options);
    }
    json find(std::vector<std::string> options) {
        options.insert(options.end(), {"--format", "json"});
        return json::parse(command("find", options).output);
    }
    static std::vector<std::string> trackIds(const json& group) {
        std::vector<std::string> ids;
        for (const json& track : group.at("tracks"))
            ids.push_back(track.at("trackid"));
        return ids;
    }

    std::string m_library;
};

TEST_F(Similar, SmallDifferencesCountUnlessTheyAreAllowed) {
    const json exact = find({});
    ASSERT_EQ(exact.at("groups").size(), 1U);
    EXPECT_THAT(trackIds(exact.at("groups")[0]), ElementsAre("1", "2"));
    EXPECT_FALSE(exact.at("groups")[0].contains("similar"));
    const json similar = find({"--similar"});
    ASSERT_EQ(similar.at("groups").size(), 1U);
    EXPECT_THAT(trackIds(similar.at("groups")[0]), ElementsAre("1", "2", "3"));
}

TEST_F(Similar, TellsTheDifferencesInJson) {
    const json group = find({"--similar"}).at("groups")[0];
    EXPECT_EQ(group.at("similar"), true);
    EXPECT_FALSE(group.at("tracks")[0].contains("differences"));
    EXPECT_THAT(group.at("tracks")[2].at("differences").get<std::vector<std::string>>(),
                ElementsAre("name differs: feat. Y", "artist differs: without The", "1 s longer"));
}

TEST_F(Similar, AGroupThatIsTheSameExactlyIsNotCalledSimilar) {
    const json groups = find({"--similar", "--within", "0"}).at("groups");
    ASSERT_EQ(groups.size(), 1U);
    EXPECT_THAT(trackIds(groups[0]), ElementsAre("1", "2"));
    EXPECT_FALSE(groups[0].contains("similar"));
}

TEST_F(Similar, TheToleranceOfTheTimeIsChosen) {
    const json groups = find({"--similar", "--within", "4"}).at("groups");
    ASSERT_EQ(groups.size(), 2U);
    EXPECT_THAT(trackIds(groups[0]), ElementsAre("5", "6"));
}

TEST_F(Similar, TheTrackNumberBeforeANameIsRead) {
    std::string text = test::libraryText({{.id = 1, .name = "01 Song", .artist = "X", .milliseconds = 1000},
                                          {.id = 2, .name = "Song", .artist = "X", .milliseconds = 1000}});
    const std::string name = "<key>Name</key>";
    text.insert(text.find(name), "<key>Track Number</key><integer>1</integer>");
    m_folder.write("Library.xml", text);
    EXPECT_EQ(find({"--similar"}).at("songs"), 2);
    EXPECT_EQ(find({}).at("songs"), 0);
}

TEST_F(Similar, TellsTheDifferencesInTheTableAndInCsv) {
    EXPECT_THAT(command("find", {"--similar"}).output, HasSubstr("name differs: feat. Y; artist differs"));
    EXPECT_THAT(command("find", {}).output, Not(HasSubstr("Differs")));
    const std::string csv = command("find", {"--similar", "--format", "csv"}).output;
    EXPECT_THAT(csv, HasSubstr("trackid,differences\r\n"));
    EXPECT_THAT(csv, HasSubstr("\"name differs: feat. Y; artist differs: without The; 1 s longer\"\r\n"));
    EXPECT_THAT(command("find", {"--format", "csv"}).output, HasSubstr("trackid\r\n"));
}

TEST_F(Similar, MarkAndDeleteSeeTheSameGroups) {
    const RunResult marked = command("mark", {"--similar", "--rule", "shortest", "--except-one"});
    EXPECT_THAT(marked.output, HasSubstr("3 songs in 1 group"));
    const RunResult deleted = command(
        "delete", {"--similar", "--rule", "shortest", "--except-one", "--dry-run", "--format", "csv"});
    EXPECT_THAT(deleted.output, HasSubstr("Umbrella (feat. Y)")) << deleted.errors;
}

TEST_F(Similar, RefusesAToleranceThatIsNone) {
    for (const char* seconds : {"11", "-1", "two"})
        EXPECT_EQ(command("find", {"--similar", "--within", seconds}).exitCode, 2) << seconds;
    EXPECT_EQ(command("find", {"--within", "3"}).exitCode, 2);
}

} // namespace
} // namespace songsweep
