// SPDX-License-Identifier: MIT
#include "libraryfile/CleanupLock.h"

#include "libraryfile/LibraryFixture.h"
#include "libraryfile/LockHolder.h"
#include "libraryfile/SystemCalls.h"
#include "libraryfile/TemporaryName.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <thread>

namespace songsweep {
namespace {

using namespace std::chrono_literals;
using test::Folder;
using test::SystemCalls;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::MatchesRegex;

class CleanupLockTest : public testing::Test {
  protected:
    std::string lockPath() const { return m_folder.pathOf(TemporaryName::ofLock("library.xml")); }

    /// A process that holds the lock until it is killed.
    pid_t startHolder() const {
        const pid_t child = ::fork();
        if (child != 0) {
            while (!std::filesystem::exists(lockPath()) || std::filesystem::file_size(lockPath()) == 0)
                std::this_thread::sleep_for(1ms);
            return child;
        }
        const auto lock = CleanupLock::acquire(m_path, {"the command delete"});
        if (!lock) ::_exit(1);
        while (true)
            ::pause();
    }

    static void end(pid_t holder) {
        ::kill(holder, SIGKILL);
        ::waitpid(holder, nullptr, 0);
    }

    Folder m_folder;
    std::string m_path = m_folder.write("library.xml", "x");
};

TEST_F(CleanupLockTest, TellsWhoHoldsItAndLeavesNothing) {
    {
        const auto lock = CleanupLock::acquire(m_path, {"a window"});
        ASSERT_TRUE(lock);
        EXPECT_EQ(lock.value().library(), std::filesystem::canonical(m_path).string());
        const auto second = CleanupLock::acquire(m_path, {"another"});
        ASSERT_FALSE(second);
        EXPECT_EQ(second.error().code, Error::Code::busy);
        EXPECT_THAT(second.error().message,
                    MatchesRegex("another Songsweep \\(a window, process [0-9]+, since [0-9:]+\\) is "
                                 "cleaning up this library"));
    }
    EXPECT_THAT(m_folder.names(), ElementsAre("library.xml"));
    EXPECT_TRUE(CleanupLock::acquire(m_path, {"another"}));
}

TEST_F(CleanupLockTest, IsOneForAllWaysToTheLibrary) {
    ASSERT_EQ(::symlink("library.xml", m_folder.pathOf("link.xml").c_str()), 0);
    const auto lock = CleanupLock::acquire(m_folder.pathOf("link.xml"), {"a test"});
    ASSERT_TRUE(lock);
    EXPECT_FALSE(CleanupLock::acquire(m_path, {"a test"}));
    m_folder.write("other.xml", "y");
    EXPECT_TRUE(CleanupLock::acquire(m_folder.pathOf("other.xml"), {"a test"}));
}

TEST_F(CleanupLockTest, WaitsAsLongAsItMay) {
    auto lock = CleanupLock::acquire(m_path, {"a test"});
    ASSERT_TRUE(lock);
    const std::jthread holder([held = std::move(lock).value()]() mutable {
        std::this_thread::sleep_for(30ms);
        const CleanupLock ended = std::move(held);
    });
    EXPECT_TRUE(CleanupLock::acquire(m_path, {"a test", 10s}));
}

TEST_F(CleanupLockTest, EndsWithItsProcess) {
    const pid_t holder = startHolder();
    const auto lock = CleanupLock::acquire(m_path, {"a test"});
    ASSERT_FALSE(lock);
    EXPECT_THAT(lock.error().message,
                HasSubstr("(the command delete, process " + std::to_string(holder) + ", since "));
    end(holder);
    EXPECT_TRUE(CleanupLock::acquire(m_path, {"a test"}));
    EXPECT_THAT(m_folder.names(), ElementsAre("library.xml"));
}

TEST_F(CleanupLockTest, OfADifferentProcessIsNotRemovedByItsLosers) {
    const pid_t holder = startHolder();
    for (int i = 0; i < 3; ++i)
        EXPECT_FALSE(CleanupLock::acquire(m_path, {"a test"}));
    EXPECT_TRUE(std::filesystem::exists(lockPath()));
    end(holder);
}

TEST_F(CleanupLockTest, HoldsWhereTheFileSystemKnowsNoLocks) {
    SystemCalls::failAll("flock", ENOLCK);
    {
        const auto lock = CleanupLock::acquire(m_path, {"a test"});
        ASSERT_TRUE(lock);
        const auto second = CleanupLock::acquire(m_path, {"a test"});
        ASSERT_FALSE(second);
        EXPECT_EQ(second.error().code, Error::Code::busy);
        EXPECT_THAT(second.error().message, HasSubstr("if that is not so, remove " + lockPath()));
    }
    EXPECT_TRUE(CleanupLock::acquire(m_path, {"a test"}));
    SystemCalls::stop();
    EXPECT_THAT(m_folder.names(), ElementsAre("library.xml"));
}

TEST_F(CleanupLockTest, OfAProcessThatEndedCountsNoMoreWhereTheFileSystemKnowsNoLocks) {
    const pid_t holder = startHolder();
    end(holder);
    SystemCalls::failAll("flock", ENOLCK);
    EXPECT_TRUE(CleanupLock::acquire(m_path, {"a test"}));
    SystemCalls::stop();
    EXPECT_THAT(m_folder.names(), ElementsAre("library.xml"));
}

TEST_F(CleanupLockTest, ALibraryThatIsMissingCannotBeLocked) {
    const auto lock = CleanupLock::acquire(m_folder.pathOf("missing.xml"), {"a test"});
    ASSERT_FALSE(lock);
    EXPECT_EQ(lock.error().code, Error::Code::notFound);
}

TEST(LockHolder, OfAnyOtherTextIsNotKnown) {
    for (const std::string text : {"", "{", "[1]", "{\"process\":\"x\",\"since\":null}"})
        EXPECT_EQ(LockHolder::fromText(text).sentence(), "another Songsweep is cleaning up this library");
}

TEST(LockHolder, OfAnotherMachineIsNamedAndNeverTakenForEnded) {
    LockHolder holder = LockHolder::present("a window");
    holder.host = "elsewhere";
    holder.process = 999999999;
    EXPECT_FALSE(holder.hasEnded());
    EXPECT_THAT(LockHolder::fromText(holder.text()).sentence(), HasSubstr(", on elsewhere, since "));
}

} // namespace
} // namespace songsweep
