// SPDX-License-Identifier: MIT
#include "libraryfile/LibraryDocument.h"
#include "libraryfile/LibraryFixture.h"
#include "libraryfile/SteppedProcess.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <set>

namespace songsweep {
namespace {

using test::contentOf;
using test::SteppedProcess;

constexpr int trackCount = 12;
constexpr int deletedCount = 2;

/// Deletes the first tracks and writes the library after each of them, for the steps of another process.
int deleteTracks(const std::string& path) {
    auto library = LibraryDocument::open(path);
    if (!library) return 1;
    SteppedProcess::stepFromHere();
    for (int n = 0; n < deletedCount; ++n) {
        for (const auto track : library.value()->tracksWithPersistentId(test::persistentIdOf(n)))
            if (!library.value()->remove(track)) return 2;
        if (!library.value()->flush()) return 3;
    }
    return 0;
}

class LibraryKill : public testing::Test {
  protected:
    void makeAnew() const {
        for (const std::string& name : m_folder.names())
            std::filesystem::remove(m_folder.pathOf(name));
        m_folder.write("library.xml", m_text);
    }

    /// Kills a deletion after so many system calls; false if it had come to its end by then.
    bool killAfter(int calls) const {
        makeAnew();
        SteppedProcess process([this] { return deleteTracks(m_path); });
        for (int call = 0; call < calls; ++call) {
            if (process.step()) continue;
            EXPECT_TRUE(process.succeeded());
            return false;
        }
        return true;
    }

    /// The library lacks the first tracks and nothing else; their number.
    int deletedTracks() const {
        const auto library = LibraryDocument::open(m_path);
        EXPECT_TRUE(library) << library.error().message;
        if (!library) return -1;
        const int deleted = trackCount - library.value()->trackCount();
        std::set<int> ids;
        for (int n = 0; n < deleted; ++n)
            ids.insert(1000 + 2 * n);
        EXPECT_TRUE(contentOf(m_path) == test::withoutTracks(m_text, ids));
        return deleted;
    }

    /// What is left can be deleted from, and nothing of the killed program stays.
    void checkThatItCanBeWritten() const {
        auto library = LibraryDocument::open(m_path);
        ASSERT_TRUE(library);
        ASSERT_TRUE(library.value()->remove(0));
        ASSERT_TRUE(library.value()->flush());
        for (const std::string& name : m_folder.names())
            EXPECT_FALSE(name.ends_with(".tmp")) << name;
    }

    const test::Folder m_folder;
    const std::string m_path = m_folder.pathOf("library.xml");
    const std::string m_text = test::manyTracks(trackCount);
};

TEST_F(LibraryKill, AProgramKilledAtAnySystemCallLeavesTheOldFileOrTheNew) {
    std::set<int> seen;
    for (int calls = 0; killAfter(calls); ++calls) {
        SCOPED_TRACE("killed after " + std::to_string(calls) + " system calls");
        seen.insert(deletedTracks());
        ASSERT_NO_FATAL_FAILURE(checkThatItCanBeWritten());
        ASSERT_FALSE(HasFailure());
    }
    // Kills fell before, between and after the two writes, or the test would show nothing.
    EXPECT_THAT(seen, testing::ElementsAre(0, 1, 2));
    EXPECT_EQ(deletedTracks(), deletedCount);
}

} // namespace
} // namespace songsweep
