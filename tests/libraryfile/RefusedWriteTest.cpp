// SPDX-License-Identifier: MIT
#include "libraryfile/CleanupLock.h"
#include "libraryfile/LibraryWriteFixture.h"
#include "libraryfile/SmallFileSystem.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

namespace songsweep {
namespace {

using test::libraryXml;
using test::persistentIdOf;
using test::withoutTracks;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

class RefusedWriteTest : public test::LibraryWriteFixture {};

TEST_F(RefusedWriteTest, NoRunBeginsInWhatAParserRefuses) {
    openText(libraryXml({{1, "A1", "<key>Name</key><string>a & b</string>"}}, {}));
    const auto begun = m_library->beginCleanup({"a test"});
    ASSERT_FALSE(begun);
    EXPECT_EQ(begun.error().code, Error::Code::invalid);
}

TEST_F(RefusedWriteTest, NoRunBeginsWhileAnotherProgramWrites) {
    openText(test::manyTracks(3));
    const auto lock = CleanupLock::acquire(m_library->path(), {"another test"});
    ASSERT_TRUE(lock);
    const auto begun = m_library->beginCleanup({"a test"});
    ASSERT_FALSE(begun);
    EXPECT_EQ(begun.error().code, Error::Code::busy);
}

TEST_F(RefusedWriteTest, WhatAParserRefusesIsNotWritten) {
    const std::string text =
        libraryXml({{1, "A1", "<key>Name</key><string>a & b</string>"}, {2, "A2", ""}}, {});
    openText(text);
    remove("A2");
    const auto written = m_library->flush();
    ASSERT_FALSE(written);
    EXPECT_EQ(written.error().code, Error::Code::invalid);
    EXPECT_THAT(written.error().message, StartsWith("line 13: "));
    EXPECT_EQ(m_library->lastWriteError()->message, written.error().message);
    EXPECT_EQ(content(), text);
    EXPECT_THAT(m_folder.names(), ElementsAre("library.xml"));
}

TEST_F(RefusedWriteTest, AFileCutOffMeanwhileIsNotWritten) {
    const std::string text = test::manyTracks(3);
    openText(text);
    remove(persistentIdOf(0));
    m_folder.write("library.xml", text.substr(0, text.size() / 2));
    EXPECT_FALSE(m_library->flush());
    EXPECT_EQ(content(), text.substr(0, text.size() / 2));
    EXPECT_TRUE(m_library->lastWriteError());
}

TEST_F(RefusedWriteTest, WhatWasReportedAsNotWrittenIsNeverWritten) {
    const std::string text = test::manyTracks(3);
    openText(text);
    remove(persistentIdOf(0));
    ASSERT_EQ(::unlink(m_library->path().c_str()), 0);
    const auto written = m_library->flush();
    ASSERT_FALSE(written);
    EXPECT_EQ(written.error().code, Error::Code::notFound);
    EXPECT_EQ(m_library->pendingDeletions(), 0U);
    EXPECT_EQ(m_library->trackCount(), 3);

    m_folder.write("library.xml", text);
    EXPECT_TRUE(m_library->flush());
    EXPECT_EQ(content(), text);
    remove(persistentIdOf(1));
    EXPECT_TRUE(m_library->flush());
    EXPECT_EQ(content(), withoutTracks(text, {1002}));
    EXPECT_FALSE(m_library->lastWriteError());
}

TEST_F(RefusedWriteTest, WaitsForAnotherProgramAndGivesUp) {
    const std::string text = test::manyTracks(3);
    openText(text);
    remove(persistentIdOf(0));
    {
        const auto lock = CleanupLock::acquire(m_library->path(), {"another test"});
        ASSERT_TRUE(lock);
        const auto written = m_library->flush();
        ASSERT_FALSE(written);
        EXPECT_EQ(written.error().code, Error::Code::busy);
        EXPECT_THAT(written.error().message, HasSubstr("(another test, process "));
        EXPECT_EQ(content(), text);
    }
    remove(persistentIdOf(0));
    EXPECT_TRUE(m_library->flush());
    EXPECT_EQ(m_folder.names().size(), 2U); // The lock left nothing behind.
}

TEST_F(RefusedWriteTest, AFullDiskLosesNothing) {
    const test::SmallFileSystem disk(m_folder.pathOf("disk"), 256 << 10);
    if (!disk.mounted()) GTEST_SKIP() << "mounting a file system is not permitted";
    const std::string text = test::manyTracks(300);
    ASSERT_GT(text.size(), 140U << 10);
    m_folder.write("disk/library.xml", text);
    open(m_folder.pathOf("disk/library.xml"));
    remove(persistentIdOf(0));
    const auto written = m_library->flush();
    ASSERT_FALSE(written);
    EXPECT_EQ(written.error().code, Error::Code::noSpace);
    EXPECT_EQ(content(), text);
    EXPECT_EQ(m_library->pendingDeletions(), 0U);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(m_folder.pathOf("disk")), {}), 1);
}

TEST_F(RefusedWriteTest, AReadOnlyFolderLosesNothing) {
    const test::SmallFileSystem disk(m_folder.pathOf("disk"), 1 << 20);
    if (!disk.mounted()) GTEST_SKIP() << "mounting a file system is not permitted";
    const std::string text = test::manyTracks(20);
    m_folder.write("disk/library.xml", text);
    open(m_folder.pathOf("disk/library.xml"));
    ASSERT_TRUE(disk.makeReadOnly());
    const auto begun = m_library->beginCleanup({"a test"});
    ASSERT_FALSE(begun);
    EXPECT_EQ(begun.error().code, Error::Code::noPermission);
    remove(persistentIdOf(0));
    const auto written = m_library->flush();
    ASSERT_FALSE(written);
    EXPECT_EQ(written.error().code, Error::Code::noPermission);
    EXPECT_EQ(content(), text);
    EXPECT_EQ(m_library->pendingDeletions(), 0U);
}

} // namespace
} // namespace songsweep
