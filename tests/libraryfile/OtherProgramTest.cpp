// SPDX-License-Identifier: MIT
#include "libraryfile/LibraryDocument.h"
#include "libraryfile/LibraryFixture.h"
#include "libraryfile/SystemCalls.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <cstdio>

namespace songsweep {
namespace {

using test::contentOf;
using test::Folder;
using test::libraryXml;
using test::SystemCalls;
using testing::ElementsAre;
using testing::StartsWith;

const std::string added = "<key>Name</key><string>new</string>";

/// A library that another program, which knows no lock, writes in the very moment of a write.
class OtherProgram : public testing::Test {
  protected:
    OtherProgram() {
        auto opened = LibraryDocument::open(m_path);
        EXPECT_TRUE(opened);
        m_library = std::move(opened).value();
    }

    static std::string text(bool first, const std::string& second) {
        std::vector<test::FixtureTrack> tracks;
        if (first) tracks.push_back({1, "A1", ""});
        tracks.push_back({2, "A2", second});
        return libraryXml(tracks, {});
    }

    void writeInPlace() const { m_folder.write("library.xml", text(true, added)); }
    void writeByRename() const {
        m_folder.write("other.tmp", text(true, added));
        ASSERT_EQ(std::rename(m_folder.pathOf("other.tmp").c_str(), m_path.c_str()), 0);
    }

    void remove() {
        for (const auto track : m_library->tracksWithPersistentId("A1"))
            ASSERT_TRUE(m_library->remove(track));
    }

    /// The edit is kept and the deletion is made in it.
    void expectBoth() {
        EXPECT_EQ(contentOf(m_path), text(false, added));
        m_library->endCleanup();
        EXPECT_THAT(m_folder.names(),
                    ElementsAre(StartsWith("library (before deletions of "), "library.xml"));
    }

