// SPDX-License-Identifier: MIT
#include "libraryfile/LibraryRestore.h"

#include "libraryfile/LibraryDocument.h"
#include "libraryfile/LibraryFixture.h"
#include "libraryfile/SystemCalls.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>

namespace songsweep {
namespace {

using test::contentOf;
using test::Folder;
using test::persistentIdOf;
using test::SystemCalls;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

constexpr int trackCount = 30;

/// A library out of which three tracks were deleted.
class LibraryRestoreTest : public testing::Test {
  protected:
    LibraryRestoreTest() {
        auto library = LibraryDocument::open(m_path);
        EXPECT_TRUE(library && library.value()->beginCleanup({"a test"}));
        for (const int n : {0, 7, 29})
            for (const auto track : library.value()->tracksWithPersistentId(persistentIdOf(n)))
                EXPECT_TRUE(library.value()->remove(track));
        EXPECT_TRUE(library.value()->flush());
        m_wanted.backup = library.value()->backup();
        for (const int n : {0, 7, 29}) {
            RecordedTrack track;
            track.persistentId = persistentIdOf(n);
            track.trackId = 1000 + 2 * n;
            m_wanted.tracks.push_back(track);
        }
        m_deleted = contentOf(m_path);
    }

    /// Restores; the error, "" for success.
    static std::string restore(const std::string& path, const LibraryRestore::Wanted& wanted) {
        auto begun = LibraryRestore::begin(path, wanted, {"a test"});
        if (!begun) return begun.error().message;
        const auto written = begun.value().write();
        return written ? "" : written.error().message;
    }

    void expectNoRubbish() const {
        for (const std::string& name : m_folder.names())
            EXPECT_FALSE(name.starts_with(".")) << name;
    }

