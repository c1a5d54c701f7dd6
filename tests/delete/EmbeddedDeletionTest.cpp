// SPDX-License-Identifier: MIT
// The road from a library file to a smaller one, with the program's own iTunes and Finder.
#include "delete/EmbeddedDeletionFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <set>

namespace songsweep {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class EmbeddedDeletionTest : public test::EmbeddedDeletionFixture {};

TEST_F(EmbeddedDeletionTest, TheLosingCopiesLeaveTheLibraryAndAllElseStays) {
    writeLibrary({"a.mp3", "a2.mp3", "b.mp3", "b2.mp3"});
    DisplayedList list = search(4);
    ASSERT_THAT(list.rows, SizeIs(4));
    markItems(list.rows, MarkType::highestBitrate, true);
    const DeleteReport report = deleteMarked(list);

    EXPECT_TRUE(report.allDealtWith());
    EXPECT_EQ(m_trash.trashed, 2);
    EXPECT_FALSE(m_desktop.muted);
    EXPECT_FALSE(m_files.exists(m_folder.pathOf("a.mp3")));
    EXPECT_TRUE(m_files.exists(m_folder.pathOf("a2.mp3")));
    EXPECT_EQ(libraryText(), test::withoutTracks(m_text, {100, 102}));
    EXPECT_EQ(test::contentOf(report.backup), m_text);
    EXPECT_THAT(search(2).rows, IsEmpty());
}

TEST_F(EmbeddedDeletionTest, AnEntryOfTheSameIdThatIsNotMarkedIsNotTakenAlong) {
    writeLibrary({"a.mp3", "a2.mp3", "b.mp3", "b2.mp3"});
    replaceAll(test::persistentIdOf(101), test::persistentIdOf(100));
    DisplayedList list = search(4);
    markItems(list.rows, MarkType::highestBitrate, true);
    EXPECT_EQ(groupsLosingEveryCopy(list.rows), 0);
    const DeleteReport report = deleteMarked(list);
    ASSERT_THAT(report.outcomes, SizeIs(2));
    EXPECT_EQ(outcomeText(report.outcomes[0]),
              "failed, file kept: “Song 0”, which is not marked, has its persistent ID, too");
    EXPECT_TRUE(report.outcomes[1].dealtWith);
    EXPECT_TRUE(m_files.exists(m_folder.pathOf("a.mp3")));
    EXPECT_EQ(libraryText(), test::withoutTracks(m_text, {102}));
}

TEST_F(EmbeddedDeletionTest, AnEntryOfTheSameIdThatWasNotFoundIsNotTakenAlong) {
    writeLibrary({"a.mp3", "a2.mp3", "b.mp3"});
    replaceAll(test::persistentIdOf(102), test::persistentIdOf(100));
    DisplayedList list = search(3);
    ASSERT_THAT(list.rows, SizeIs(2));
    markItems(list.rows, MarkType::highestBitrate, true);
    const DeleteReport report = deleteMarked(list);
    ASSERT_THAT(report.outcomes, SizeIs(1));
    EXPECT_EQ(outcomeText(report.outcomes[0]),
              "failed, file kept: 2 tracks of the library have its persistent ID (“Song 0”, “Song 1”), of "
              "which 1 is marked");
    EXPECT_TRUE(m_files.exists(m_folder.pathOf("a.mp3")));
    EXPECT_EQ(libraryText(), m_text);
}

TEST_F(EmbeddedDeletionTest, AFileGoesOnlyWhenTheLibraryOnTheDiskDoesNotNameItsTrack) {
    writeLibrary({"a.mp3", "a2.mp3", "b.mp3", "b2.mp3"});
    int moves = 0;
    m_trash.beforeMove = [&] {
        ++moves;
        EXPECT_EQ(libraryText(), test::withoutTracks(m_text, {100, 102}));
    };
    DisplayedList list = search(4);
    markItems(list.rows, MarkType::highestBitrate, true);
    EXPECT_TRUE(deleteMarked(list).allDealtWith());
    EXPECT_EQ(moves, 2);
    EXPECT_THAT(m_events, ElementsAre("deleteAddCount", "deleteAddCount", "deleteValidity", "deleteFinish"));
}

TEST_F(EmbeddedDeletionTest, AFailedWriteEndsTheDeletionWithNothingDone) {
    writeLibrary({"a.mp3", "a2.mp3", "b.mp3", "b2.mp3", "c.mp3", "c2.mp3"});
    DisplayedList list = search(6);
    markItems(list.rows, MarkType::highestBitrate, true);
    int tracks = 0;
    m_onEvent = [&](EventName name) {
        if (name != EventName::deleteAddCount || ++tracks != 2) return;
        replaceLast("</plist>", ""); // by another program
        EXPECT_FALSE(m_scripts->flush());
        replaceLast("</dict>\n", "</dict>\n</plist>\n");
    };
    const DeleteReport report = deleteMarked(list);

    EXPECT_NE(report.notWritten, "");
    ASSERT_THAT(report.outcomes, SizeIs(3));
    EXPECT_EQ(outcomeText(report.outcomes[0]), "failed, file kept: the library was not written");
    EXPECT_EQ(outcomeText(report.outcomes[1]), "failed, file kept: the library was not written");
    EXPECT_EQ(outcomeText(report.outcomes[2]), "not attempted");
    EXPECT_THAT(m_events, ElementsAre("deleteAddCount", "deleteAddCount", "deleteCancel"));
    EXPECT_FALSE(m_desktop.muted);
    EXPECT_EQ(m_trash.trashed, 0);
    m_scripts.reset(); // nobody writes it later
    EXPECT_EQ(libraryText(), m_text);
}

TEST_F(EmbeddedDeletionTest, AFailedLastWriteKeepsItsFilesAndTellsWhatWasWrittenBefore) {
    writeLibrary({"a.mp3", "a2.mp3", "b.mp3", "b2.mp3"});
    DisplayedList list = search(4);
    markItems(list.rows, MarkType::highestBitrate, true);
    int tracks = 0;
    m_onEvent = [&](EventName name) {
        if (name != EventName::deleteAddCount) return;
        if (++tracks == 1) {
            EXPECT_TRUE(m_scripts->flush());
        } else {
            std::filesystem::rename(m_folder.pathOf("library.xml"), m_folder.pathOf("away.xml"));
        }
    };
    const DeleteReport report = deleteMarked(list);

    ASSERT_THAT(report.outcomes, SizeIs(2));
    EXPECT_EQ(outcomeText(report.outcomes[0]), "deleted, file trashed");
    EXPECT_EQ(outcomeText(report.outcomes[1]), "failed, file kept: the library was not written");
    EXPECT_THAT(m_events, ElementsAre("deleteAddCount", "deleteAddCount", "deleteCancel"));
    EXPECT_FALSE(m_files.exists(m_folder.pathOf("a.mp3")));
    EXPECT_TRUE(m_files.exists(m_folder.pathOf("b.mp3")));
    EXPECT_EQ(test::contentOf(m_folder.pathOf("away.xml")), test::withoutTracks(m_text, {100}));
}

TEST_F(EmbeddedDeletionTest, ADeletionThatCannotBeginTouchesNothing) {
    writeLibrary({"a.mp3", "a2.mp3"});
    DisplayedList list = search(2);
    markItems(list.rows, MarkType::highestBitrate, true);
    const auto other = CleanupLock::acquire(m_folder.pathOf("library.xml"), {"delete", {}});
    ASSERT_TRUE(other);
    EmbeddedScripting::Options options;
    options.library.lockTimeout = {};
    m_scripts =
        std::make_unique<EmbeddedScripting>(m_folder.pathOf("library.xml"), m_desktop, m_files, options);
    const DeleteReport report = deleteMarked(list);
    EXPECT_THAT(report.notBegun, testing::HasSubstr("another Songsweep"));
    ASSERT_THAT(report.outcomes, SizeIs(1));
    EXPECT_EQ(outcomeText(report.outcomes[0]), "not attempted");
    EXPECT_THAT(m_events, ElementsAre("deleteCancel"));
    EXPECT_THAT(list.rows, SizeIs(2));
    EXPECT_EQ(m_trash.trashed, 0);
    EXPECT_EQ(libraryText(), m_text);
}

TEST_F(EmbeddedDeletionTest, TheLibraryIsLockedUntilTheLastFileHasGone) {
    writeLibrary({"a.mp3", "a2.mp3"});
    DisplayedList list = search(2);
    markItems(list.rows, MarkType::highestBitrate, true);
    const auto isLocked = [this] {
        return !CleanupLock::acquire(m_folder.pathOf("library.xml"), {"delete", {}});
    };
    bool wasLocked = false;
    m_trash.beforeMove = [&] { wasLocked = isLocked(); };
    EXPECT_TRUE(deleteMarked(list).allDealtWith());
    EXPECT_TRUE(wasLocked);
    EXPECT_FALSE(isLocked());
}

TEST_F(EmbeddedDeletionTest, AFileThatWasWrittenMeanwhileStays) {
    writeLibrary({"a.mp3", "a2.mp3"});
    DisplayedList list = search(2);
    markItems(list.rows, MarkType::highestBitrate, true);
    m_onEvent = [&](EventName name) {
        if (name == EventName::deleteAddCount) m_folder.write("a.mp3", "another sound");
    };
    const DeleteReport report = deleteMarked(list);
    ASSERT_THAT(report.outcomes, SizeIs(1));
    EXPECT_EQ(outcomeText(report.outcomes[0]), "deleted, file kept: it is not the file any more that it was");
    EXPECT_EQ(test::contentOf(m_folder.pathOf("a.mp3")), "another sound");
}

} // namespace
} // namespace songsweep
