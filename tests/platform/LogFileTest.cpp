// SPDX-License-Identifier: MIT
#include "platform/LogFile.h"

#include "support/RecordingLog.h"
#include "support/TemporaryFolder.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

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
    const std::string path = folder.write("log", "Songsweep log\nold lines\n");
    Result<std::unique_ptr<InterruptibleLog>> log = openLogFile(path);
    ASSERT_TRUE(log);
    log.value()->line("one");
    log.value()->line("two");
    EXPECT_EQ(folder.read("log"), "Songsweep log\none\ntwo\n");
}

TEST(LogFile, OfTheCommandLineReplacesOneOfAnEarlierRun) {
    const TemporaryFolder folder;
    const std::string path = folder.path() + "/log";
    openLogFile(path).value()->line("first run, with a long line");
    openLogFile(path).value()->line("second");
    EXPECT_EQ(folder.read("log"), "Songsweep log\nsecond\n");
}

TEST(LogFile, OfTheCommandLineIsNoFileOfSomebodyElse) {
    const TemporaryFolder folder;
    for (const std::string& text : {std::string("my thesis"), std::string("Songsweep log, or what"),
                                    std::string("Songsweep log"), std::string(1, '\0')}) {
        const Result<std::unique_ptr<InterruptibleLog>> log = openLogFile(folder.write("file", text));
        ASSERT_FALSE(log) << text;
        EXPECT_EQ(log.error().message, "cannot write " + folder.path() + "/file: it is no log of Songsweep");
        EXPECT_EQ(folder.read("file"), text);
    }
    EXPECT_TRUE(openLogFile(folder.write("file", ""))) << "nobody needs an empty file";
}

TEST(LogFile, OfTheCommandLineGoesOnWhereAnOpenDescriptorLeads) {
    const test::TemporaryFolder folder;
    const std::string path = folder.write("notes", "what stands\n");
    const int file = ::open(path.c_str(), O_WRONLY | O_APPEND | O_CLOEXEC);
    openLogFile("/dev/fd/" + std::to_string(file)).value()->line("what comes");
    EXPECT_EQ(::write(file, "\n", 1), 1) << "still open";
    ::close(file);
    EXPECT_EQ(folder.read("notes"), "what stands\nwhat comes\n\n");
}

TEST(LogFile, OfTheCommandLineWaitsForNoReaderOfAPipe) {
    const TemporaryFolder folder;
    const std::string path = folder.path() + "/pipe";
    ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
    const Result<std::unique_ptr<InterruptibleLog>> log = openLogFile(path);
    ASSERT_FALSE(log);
    EXPECT_EQ(log.error().message, "cannot write " + path + ": nobody reads this pipe");
}

TEST(LogFile, OfTheCommandLineSaysWhyItCannotBeOpened) {
    const TemporaryFolder folder;
    const Result<std::unique_ptr<InterruptibleLog>> log = openLogFile(folder.path());
    ASSERT_FALSE(log);
    EXPECT_EQ(log.error().message, "cannot write " + folder.path() + ": Is a directory");
}

} // namespace
} // namespace songsweep
