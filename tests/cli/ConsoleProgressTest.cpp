// SPDX-License-Identifier: MIT
#include "cli/ConsoleProgress.h"

#include "Terminal.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <string>

namespace songsweep::cli {
namespace {

/// Standard error is a terminal of its own.
class ConsoleProgressTest : public testing::Test {
  protected:
    ConsoleProgressTest() {
        const int line = ::open(m_terminal.name().c_str(), O_RDWR | O_NOCTTY);
        ::dup2(line, STDERR_FILENO);
        ::close(line);
    }
    ~ConsoleProgressTest() override {
        ::dup2(m_standardError, STDERR_FILENO);
        ::close(m_standardError);
    }
    /// What was shown since the last question.
    std::string shown() const { return m_terminal.shown(); }

  private:
    test::Terminal m_terminal;
    int m_standardError = ::dup(STDERR_FILENO);
};

TEST_F(ConsoleProgressTest, TellsTheTimeLeftWhereThatIsKnown) {
    ConsoleProgress progress(ConsoleProgress::Line::free);
    progress.beginProgress();
    progress.setProgressText("Comparing sounds");
    EXPECT_EQ(shown(), "\r\033[KComparing sounds 0 %");
    progress.setProgressValue(58);
    EXPECT_EQ(shown(), "\r\033[KComparing sounds 58 %");
    progress.setProgressCounts({.done = 58, .total = 100, .secondsLeft = 90});
    EXPECT_EQ(shown(), "\r\033[KComparing sounds 58 %, about 2 minutes left");
    progress.endProgress();
    EXPECT_EQ(shown(), "\r\033[K");
    progress.beginProgress();
    EXPECT_EQ(shown(), "\r\033[KComparing sounds 0 %") << "another task has its own time";
}

} // namespace
} // namespace songsweep::cli
