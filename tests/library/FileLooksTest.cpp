// SPDX-License-Identifier: MIT
#include "library/FileLooks.h"

#include "platform/Files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <mutex>
#include <set>
#include <stdexcept>
#include <string>
#include <thread>

namespace songsweep {
namespace {

using testing::ElementsAre;

/// Files that are there where their name says so; counts who looks.
class NamedFiles : public Files {
  public:
    bool exists(const char* path) const override {
        const std::lock_guard lock(m_lock);
        looks.emplace_back(path);
        threads.insert(std::this_thread::get_id());
        return std::string(path).ends_with("there");
    }

    mutable std::vector<std::string> looks;
    mutable std::set<std::thread::id> threads;

  private:
    mutable std::mutex m_lock;
};

/// Files that are looked at only once as many are as can be at a time.
class WaitingFiles final : public NamedFiles {
  public:
    bool exists(const char* path) const override {
        std::unique_lock lock(m_lock);
        if (waits && ++m_waiting == FileLooks::mostThreads) m_isOpen = true;
        m_changed.notify_all();
        if (waits) m_changed.wait(lock, [&] { return m_isOpen; });
        lock.unlock();
        return NamedFiles::exists(path);
    }

    std::atomic<bool> waits = false;

  private:
    mutable std::mutex m_lock;
    mutable std::condition_variable m_changed;
    mutable int m_waiting = 0;
    mutable bool m_isOpen = false;
};

class FileLooksTest : public testing::Test {
  protected:
    /// A clock that a pair of looks at moves on by this time for each of 16 looks.
    auto clock(std::chrono::microseconds look) {
        return [this, look] { return m_now += look * 16; };
    }
    static std::vector<std::string> names(int count) {
        std::vector<std::string> names;
        for (int i = 0; i < count; ++i)
            names.push_back(std::to_string(i) + (i % 3 == 0 ? " there" : " gone"));
        return names;
    }
    static std::vector<const char*> pathsOf(const std::vector<std::string>& names) {
        std::vector<const char*> paths;
        for (const std::string& name : names)
            paths.push_back(name.c_str());
        return paths;
    }
    static void expectAnswers(const std::vector<char>& found) {
        for (std::size_t i = 0; i < found.size(); ++i)
            EXPECT_EQ(found[i] != 0, i % 3 == 0) << i;
    }

    FileLooks::Clock::time_point m_now;
};

TEST_F(FileLooksTest, QuickLooksAreMadeOneByOneInOrder) {
    NamedFiles files;
    FileLooks looks(files, clock(FileLooks::slowLook));
    const auto all = names(200);
    expectAnswers(looks.exist(pathsOf(all)));
    EXPECT_EQ(files.looks, all);
    EXPECT_EQ(files.threads.size(), 1U);
}

TEST_F(FileLooksTest, SlowLooksAreMadeManyAtATime) {
    WaitingFiles files;
    FileLooks looks(files, clock(FileLooks::slowLook * 2));
    const auto all = names(500);
    const auto first = names(16);
    expectAnswers(looks.exist(pathsOf(first)));
    files.waits = true;
    expectAnswers(looks.exist(pathsOf(all)));
    EXPECT_EQ(files.looks.size(), 516U);
}

TEST_F(FileLooksTest, EachFileIsLookedAtOnce) {
    NamedFiles files;
    FileLooks looks(files, clock(FileLooks::slowLook * 2));
    auto all = names(300);
    expectAnswers(looks.exist(pathsOf(all)));
    std::ranges::sort(files.looks);
    std::ranges::sort(all);
    EXPECT_EQ(files.looks, all);
}

TEST_F(FileLooksTest, NothingExistsAtAnEmptyPath) {
    NamedFiles files;
    EXPECT_THAT(FileLooks(files).exist({"", "there", ""}), ElementsAre(0, 1, 0));
    EXPECT_THAT(files.looks, ElementsAre("there"));
    EXPECT_THAT(FileLooks(files).exist({}), ElementsAre());
}

TEST_F(FileLooksTest, AnExceptionOfALookComesToWhoAsked) {
    class BrokenFiles final : public Files {
        bool exists(const char* path) const override {
            if (std::string(path) == "250 gone") throw std::runtime_error("broken");
            return false;
        }
    };
    BrokenFiles files;
    FileLooks looks(files, clock(FileLooks::slowLook * 2));
    const auto all = names(300);
    EXPECT_THROW((void)looks.exist(pathsOf(all)), std::runtime_error);
}

} // namespace
} // namespace songsweep
