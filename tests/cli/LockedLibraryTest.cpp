// SPDX-License-Identifier: MIT
// A library that another Songsweep is cleaning up.
#include "ProgramRun.h"
#include "SampleLibrary.h"
#include "libraryfile/CleanupLock.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <optional>

namespace songsweep {
namespace {

using test::libraryText;
using test::RunResult;
using test::SampleTrack;
using ::testing::AllOf;
using ::testing::HasSubstr;

class LockedLibrary : public test::ProgramTest {
  protected:
    LockedLibrary() {
        for (const char* name : {"1.mp3", "2.mp3"})
            m_folder.write(name, "music");
        m_library = m_folder.write("Library.xml", libraryText({track(1, 128), track(2, 320)}));
        auto lock = CleanupLock::acquire(m_library, {"the window", {}});
        EXPECT_TRUE(lock);
        if (lock) m_lock = std::move(lock).value();
    }

    SampleTrack track(int id, int bitRate) const {
        return {.id = id,
                .name = "A",
                .artist = "X",
                .milliseconds = 1000,
                .bitRate = bitRate,
                .path = path(std::to_string(id) + ".mp3")};
    }
    RunResult command(const std::string& name, std::vector<std::string> options) {
        options.insert(options.begin(), {name, "--library", m_library});
        return run(options);
    }

    std::string m_library;
    std::optional<CleanupLock> m_lock;
};

TEST_F(LockedLibrary, IsNotCleanedUpAndSaysWhoIsAtIt) {
    const std::string before = m_folder.read("Library.xml");
    const RunResult result = command("delete", {"--rule", "highest-bitrate", "--yes"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.errors,
                AllOf(HasSubstr("another Songsweep (the window, process " + std::to_string(::getpid())),
                      HasSubstr("is cleaning up this library")));
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(m_folder.read("Library.xml"), before);
}

TEST_F(LockedLibrary, IsStillSearchedAndMarked) {
    EXPECT_EQ(command("find", {}).exitCode, 0);
    EXPECT_EQ(command("mark", {"--rule", "highest-bitrate"}).exitCode, 0);
    EXPECT_EQ(command("delete", {"--rule", "highest-bitrate", "--dry-run"}).exitCode, 0);
}

TEST_F(LockedLibrary, IsCleanedUpOnceTheOtherHasEnded) {
    m_lock.reset();
    const RunResult result = command("delete", {"--rule", "highest-bitrate", "--yes"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
}

} // namespace
} // namespace songsweep