    Folder m_folder;
    std::string m_path = m_folder.write("library.xml", text(true, ""));
    std::unique_ptr<LibraryDocument> m_library;
};

TEST_F(OtherProgram, ThatReplacesTheLibraryBeforeTheExchangeKeepsItsEdit) {
    ASSERT_TRUE(m_library->beginCleanup({"a test"}));
    remove();
    SystemCalls::before("renameat2", [this] { writeByRename(); });
    EXPECT_TRUE(m_library->flush());
    SystemCalls::stop();
    expectBoth();
}

TEST_F(OtherProgram, ThatWritesInPlaceBeforeTheExchangeKeepsItsEdit) {
    ASSERT_TRUE(m_library->beginCleanup({"a test"}));
    remove();
    SystemCalls::before("renameat2", [this] { writeInPlace(); });
    EXPECT_TRUE(m_library->flush());
    SystemCalls::stop();
    expectBoth();
}

TEST_F(OtherProgram, ThatWritesDuringTheTrialKeepsItsEditAndIsInTheBackup) {
    SystemCalls::before("renameat2", [this] { writeByRename(); });
    ASSERT_TRUE(m_library->beginCleanup({"a test"}));
    SystemCalls::stop();
    EXPECT_EQ(contentOf(m_library->backup()), text(true, added));
    EXPECT_EQ(contentOf(m_path), text(true, added));
    remove();
    EXPECT_TRUE(m_library->flush());
    expectBoth();
}

TEST_F(OtherProgram, ThatWritesAfterTheBackupIsInTheBackup) {
    ASSERT_TRUE(m_library->beginCleanup({"a test"}));
    const std::string backup = m_library->backup();
    remove();
    writeByRename();
    EXPECT_TRUE(m_library->flush());
    EXPECT_EQ(m_library->backup(), backup);
    EXPECT_EQ(contentOf(backup), text(true, added));
    expectBoth();
}

TEST_F(OtherProgram, ThatWritesWithoutEndIsReportedAndKeepsItsEdits) {
    ASSERT_TRUE(m_library->beginCleanup({"a test"}));
    remove();
    int edits = 0;
    const std::function<void()> edit = [&] {
        writeByRename();
        ++edits;
        SystemCalls::before("renameat2", edit);
    };
    SystemCalls::before("renameat2", edit);
    const auto written = m_library->flush();
    SystemCalls::stop();
    ASSERT_FALSE(written);
    EXPECT_EQ(written.error().code, Error::Code::busy);
    EXPECT_GT(edits, 2);
    EXPECT_EQ(contentOf(m_path), text(true, added));
}

TEST_F(OtherProgram, ThatWritesAfterTheExchangeIsNotMovedWhereTheDiskFails) {
    ASSERT_TRUE(m_library->beginCleanup({"a test"}));
    remove();
    bool isMoved = false;
    SystemCalls::before("renameat2", [&] { // the exchange; what follows is the folder's flush
        SystemCalls::before("fsync", [&] {
            writeByRename();
            SystemCalls::failAt(1, EIO);
            SystemCalls::before("renameat2", [&] { isMoved = true; });
        });
    });
    const auto written = m_library->flush();
    SystemCalls::stop();
    EXPECT_EQ(SystemCalls::failed(), "fsync");
    EXPECT_TRUE(written);
    EXPECT_FALSE(isMoved);
    EXPECT_EQ(contentOf(m_path), text(true, added));
}

TEST_F(OtherProgram, FindsTheOldLibraryWhereTheNewOneIsNotSurelyOnTheDisk) {
    ASSERT_TRUE(m_library->beginCleanup({"a test"}));
    remove();
    SystemCalls::before("renameat2", [] { // the exchange; what follows is the folder's flush
        SystemCalls::before("fsync", [] { SystemCalls::failAt(1, EIO); });
    });
    const auto written = m_library->flush();
    SystemCalls::stop();
    EXPECT_EQ(SystemCalls::failed(), "fsync");
    ASSERT_FALSE(written);
    EXPECT_EQ(written.error().code, Error::Code::inputOutput);
    EXPECT_EQ(contentOf(m_path), text(true, ""));
}

TEST_F(OtherProgram, WithoutAnExchangeTheWindowIsNarrowAndSaidToBeSo) {
    SystemCalls::failAll("renameat2", EINVAL);
    ASSERT_TRUE(m_library->beginCleanup({"a test"}));
    EXPECT_TRUE(m_library->cleanupHeading().isNarrowed);
    remove();
    EXPECT_TRUE(m_library->flush());
    SystemCalls::stop();
    EXPECT_EQ(contentOf(m_path), text(false, ""));
    EXPECT_EQ(contentOf(m_library->backup()), text(true, ""));
}

TEST_F(OtherProgram, WithoutAnExchangeAnEditBeforeTheWindowIsKept) {
    SystemCalls::failAll("renameat2", EINVAL);
    ASSERT_TRUE(m_library->beginCleanup({"a test"}));
    remove();
    writeByRename();
    EXPECT_TRUE(m_library->flush());
    SystemCalls::stop();
    expectBoth();
}

TEST_F(OtherProgram, WithoutAnyRenameNothingBegins) {
    SystemCalls::before("renameat2", [] { // the exchange
        SystemCalls::failAt(1, EINVAL);
        SystemCalls::before("rename", [] { SystemCalls::failAt(1, EPERM); });
    });
    const auto begun = m_library->beginCleanup({"a test"});
    SystemCalls::stop();
    EXPECT_EQ(SystemCalls::failed(), "rename");
    ASSERT_FALSE(begun);
    EXPECT_EQ(begun.error().code, Error::Code::noPermission) << begun.error().message;
    EXPECT_THAT(m_folder.names(), ElementsAre("library.xml"));
}

TEST_F(OtherProgram, AFileSystemThatExchangesIsNotNarrow) {
    ASSERT_TRUE(m_library->beginCleanup({"a test"}));
    EXPECT_FALSE(m_library->cleanupHeading().isNarrowed);
}

} // namespace
} // namespace songsweep
