// SPDX-License-Identifier: MIT
#include "TwoGroups.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace songsweep {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using test::RunResult;
using ::testing::HasSubstr;
using ::testing::Not;

/// A file whose name is not UTF-8, on each road by which tracks are read: the library's reader, AppleScript.
class NamesThatAreNotUtf8 : public test::TwoGroups, public testing::WithParamInterface<const char*> {
  protected:
    NamesThatAreNotUtf8() {
        std::vector<test::SampleTrack> songs = tracks({1, 2});
        songs[0].path = m_folder.write("caf\xe9/\xff 1.mp3", "music");
        m_library = m_folder.write("Library.xml", test::libraryText(songs));
    }
    RunResult onThisRoad(const std::string& name, std::vector<std::string> options) {
        options.insert(options.end(), {"--itunes-version", GetParam()});
        return command(name, options);
    }
    bool isThere() const { return fs::exists(path("caf\xe9/\xff 1.mp3")); }
};

TEST_P(NamesThatAreNotUtf8, AreFound) {
    const RunResult found = onThisRoad("find", {"--format", "json"});
    ASSERT_EQ(found.exitCode, 0) << found.errors;
    const json tracks = json::parse(found.output).at("groups").at(0).at("tracks");
    EXPECT_EQ(tracks.at(0).at("isdead"), false);
    EXPECT_THAT(tracks.at(0).at("locationurl").get<std::string>(), HasSubstr("/caf%E9/%FF%201.mp3"));
    EXPECT_THAT(onThisRoad("find", {}).output, Not(HasSubstr("missing")));
}

TEST_P(NamesThatAreNotUtf8, AreMarked) {
    const RunResult marked = onThisRoad("mark", {"--rule", "highest-bitrate"});
    EXPECT_THAT(marked.output, HasSubstr("caf\xe9/\xff 1.mp3"));
    EXPECT_THAT(marked.output, HasSubstr("1 marked"));
}

TEST_P(NamesThatAreNotUtf8, GoToTheTrash) {
    const std::vector<std::string> options = {"--rule", "highest-bitrate", "--files"};
    for (const char* const end : {"--dry-run", "--yes"}) {
        EXPECT_TRUE(isThere());
        std::vector<std::string> all = options;
        all.emplace_back(end);
        const RunResult result = onThisRoad("delete", all);
        EXPECT_EQ(result.exitCode, 0) << result.errors << result.output;
    }
    EXPECT_FALSE(isThere());
    EXPECT_EQ(m_folder.read("home/data/Trash/files/\xff 1.mp3"), "music");
}

TEST_P(NamesThatAreNotUtf8, CountAsCopiesThatStay) {
    const RunResult result = onThisRoad("delete", {"--rule", "lowest-bitrate", "--files", "--yes"});
    EXPECT_EQ(result.exitCode, 0) << result.errors << result.output;
    EXPECT_TRUE(isThere());
    EXPECT_FALSE(hasFile(2));
}

INSTANTIATE_TEST_SUITE_P(Roads, NamesThatAreNotUtf8, testing::Values("12.0", "9.2"));

} // namespace
} // namespace songsweep
