// SPDX-License-Identifier: MIT
// Programs that start this one close its descriptors, or stop reading them.
#include "ProgramRun.h"
#include "SampleLibrary.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <array>

namespace songsweep {
namespace {

using test::libraryText;
using test::RunResult;

class StandardDescriptors : public test::ProgramTest {
  protected:
    std::string library() const {
        return m_folder.write("Library.xml",
                              libraryText({{.id = 1, .name = "A", .artist = "B", .milliseconds = 1000},
                                           {.id = 2, .name = "A", .artist = "B", .milliseconds = 1000}}));
    }
};

TEST_F(StandardDescriptors, MayBeClosed) {
    const std::vector<std::string> remove = {"delete",      "--library",    library(), "--rule",
                                             "most-played", "--except-one", "--yes"};
    EXPECT_EQ(runInShell("\"$0\" \"$@\" <&- >&- 2>&-", remove).exitCode, 0);
    EXPECT_EQ(m_folder.read("Library.xml").find("<integer>2</integer>"), std::string::npos);
    EXPECT_EQ(runInShell("\"$0\" \"$@\" 2>&-", {"find", "--library", library(), "--verbose"}).exitCode, 0);
}

TEST_F(StandardDescriptors, MayBeAPipeThatNobodyReads) {
    m_environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    std::filesystem::create_directories(path("home/Documents"));
    m_beforeStart = [] {
        std::array<int, 2> ends{};
        if (::pipe(ends.data()) != 0) return;
        ::dup2(ends[1], STDERR_FILENO);
        ::close(ends[0]);
        ::close(ends[1]);
    };
    QProcess process;
    prepare(process, {"--library", library()});
    process.start();
    ASSERT_TRUE(process.waitForStarted());
    const std::string log = path("home/Documents/songsweep-log.txt");
    std::error_code error;
    while (process.state() != QProcess::NotRunning &&
           (!std::filesystem::exists(log, error) || std::filesystem::file_size(log, error) == 0))
        process.waitForFinished(10);
    process.terminate();
    EXPECT_EQ(test::resultOf(process).exitCode, 0);
}

} // namespace
} // namespace songsweep
