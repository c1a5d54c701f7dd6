// SPDX-License-Identifier: MIT
#include "ProgramRun.h"
#include "SampleLibrary.h"
#include "support/EventLoop.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>

namespace songsweep {
namespace {

namespace fs = std::filesystem;
using test::libraryText;
using test::runEventLoopUntil;
using test::RunResult;
using ::testing::HasSubstr;

/// A deletion of one track of two that stands still at each change of the sound, for as long as a file says.
class InterruptedDeletion : public test::ProgramTest {
  protected:
    InterruptedDeletion() {
        const std::string tool =
            m_folder.write("bin/wpctl", "#!/bin/sh\necho $3 >> '" + path("sound") + "'\nwhile [ -e '" +
                                            path("hold") + "'$3 ]; do sleep 0.01; done\n");
        fs::permissions(tool, fs::perms::owner_all);
        m_environment.insert(QStringLiteral("PATH"), QString::fromStdString(path("bin")) +
                                                         QStringLiteral(":") +
                                                         m_environment.value(QStringLiteral("PATH")));
        for (const char* name : {"1.mp3", "2.mp3"})
            m_folder.write(name, "music");
        m_library = m_folder.write("Library.xml", text());
    }

    std::string text() const {
        return libraryText({{.id = 1,
                             .name = "A",
                             .artist = "X",
                             .milliseconds = 1000,
                             .bitRate = 128,
                             .path = path("1.mp3")},
                            {.id = 2,
                             .name = "A",
                             .artist = "X",
                             .milliseconds = 1000,
                             .bitRate = 320,
                             .path = path("2.mp3")}});
    }
    void start(const std::vector<std::string>& options = {}) {
        std::vector<std::string> arguments = {"delete", "--library",       m_library, "--files",
                                              "--rule", "highest-bitrate", "--yes"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        prepare(m_process, arguments);
        m_process.start();
        ASSERT_TRUE(m_process.waitForStarted());
    }
    void hold(const std::string& state) const { m_folder.write("hold" + state, ""); }
    void letGo(const std::string& state) const { fs::remove(path("hold" + state)); }
    void waitForSound(const std::string& states) const {
        ASSERT_TRUE(runEventLoopUntil([&] { return m_folder.read("sound") == states; }));
    }
    /// Waits until the program has heard of Ctrl-C and said so.
    void waitFor(const std::string& word) {
        ASSERT_TRUE(runEventLoopUntil([&] {
            m_said += m_process.readAllStandardError().toStdString();
            return m_said.find(word) != std::string::npos;
        }));
    }
    bool isDeleted() const {
        return !fs::exists(path("1.mp3")) &&
               m_folder.read("Library.xml").find(">0000000000000001<") == std::string::npos;
    }

    std::string m_library;
    QProcess m_process;
    std::string m_said; ///< on standard error
};

TEST_F(InterruptedDeletion, DeletesNothingWhenItHasNotBegun) {
    ASSERT_EQ(::mkfifo(path("report").c_str(), 0600), 0);
    start({"--log", path("log"), "--output", path("report")});
    // The program waits for a reader of its report then.
    ASSERT_TRUE(runEventLoopUntil([&] { return m_folder.read("log").find("markTyp") != std::string::npos; }));
    sendSignal(m_process, SIGINT);
    const int report = ::open(path("report").c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    const RunResult result = test::resultOf(m_process);
    std::array<char, 4096> said{};
    EXPECT_GT(::read(report, said.data(), said.size() - 1), 0);
    ::close(report);

    EXPECT_EQ(result.exitCode, 130);
    EXPECT_THAT(said.data(), HasSubstr("not attempted"));
    EXPECT_THAT(said.data(), HasSubstr("Deleted 0 of 1 tracks, 1 not dealt with as asked"));
    EXPECT_EQ(m_folder.read("Library.xml"), text());
    EXPECT_TRUE(fs::exists(path("1.mp3")));
}

TEST_F(InterruptedDeletion, StopsBeforeTheNextTrack) {
    hold("1");
    start();
    waitForSound("1\n");
    sendSignal(m_process, SIGINT);
    waitFor("stopping");
    letGo("1");
    const RunResult result = test::resultOf(m_process);
    EXPECT_EQ(result.exitCode, 130);
    EXPECT_THAT(result.output, HasSubstr("Deleted 0 of 1 tracks, 1 not dealt with as asked"));
    EXPECT_EQ(m_folder.read("Library.xml"), text());
    EXPECT_TRUE(fs::exists(path("1.mp3")));
    EXPECT_EQ(m_folder.read("sound"), "1\n0\n");
}

TEST_F(InterruptedDeletion, StopsWhenItsTerminalCloses) {
    hold("1");
    start();
    waitForSound("1\n");
    sendSignal(m_process, SIGHUP);
    waitFor("stopping");
    letGo("1");
    EXPECT_EQ(test::resultOf(m_process).exitCode, 130);
    EXPECT_EQ(m_folder.read("Library.xml"), text());
    EXPECT_EQ(m_folder.read("sound"), "1\n0\n");
}

TEST_F(InterruptedDeletion, WritesAndUnmutesWhenInterruptedTwice) {
    hold("0");
    start();
    waitForSound("1\n0\n"); // after the last write and the last file
    EXPECT_TRUE(isDeleted());
    sendSignal(m_process, SIGINT);
    sendSignal(m_process, SIGINT);
    waitFor("without a report");
    letGo("0");
    EXPECT_EQ(test::resultOf(m_process).exitCode, 130);
    EXPECT_TRUE(isDeleted());
    EXPECT_THAT(m_folder.read("sound"), ::testing::EndsWith("0\n"));
}

TEST_F(InterruptedDeletion, EndsAtOnceWhenInterruptedThreeTimes) {
    hold("0");
    start();
    waitForSound("1\n0\n");
    for (int press = 0; press < 3; ++press)
        sendSignal(m_process, SIGINT);
    EXPECT_EQ(test::resultOf(m_process).exitCode, 130);
    EXPECT_EQ(m_folder.read("sound"), "1\n0\n");
}

TEST_F(InterruptedDeletion, IsDoneWhenTheLastTrackWasDealtWith) {
    hold("0");
    start();
    waitForSound("1\n0\n");
    sendSignal(m_process, SIGINT);
    waitFor("stopping");
    letGo("0");
    const RunResult result = test::resultOf(m_process);
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_THAT(result.output, HasSubstr("Deleted 1 of 1 tracks"));
    EXPECT_TRUE(isDeleted());
}

} // namespace
} // namespace songsweep