    Folder m_folder;
    std::string m_whole = test::manyTracks(trackCount);
    std::string m_path = m_folder.write("library.xml", m_whole);
    std::string m_deleted;
    LibraryRestore::Wanted m_wanted;
};

TEST_F(LibraryRestoreTest, BringsTheLibraryBackWithABackupOfItsOwn) {
    auto begun = LibraryRestore::begin(m_path, m_wanted, {"a test"});
    ASSERT_TRUE(begun) << begun.error().message;
    EXPECT_EQ(begun.value().expected().tracks, 3U);
    EXPECT_EQ(contentOf(m_path), m_deleted);
    EXPECT_THAT(begun.value().backup(), HasSubstr("/library (before restoring of "));
    EXPECT_EQ(contentOf(begun.value().backup()), m_deleted);
    ASSERT_TRUE(begun.value().write());
    EXPECT_EQ(contentOf(m_path), m_whole);
    EXPECT_EQ(contentOf(m_wanted.backup), m_whole);
}

TEST_F(LibraryRestoreTest, ForeseesWithoutChangingAnything) {
    const auto names = m_folder.names();
    const auto foreseen = LibraryRestore::foresee(m_path, m_wanted);
    ASSERT_TRUE(foreseen);
    EXPECT_EQ(foreseen.value().tracks, 3U);
    EXPECT_EQ(m_folder.names(), names);
    EXPECT_EQ(contentOf(m_path), m_deleted);
}

TEST_F(LibraryRestoreTest, TwiceMakesNoBackupAndChangesNothing) {
    ASSERT_EQ(restore(m_path, m_wanted), "");
    const auto names = m_folder.names();
    auto again = LibraryRestore::begin(m_path, m_wanted, {"a test"});
    ASSERT_TRUE(again);
    EXPECT_EQ(again.value().backup(), "");
    ASSERT_TRUE(again.value().write());
    EXPECT_THAT(again.value().expected().fates, testing::Each(Restoration::Fate::isThere));
    EXPECT_EQ(contentOf(m_path), m_whole);
}

TEST_F(LibraryRestoreTest, MakesABackupForFilesAlone) {
    ASSERT_EQ(restore(m_path, m_wanted), "");
    m_wanted.ownBackup = LibraryRestore::OwnBackup::always;
    auto again = LibraryRestore::begin(m_path, m_wanted, {"a test"});
    ASSERT_TRUE(again) << again.error().message;
    EXPECT_EQ(contentOf(again.value().backup()), m_whole);
    ASSERT_TRUE(again.value().write());
    EXPECT_EQ(contentOf(m_path), m_whole);
}

TEST_F(LibraryRestoreTest, IsLocked) {
    const auto lock = CleanupLock::acquire(m_path, {"a window"});
    ASSERT_TRUE(lock);
    const auto begun = LibraryRestore::begin(m_path, m_wanted, {"a test"});
    ASSERT_FALSE(begun);
    EXPECT_EQ(begun.error().code, Error::Code::busy);
    EXPECT_THAT(begun.error().message, HasSubstr("(a window, process "));
}

TEST_F(LibraryRestoreTest, KeepsWhatAnotherProgramWritesInItsMoment) {
    auto begun = LibraryRestore::begin(m_path, m_wanted, {"a test"});
    ASSERT_TRUE(begun);
    std::string edited = m_deleted;
    edited.replace(edited.find("Artist 1<"), 8, "Somebody");
    std::string expected = m_whole;
    expected.replace(expected.find("Artist 1<"), 8, "Somebody");
    SystemCalls::before("renameat2", [&] { m_folder.write("library.xml", edited); });
    ASSERT_TRUE(begun.value().write());
    SystemCalls::stop();
    EXPECT_EQ(contentOf(m_path), expected);
}

TEST_F(LibraryRestoreTest, ABackupThatIsGoneIsAnError) {
    std::filesystem::remove(m_wanted.backup);
    EXPECT_THAT(restore(m_path, m_wanted), StartsWith("cannot open "));
    EXPECT_EQ(contentOf(m_path), m_deleted);
    EXPECT_THAT(m_folder.names(), ElementsAre("library.xml"));
}

TEST_F(LibraryRestoreTest, WritesNothingThatAParserRefuses) {
    const std::string entity = "<key>Name</key><string>Song 7 &#38; more</string>";
    std::string broken = m_whole;
    broken.replace(broken.find(entity), entity.size(), "<key>Name</key><string>Song 7 & more</string>");
    m_wanted.backup = m_folder.write("broken.xml", broken);
    EXPECT_THAT(restore(m_path, m_wanted), StartsWith("line "));
    EXPECT_EQ(contentOf(m_path), m_deleted);
    expectNoRubbish();
}

TEST_F(LibraryRestoreTest, ThatFailsAtAnyCallLeavesTheLibraryOrBringsItBack) {
    int failures = 0;
    for (const int errorNumber : {EIO, ENOSPC}) {
        for (int call = 1;; ++call) {
            m_folder.write("library.xml", m_deleted);
            SystemCalls::failAt(call, errorNumber);
            const std::string error = restore(m_path, m_wanted);
            SystemCalls::stop();
            if (SystemCalls::failed().empty()) break;
            ++failures;
            SCOPED_TRACE(SystemCalls::failed() + ", call " + std::to_string(call));
            EXPECT_TRUE(contentOf(m_path) == (error.empty() ? m_whole : m_deleted)) << error;
            expectNoRubbish();
        }
    }
    EXPECT_GT(failures, 40);
}

TEST_F(LibraryRestoreTest, ThatIsKilledAtAnyCallLeavesTheLibraryOrBringsItBack) {
    int kills = 0;
    for (int call = 1;; ++call) {
        m_folder.write("library.xml", m_deleted);
        const pid_t child = ::fork();
        if (child == 0) {
            SystemCalls::killAt(call);
            ::_exit(restore(m_path, m_wanted).empty() ? 0 : 1);
        }
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        if (!WIFSIGNALED(status)) {
            EXPECT_EQ(status, 0);
            break;
        }
        ++kills;
        const std::string left = contentOf(m_path);
        EXPECT_TRUE(left == m_whole || left == m_deleted) << "call " << call;
        EXPECT_EQ(restore(m_path, m_wanted), "");
        EXPECT_EQ(contentOf(m_path), m_whole);
        expectNoRubbish();
    }
    EXPECT_GT(kills, 20);
}

} // namespace
} // namespace songsweep
