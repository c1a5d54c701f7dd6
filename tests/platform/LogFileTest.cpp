// SPDX-License-Identifier: MIT
#include "platform/LogFile.h"

#include "support/RecordingLog.h"
#include "support/TemporaryFolder.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <sstream>
#include <thread>

namespace songsweep {
namespace {

using test::RecordingLog;
using test::TemporaryFolder;
using ::testing::ElementsAre;

/// Gives a descriptor back its file at the end of a test.
class DescriptorGuard {
  public:
    explicit DescriptorGuard(int descriptor)
        : m_descriptor(descriptor)
        , m_saved(::dup(descriptor)) {}
    DescriptorGuard(const DescriptorGuard&) = delete;
    DescriptorGuard& operator=(const DescriptorGuard&) = delete;
    ~DescriptorGuard() {
        ::dup2(m_saved, m_descriptor);
        ::close(m_saved);
    }

  private:
    int m_descriptor;
    int m_saved;
};

TEST(LogFile, ReceivesWhatGoesToStandardError) {
    const TemporaryFolder folder;
    const DescriptorGuard guard(2);
    RecordingLog log;
    ASSERT_TRUE(redirectStandardError(folder.path(), log));
    DescriptorLog().line("one");
    std::fputs("two\n", stderr);
    EXPECT_EQ(folder.read("songsweep-log.txt"), "one\ntwo\n");
}

TEST(LogFile, IsNamedInTheLogBeforeTheRedirection) {
    const TemporaryFolder folder;
    const DescriptorGuard guard(2);
    RecordingLog log;
    redirectStandardError(folder.path(), log);
    EXPECT_THAT(log.lines(), ElementsAre(folder.path() + "/songsweep-log.txt"));
    EXPECT_EQ(folder.read("songsweep-log.txt"), "");
}

TEST(LogFile, HoldsTheLinesOfTheSecondStartOnly) {
    const TemporaryFolder folder;
    const DescriptorGuard guard(2);
    RecordingLog log;
    redirectStandardError(folder.path(), log);
    DescriptorLog().line("first start, with a long line");
    redirectStandardError(folder.path(), log);
    DescriptorLog().line("second");
    EXPECT_EQ(folder.read("songsweep-log.txt"), "second\n");
}

TEST(LogFile, IsNotMadeWithoutADocumentsFolder) {
    RecordingLog log;
    EXPECT_FALSE(redirectStandardError(std::nullopt, log));
    EXPECT_TRUE(log.lines().empty());
}

TEST(LogFile, ThatCannotBeOpenedLeavesTheConsole) {
    const TemporaryFolder folder;
    const std::string missing = folder.path() + "/Documents";
    RecordingLog log;
    EXPECT_FALSE(redirectStandardError(missing, log));
    EXPECT_THAT(log.lines(), ElementsAre(missing + "/songsweep-log.txt", "Opening log failed"));
}

TEST(LogFile, ThatIsAFolderCannotBeOpened) {
    const TemporaryFolder folder;
    folder.write("songsweep-log.txt/inside", "");
    RecordingLog log;
    EXPECT_FALSE(redirectStandardError(folder.path(), log));
    EXPECT_EQ(log.lines().back(), "Opening log failed");
}

TEST(LogFile, CountsAFailedDuplicationAsSuccess) {
    const TemporaryFolder folder;
    RecordingLog log;
    EXPECT_TRUE(redirectStandardError(folder.path(), log, -1));
}

TEST(LogFile, CountsADuplicationThatAnswersZeroAsFailure) {
    const TemporaryFolder folder;
    const DescriptorGuard guard(0);
    RecordingLog log;
    EXPECT_FALSE(redirectStandardError(folder.path(), log, 0));
    EXPECT_THAT(log.lines(), ElementsAre(folder.path() + "/songsweep-log.txt", "Couldn't redirect stderr"));
}

TEST(LogFile, OfTheCommandLineIsEmptiedAndWritten) {
    const TemporaryFolder folder;
    const std::string path = folder.write("log", "old lines");
    Result<std::unique_ptr<Log>> log = openLogFile(path);
    ASSERT_TRUE(log);
    log.value()->line("one");
    log.value()->line("two");
    EXPECT_EQ(folder.read("log"), "one\ntwo\n");
}

TEST(LogFile, OfTheCommandLineSaysWhyItCannotBeOpened) {
    const TemporaryFolder folder;
    const Result<std::unique_ptr<Log>> log = openLogFile(folder.path());
    ASSERT_FALSE(log);
    EXPECT_EQ(log.error().message, "cannot write " + folder.path() + ": Is a directory");
}

TEST(Log, WritesNoTornLineFromAnyThread) {
    const TemporaryFolder folder;
    const std::string path = folder.path() + "/log";
    const Result<std::unique_ptr<Log>> log = openLogFile(path);
    ASSERT_TRUE(log);
    const auto writeMany = [&log](char letter) {
        for (int line = 0; line < 200; ++line)
            log.value()->line(std::string(100, letter));
    };
    std::thread other(writeMany, 'a');
    writeMany('b');
    other.join();

    std::istringstream lines(folder.read("log"));
    int count = 0;
    for (std::string line; std::getline(lines, line); ++count)
        ASSERT_TRUE(line == std::string(100, 'a') || line == std::string(100, 'b')) << line;
    EXPECT_EQ(count, 400);
}

} // namespace
} // namespace songsweep
