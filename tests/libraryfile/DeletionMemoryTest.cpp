// SPDX-License-Identifier: MIT
#include "libraryfile/DeletionMemory.h"

#include "libraryfile/LibraryWriteFixture.h"

#include <gtest/gtest.h>

namespace songsweep {
namespace {

using test::libraryXml;
using test::persistentIdOf;
using test::withoutTracks;

class DeletionMemoryTest : public test::LibraryWriteFixture {};

TEST_F(DeletionMemoryTest, AChangeOfSomebodyElseIsKept) {
    openText(libraryXml({{1, "A1", ""}, {2, "A2", ""}}, {{"Mine", "", {1, 2}}}));
    remove("A1");
    const std::string added = "<key>Name</key><string>new</string>";
    m_folder.write("library.xml", libraryXml({{12, "A2", added}, {11, "A1", ""}, {13, "A3", added}},
                                             {{"Mine", "", {11, 13}}, {"Other", "", {11, 12}}}));
    ASSERT_TRUE(m_library->flush());
    EXPECT_EQ(content(),
              libraryXml({{12, "A2", added}, {13, "A3", added}}, {{"Mine", "", {13}}, {"Other", "", {12}}}));
}

TEST_F(DeletionMemoryTest, OneOfTwoTracksOfAnIdIsKnownAgainByItsBytes) {
    const std::string second = "<key>Name</key><string>second</string>";
    openText(libraryXml({{1, "A1", ""}, {2, "A1", second}, {3, "", ""}, {4, "", second}}, {}));
    ASSERT_TRUE(m_library->remove(1));
    ASSERT_TRUE(m_library->remove(3));
    m_folder.write(
        "library.xml",
        libraryXml({{4, "", second}, {2, "A1", second}, {1, "A1", ""}, {3, "", ""}, {5, "A5", ""}}, {}));
    ASSERT_TRUE(m_library->refresh());
    EXPECT_EQ(m_library->pendingDeletions(), 2U);
    ASSERT_TRUE(m_library->flush());
    EXPECT_EQ(content(), libraryXml({{1, "A1", ""}, {3, "", ""}, {5, "A5", ""}}, {}));
}

TEST_F(DeletionMemoryTest, AnIdenticalEntryThatNobodyDeletedStays) {
    openText(libraryXml({{3, "", ""}, {3, "", ""}}, {}));
    ASSERT_TRUE(m_library->remove(0));
    m_folder.write("library.xml", libraryXml({{3, "", ""}, {3, "", ""}, {5, "A5", ""}}, {}));
    ASSERT_TRUE(m_library->refresh());
    EXPECT_EQ(m_library->pendingDeletions(), 1U);
    ASSERT_TRUE(m_library->flush());
    EXPECT_EQ(content(), libraryXml({{3, "", ""}, {5, "A5", ""}}, {}));
}

TEST_F(DeletionMemoryTest, ATrackThatCannotBeKnownAgainStays) {
    openText(libraryXml({{1, "", ""}, {2, "", ""}}, {}));
    ASSERT_TRUE(m_library->remove(0));
    const std::string changed = libraryXml({{1, "", "<key>Rating</key><integer>60</integer>"}}, {});
    m_folder.write("library.xml", changed);
    ASSERT_TRUE(m_library->flush());
    EXPECT_EQ(content(), changed);
    EXPECT_EQ(m_library->trackCount(), 1);
}

TEST_F(DeletionMemoryTest, TwoDocumentsOfOneLibraryKeepEachOthersDeletions) {
    const std::string text = test::manyTracks(10);
    openText(text);
    auto other = LibraryDocument::open(m_library->path());
    ASSERT_TRUE(other);
    remove(persistentIdOf(2));
    ASSERT_TRUE(other.value()->remove(5));
    ASSERT_TRUE(m_library->flush());
    ASSERT_TRUE(other.value()->flush());
    EXPECT_EQ(content(), withoutTracks(text, {1004, 1010}));
}

} // namespace
} // namespace songsweep
