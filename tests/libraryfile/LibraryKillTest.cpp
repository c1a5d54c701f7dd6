// SPDX-License-Identifier: MIT
#include "libraryfile/LibraryDocument.h"
#include "libraryfile/LibraryFixture.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <csignal>
#include <random>
#include <set>
#include <thread>

namespace songsweep {
namespace {

using test::contentOf;
using test::Folder;
using test::manyTracks;
using test::persistentIdOf;

constexpr int killsATest = 50;
constexpr int trackCount = 120;

/// Deletes track after track and writes each time, telling every write through the pipe, until it is killed
/// or done. Runs in a child process.
[[noreturn]] void deleteAll(const std::string& path, int pipe) {
    auto library = LibraryDocument::open(path);
    if (!library) ::_exit(1);
    for (int n = 0; n < trackCount; ++n) {
        for (const auto track : library.value()->tracksWithPersistentId(persistentIdOf(n)))
            if (!library.value()->remove(track)) ::_exit(2);
        if (::write(pipe, "b", 1) != 1 || !library.value()->flush()) ::_exit(3);
    }
    ::_exit(0);
}

/// How long the child's first write takes here and now.
std::chrono::microseconds timeOfAWrite(const std::string& path) {
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0) return {};
    const pid_t child = ::fork();
    if (child == 0) deleteAll(path, ends[1]);
    ::close(ends[1]);
    char begun = 0;
    EXPECT_EQ(::read(ends[0], &begun, 1), 1);
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(::read(ends[0], &begun, 1), 1);
    const auto time = std::chrono::steady_clock::now() - start;
    ::close(ends[0]);
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    return std::chrono::duration_cast<std::chrono::microseconds>(time);
}

/// Starts the child, kills it a random moment into one of its first writes.
void killDuringAWrite(const std::string& path, std::mt19937& random, std::chrono::microseconds write) {
    std::array<int, 2> ends{};
    ASSERT_EQ(::pipe(ends.data()), 0);
    const pid_t child = ::fork();
    if (child == 0) deleteAll(path, ends[1]);
    ::close(ends[1]);
    char begun = 0;
    EXPECT_EQ(::read(ends[0], &begun, 1), 1);
    std::this_thread::sleep_for(std::chrono::microseconds(random() % (2 * write.count() + 1)));
    ::kill(child, SIGKILL);
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status) || WEXITSTATUS(status) == 0) << WEXITSTATUS(status);
    ::close(ends[0]);
}

/// A test for every seed, so that each of them is short: 200 kills altogether.
class LibraryKill : public testing::TestWithParam<unsigned> {};

TEST_P(LibraryKill, AProgramKilledAtAnyMomentLeavesTheOldFileOrTheNew) {
    const Folder folder;
    const std::string path = folder.pathOf("library.xml");
    const std::string text = manyTracks(trackCount);
    std::mt19937 random(GetParam());
    int written = 0;
    folder.write("library.xml", text);
    const std::chrono::microseconds write = timeOfAWrite(path);
    for (int i = 0; i < killsATest; ++i) {
        for (const std::string& name : folder.names())
            std::filesystem::remove(folder.pathOf(name));
        folder.write("library.xml", text);
        ASSERT_NO_FATAL_FAILURE(killDuringAWrite(path, random, write));
        auto library = LibraryDocument::open(path);
        ASSERT_TRUE(library) << library.error().message;
        const int deleted = trackCount - library.value()->trackCount();
        std::set<int> ids;
        for (int n = 0; n < deleted; ++n)
            ids.insert(1000 + 2 * n);
        ASSERT_TRUE(contentOf(path) == test::withoutTracks(text, ids)) << "after " << deleted;
        written += deleted > 0 ? 1 : 0;
        if (deleted < trackCount) { // What is left can be deleted from, whatever the killed program left.
            ASSERT_TRUE(library.value()->remove(0));
            ASSERT_TRUE(library.value()->flush());
        }
        for (const std::string& name : folder.names())
            EXPECT_FALSE(name.ends_with(".tmp"));
    }
    // The kills fell before and after the renames, or the test would show nothing.
    EXPECT_GT(written, 0);
}

INSTANTIATE_TEST_SUITE_P(Seeds, LibraryKill, testing::Values(1U, 2U, 3U, 4U));

} // namespace
} // namespace songsweep
