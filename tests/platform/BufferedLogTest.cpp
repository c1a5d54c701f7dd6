// SPDX-License-Identifier: MIT
#include "platform/BufferedLog.h"

#include "platform/LogFile.h"
#include "support/EventLoop.h"
#include "support/RecordingLog.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>

namespace songsweep {
namespace {

using test::RecordingLog;
using test::TemporaryFolder;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::uint64_t plenty = 1'000'000;

TEST(BufferedLogTest, HandsLinesOnAtOnceUntilItBegins) {
    RecordingLog target;
    BufferedLog log(target, plenty);
    log.line("one");
    EXPECT_THAT(target.lines(), ElementsAre("one"));
}

TEST(BufferedLogTest, HandsLinesOnTogetherAndInTheEnd) {
    RecordingLog target;
    std::optional<BufferedLog> log(std::in_place, target, plenty);
    log->begin();
    log->line("one");
    log->line("two");
    log.reset();
    EXPECT_THAT(target.lines(), ElementsAre("one\ntwo"));
}

TEST(BufferedLogTest, HandsAFullPieceOnAtOnce) {
    RecordingLog target;
    BufferedLog log(target, plenty);
    log.begin();
    log.line(std::string(70'000, 'x'));
    EXPECT_EQ(target.lines().size(), 1U);
}

TEST(BufferedLogTest, HandsALastLineOnThoughNoOtherFollows) {
    RecordingLog target;
    BufferedLog log(target, plenty);
    log.begin();
    log.line("one");
    EXPECT_TRUE(test::runEventLoopUntil([&] { return !target.lines().empty(); }));
}

TEST(BufferedLogTest, EndsAtTheLimitAndSaysSo) {
    RecordingLog target;
    std::optional<BufferedLog> log(std::in_place, target, 2'000'000);
    log->begin();
    const std::string line(999'999, 'x');
    for (int count = 0; count < 4; ++count)
        log->line(line);
    log.reset();
    EXPECT_THAT(target.lines(), ElementsAre(line, line, "The log ends here, at 2 MB."));
}

TEST(LogFolder, IsTheDocumentsFolderWhereThereIsOneElseOneOfTheDesktopsStates) {
    const TemporaryFolder folder;
    folder.write("Documents/letter.txt", "");
    const std::string states = folder.path() + "/state";
    EXPECT_EQ(logFolder(folder.path() + "/Documents", states), folder.path() + "/Documents");
    EXPECT_EQ(logFolder(folder.path() + "/Dokumente", states), states + "/songsweep");
    EXPECT_EQ(logFolder(std::nullopt, states), states + "/songsweep");
    folder.write("state/songsweep/songsweep-log.txt", "it was made");
    EXPECT_EQ(logFolder(folder.path() + "/Dokumente", ""), std::nullopt);
}

} // namespace
} // namespace songsweep
