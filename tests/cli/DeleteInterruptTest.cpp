// SPDX-License-Identifier: MIT
#include "ProgramRun.h"
#include "SampleLibrary.h"
#include "support/EventLoop.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/ioctl.h>
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

TEST_F(InterruptedDeletion, WaitsNoLongerForAReaderOfItsReport) {
    ASSERT_EQ(::mkfifo(path("report").c_str(), 0600), 0);
    start({"--log", path("log"), "--output", path("report")});
    ASSERT_TRUE(runEventLoopUntil([&] { return m_folder.read("log").find("markTyp") != std::string::npos; }));
    sendSignal(m_process, SIGINT);
    const RunResult result = test::resultOf(m_process);
    EXPECT_EQ(result.exitCode, 130);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(m_folder.read("Library.xml"), text());
    EXPECT_TRUE(fs::exists(path("1.mp3")));
}

/// A log that holds one line: the program waits before each until the one before was read to its end.
class SlowLog {
  public:
    explicit SlowLog(const std::string& path) {
        EXPECT_EQ(::mkfifo(path.c_str(), 0600), 0);
        m_pipe = ::open(path.c_str(), O_RDWR | O_CLOEXEC);
        EXPECT_GT(::fcntl(m_pipe, F_SETPIPE_SZ, 1), 0) << "one page, which a line takes";
    }
    ~SlowLog() { ::close(m_pipe); }

    /// Lets the program go as far as to write the line, and not to the next.
    bool readUntil(const std::string& line) {
        std::string read;
        for (;;) {
            pollfd pipe{m_pipe, POLLIN, 0};
            std::array<char, 4096> bytes{};
            int count = 0;
            if (::poll(&pipe, 1, 10'000) != 1 || ::ioctl(m_pipe, FIONREAD, &count) != 0) return false;
            read.append(bytes.data(), ::read(m_pipe, bytes.data(), count - 1));
            if (read.find(line) != std::string::npos) return true;
            if (::read(m_pipe, bytes.data(), 1) != 1) return false;
        }
    }

  private:
    int m_pipe = -1;
};

TEST_F(InterruptedDeletion, DeletesNothingWhenItHasNotBegun) {
    SlowLog log(path("log"));
    prepare(m_process,
            {"delete", "--library", m_library, "--rule", "highest-bitrate", "--yes", "--log", path("log")});
    m_process.start();
    ASSERT_TRUE(log.readUntil("Handler : buildFinish"));
    sendSignal(m_process, SIGINT);
    const RunResult result = test::resultOf(m_process);

    EXPECT_EQ(result.exitCode, 130);
    EXPECT_EQ(m_folder.read("Library.xml"), text());
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
