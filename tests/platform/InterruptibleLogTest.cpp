// SPDX-License-Identifier: MIT
#include "platform/InterruptibleLog.h"

#include "platform/LogFile.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <sstream>
#include <string>
#include <thread>

namespace songsweep {
namespace {

using test::TemporaryFolder;

TEST(InterruptibleLog, GivesTheReaderOfAPipeEveryLineInFull) {
    std::array<int, 2> ends{};
    ASSERT_EQ(::pipe(ends.data()), 0);
    const std::string line(100'000, 'a'); // more than a pipe holds
    std::thread writer([&] { InterruptibleLog(ends[1], InterruptibleLog::Descriptor::isClosed).line(line); });
    std::string read;
    std::array<char, 4096> buffer{};
    for (ssize_t count = 0; (count = ::read(ends[0], buffer.data(), buffer.size())) > 0;)
        read.append(buffer.data(), static_cast<std::size_t>(count));
    writer.join();
    ::close(ends[0]);
    EXPECT_EQ(read, line + "\n");
}

TEST(InterruptibleLog, WaitsForAReaderNoLongerOnceTheProcessIsToEnd) {
    std::array<int, 2> ends{};
    ASSERT_EQ(::pipe(ends.data()), 0);
    InterruptibleLog log(ends[1], InterruptibleLog::Descriptor::staysOpen);
    std::thread writer([&] {
        for (int line = 0; line < 2000; ++line)
            log.line(std::string(1000, 'a'));
    });
    log.endSoon();
    writer.join();
    for (const int end : ends)
        ::close(end);
}

TEST(InterruptibleLog, WritesNoTornLineFromAnyThread) {
    const TemporaryFolder folder;
    const std::string path = folder.path() + "/log";
    const Result<std::unique_ptr<InterruptibleLog>> log = openLogFile(path);
    ASSERT_TRUE(log);
    const auto writeMany = [&log](char letter) {
        for (int line = 0; line < 200; ++line)
            log.value()->line(std::string(100, letter));
    };
    std::thread other(writeMany, 'a');
    writeMany('b');
    other.join();

    std::istringstream lines(folder.read("log"));
    std::string first;
    std::getline(lines, first);
    int count = 0;
    for (std::string line; std::getline(lines, line); ++count)
        ASSERT_TRUE(line == std::string(100, 'a') || line == std::string(100, 'b')) << line;
    EXPECT_EQ(count, 400);
}

} // namespace
} // namespace songsweep
