// SPDX-License-Identifier: MIT
#include "ProgramRun.h"
#include "SampleLibrary.h"
#include "Terminal.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <regex>

namespace songsweep {
namespace {

using test::libraryText;
using test::RunResult;
using test::SampleTrack;
using ::testing::HasSubstr;

/// A search that stands still while nobody reads its log: the log is a pipe, and every missing file fills it.
class Interrupted : public test::ProgramTest {
  protected:
    void SetUp() override {
        std::vector<SampleTrack> tracks;
        for (int id = 1; id <= 3000; ++id)
            tracks.push_back({.id = id,
                              .name = "Song",
                              .artist = "Artist",
                              .path = "/nonexistent/" + std::string(100, 'a') + std::to_string(id)});
        const std::string library = m_folder.write("Library.xml", libraryText(tracks));
        ASSERT_EQ(::mkfifo(path("log").c_str(), 0600), 0);
        m_log = ::open(path("log").c_str(), O_RDWR | O_CLOEXEC);
        prepare(m_process, {"find", "--library", library, "--log", path("log")});
        m_process.start();
        ASSERT_TRUE(m_process.waitForStarted());
        waitUntilProcessing();
    }
    void TearDown() override { ::close(m_log); }

    /// Reads until the records are looked at one by one, each with its line.
    void waitUntilProcessing() {
        while (m_read.find("/nonexistent/") == std::string::npos && readSome(10'000)) {
        }
        ASSERT_THAT(m_read, HasSubstr("Begin Processing List"));
    }
    bool readSome(int milliseconds) {
        pollfd pipe{m_log, POLLIN, 0};
        if (::poll(&pipe, 1, milliseconds) != 1) return false;
        std::array<char, 512> buffer{};
        const ssize_t count = ::read(m_log, buffer.data(), buffer.size());
        if (count > 0) m_read.append(buffer.data(), static_cast<std::size_t>(count));
        return count > 0;
    }
    void readToTheEnd() {
        while (m_process.state() != QProcess::NotRunning) {
            readSome(10);
            m_process.waitForFinished(0);
        }
    }

    QProcess m_process;
    std::string m_read;

  private:
    int m_log = -1;
};

TEST_F(Interrupted, SearchEndsCleanly) {
    sendSignal(m_process, SIGINT);
    readToTheEnd();
    const RunResult result = test::resultOf(m_process);
    EXPECT_EQ(result.exitCode, 130);
    EXPECT_EQ(result.output, "");
    EXPECT_THAT(m_read, HasSubstr("End XML Finally")) << "the worker came to its end";
}

TEST_F(Interrupted, SearchEndsAtOnceWhenItIsInterruptedTwice) {
    sendSignal(m_process, SIGINT);
    sendSignal(m_process, SIGINT);
    const RunResult result = test::resultOf(m_process);
    EXPECT_EQ(result.exitCode, 130);
    EXPECT_EQ(result.output, "");
}

/// A pipe that nobody empties: the log goes there, or the result.
class FullPipe : public test::ProgramTest {
  protected:
    void SetUp() override {
        ASSERT_EQ(::mkfifo(path("pipe").c_str(), 0600), 0);
        m_pipe = ::open(path("pipe").c_str(), O_RDWR | O_CLOEXEC);
    }
    void TearDown() override { ::close(m_pipe); }

    std::string library() const {
        std::vector<SampleTrack> tracks;
        for (int id = 1; id <= 3000; ++id)
            tracks.push_back({.id = id,
                              .name = "Song",
                              .artist = "Artist",
                              .milliseconds = 1000,
                              .path = "/nonexistent/" + std::string(100, 'a') + std::to_string(id)});
        return m_folder.write("Library.xml", libraryText(tracks));
    }
    /// Waits until no more fits into the pipe, or the program ends.
    void waitUntilFull(QProcess& process) const {
        pollfd pipe{m_pipe, POLLOUT, 0};
        while (::poll(&pipe, 1, 10) == 1 && process.state() != QProcess::NotRunning)
            process.waitForFinished(10);
    }
    void expectThatASignalEnds(const std::vector<std::string>& arguments) {
        QProcess process;
        prepare(process, arguments);
        process.start();
        ASSERT_TRUE(process.waitForStarted());
        waitUntilFull(process);
        sendSignal(process, SIGINT);
        EXPECT_EQ(test::resultOf(process).exitCode, 130);
    }

  private:
    int m_pipe = -1;
};

TEST_F(FullPipe, OfTheResultHindersNoInterrupt) {
    expectThatASignalEnds({"find", "--library", library(), "--format", "csv", "--output", path("pipe")});
}

TEST_F(FullPipe, OfADryRunHindersNoInterrupt) {
    expectThatASignalEnds({"delete", "--library", library(), "--rule", "largest", "--except-one", "--dry-run",
                           "--output", path("pipe")});
}

TEST_F(FullPipe, OfTheLogHindersNoInterrupt) {
    expectThatASignalEnds({"find", "--library", library(), "--log", path("pipe")});
}

class Console : public test::ProgramTest {
  protected:
    static std::vector<int> percentagesIn(const std::string& shown) {
        std::vector<int> percentages;
        const std::regex percentage(" ([0-9]+) %");
        for (std::sregex_iterator found(shown.begin(), shown.end(), percentage);
             found != std::sregex_iterator(); ++found)
            percentages.push_back(std::stoi((*found)[1]));
        return percentages;
    }
    std::string manyDuplicates() const {
        std::vector<SampleTrack> tracks;
        for (int id = 1; id <= 3000; ++id)
            tracks.push_back({.id = id, .name = "Song", .artist = "Artist", .milliseconds = 1000});
        return m_folder.write("Library.xml", libraryText(tracks));
    }
};

TEST_F(Console, ThatClosesThePipeEndsTheProgramQuietly) {
    const RunResult result = runInShell("{ \"$0\" \"$@\"; echo \"exit $?\" >&2; } | head -n 1",
                                        {"find", "--library", manyDuplicates(), "--format", "csv"});
    EXPECT_THAT(result.output, ::testing::StartsWith("checkbox,"));
    EXPECT_EQ(result.errors, "exit 0\n");
}

TEST_F(Console, ShowsPhaseAndPercentageOnATerminal) {
    const test::Terminal terminal;
    QProcess process;
    prepare(process, {"find", "--library", manyDuplicates()});
    process.setStandardErrorFile(QString::fromStdString(terminal.name()));
    process.start();
    const RunResult result = test::resultOf(process);
    EXPECT_EQ(result.exitCode, 0);
    const std::vector<int> percents = percentagesIn(terminal.shown());
    EXPECT_FALSE(percents.empty());
    EXPECT_TRUE(std::is_sorted(percents.begin(), percents.end())) << ::testing::PrintToString(percents);
    EXPECT_LE(percents.back(), 100);
    EXPECT_THAT(result.output, HasSubstr("3000 songs in 1 group"));
}

TEST_F(Console, ShowsLogLinesWithoutAProgressBetweenThem) {
    const test::Terminal terminal;
    QProcess process;
    prepare(process, {"find", "--library", manyDuplicates(), "--verbose"});
    process.setStandardErrorFile(QString::fromStdString(terminal.name()));
    process.start();
    EXPECT_EQ(test::resultOf(process).exitCode, 0);
    const std::string shown = terminal.shown();
    EXPECT_THAT(shown, HasSubstr("\r\nXML Parsing\r\n"));
    EXPECT_THAT(shown, ::testing::Not(HasSubstr("%")));
}

} // namespace
} // namespace songsweep
