// SPDX-License-Identifier: MIT
#include "TwoGroups.h"

#include <gmock/gmock.h>

namespace songsweep::test {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

class Html : public TwoGroups {};

TEST_F(Html, ShowsGroupsMarksAndReasons) {
    const RunResult result = command("mark", {"--rule", "highest-bitrate", "--format", "html"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_THAT(result.output, ::testing::StartsWith("<!DOCTYPE html>"));
    EXPECT_THAT(result.output, HasSubstr("<h1>5 songs in 2 groups, 2 marked</h1>"));
    EXPECT_THAT(result.output, HasSubstr("<td>✓</td><td>A</td><td>X</td>"));
    EXPECT_THAT(result.output, HasSubstr("lower bit rate than the kept copy"));
}

TEST_F(Html, RunsNothingThatANameHolds) {
    std::vector<SampleTrack> all = tracks({1, 2});
    for (SampleTrack& track : all)
        track.name = "<script>&";
    m_library = m_folder.write("Library.xml", libraryText(all));
    const RunResult result = command("find", {"--same", "artist", "--format", "html"});
    EXPECT_THAT(result.output, HasSubstr("<td>&lt;script&gt;&amp;</td>"));
    EXPECT_THAT(result.output, Not(HasSubstr("<script>")));
}

TEST_F(Html, IsNoFormatOfADeletion) {
    EXPECT_NE(command("delete", {"--rule", "highest-bitrate", "--dry-run", "--format", "html"}).exitCode, 0);
}

} // namespace
} // namespace songsweep::test
