// SPDX-License-Identifier: MIT
// What becomes of the files of a deletion with the program's own iTunes and Finder.
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

class EmbeddedFilesTest : public test::EmbeddedDeletionFixture {};

TEST_F(EmbeddedFilesTest, AFileOfTwoTracksIsToldOfBothAndNamesTheOther) {
    writeLibrary({"a.mp3", "a2.mp3", "a.mp3", "b2.mp3"});
    DisplayedList list = search(4);
    markItems(list.rows, MarkType::highestBitrate, true);
    const DeleteReport report = deleteMarked(list);
    ASSERT_THAT(report.outcomes, SizeIs(2));
    EXPECT_EQ(outcomeText(report.outcomes[0]), "deleted, file trashed");
    EXPECT_EQ(outcomeText(report.outcomes[1]), "deleted, file trashed: it is the file of “Song 0”, too");
    EXPECT_EQ(report.outcomes[1].trash, report.outcomes[0].trash);
    EXPECT_TRUE(report.allDealtWith());
    EXPECT_EQ(m_trash.trashed, 1);
}

TEST_F(EmbeddedFilesTest, AFileStaysWithATrackThatIsKeptForItsId) {
    writeLibrary({"a.mp3", "a2.mp3", "a.mp3", "b2.mp3", "c.mp3"});
    replaceAll(test::persistentIdOf(104), test::persistentIdOf(102));
    for (const bool leaveSharedFiles : {true, false}) {
        m_folder.write("library.xml", m_text);
        DisplayedList list = search(5);
        ASSERT_THAT(list.rows, SizeIs(4));
        markItems(list.rows, MarkType::highestBitrate, true);
        const DeleteReport report = deleteMarked(list, leaveSharedFiles);
        ASSERT_THAT(report.outcomes, SizeIs(2));
        EXPECT_EQ(outcomeText(report.outcomes[0]), "deleted, file kept: “Song 1”, which stays, uses it too");
        EXPECT_THAT(outcomeText(report.outcomes[1]), testing::StartsWith("failed, file kept: 2 tracks of"));
        EXPECT_TRUE(m_files.exists(m_folder.pathOf("a.mp3")));
        EXPECT_EQ(m_trash.trashed, 0);
    }
}

TEST_F(EmbeddedFilesTest, AFileStaysWithATrackWhoseTurnDidNotCome) {
    writeLibrary({"a.mp3", "a2.mp3", "a.mp3", "b2.mp3"});
    DisplayedList list = search(4);
    markItems(list.rows, MarkType::highestBitrate, true);
    m_onEvent = [&](EventName name) {
        if (name != EventName::deleteAddCount) return;
        EXPECT_TRUE(m_scripts->flush());
        m_operation->cancel();
    };
    const DeleteReport report = deleteMarked(list);
    ASSERT_THAT(report.outcomes, SizeIs(2));
    EXPECT_EQ(outcomeText(report.outcomes[0]),
              "deleted, file kept: another track that uses it is still in the library");
    EXPECT_EQ(outcomeText(report.outcomes[1]), "not attempted");
    EXPECT_TRUE(m_files.exists(m_folder.pathOf("a.mp3")));
    EXPECT_EQ(libraryText(), test::withoutTracks(m_text, {100}));
}

TEST_F(EmbeddedFilesTest, ALinkGoesWithItsTargetAlsoInALongRun) {
    std::filesystem::create_symlink("a.mp3", m_folder.pathOf("link.mp3"));
    writeLibrary({"a.mp3", "a2.mp3", "b.mp3", "b2.mp3"});
    std::filesystem::remove(m_folder.pathOf("b.mp3"));
    replaceAll("/b.mp3", "/link.mp3");
    DisplayedList list = search(4);
    markItems(list.rows, MarkType::highestBitrate, true);
    int tracks = 0;
    m_onEvent = [&](EventName name) {
        if (name == EventName::deleteAddCount && ++tracks == 1) {
            EXPECT_TRUE(m_scripts->flush()); // as in a long run
        }
    };
    const DeleteReport report = deleteMarked(list);
    ASSERT_THAT(report.outcomes, SizeIs(2));
    EXPECT_FALSE(m_files.exists(m_folder.pathOf("a.mp3")));
    EXPECT_FALSE(std::filesystem::is_symlink(m_folder.pathOf("link.mp3")));
    EXPECT_EQ(outcomeText(report.outcomes[1]), "deleted, file trashed");
    EXPECT_EQ(m_trash.trashed, 2);
}

TEST_F(EmbeddedFilesTest, WhiteSpaceAroundALocationHidesNoSharedFile) {
    writeLibrary({"a.mp3", "a2.mp3", "a.mp3"});
    replaceLast("<string>file://", "<string>\n\tfile://");
    DisplayedList list = search(3);
    markItems(list.rows, MarkType::highestBitrate, true);
    deleteMarked(list);
    EXPECT_TRUE(m_files.exists(m_folder.pathOf("a.mp3")));
    EXPECT_EQ(m_trash.trashed, 0);
}

TEST_F(EmbeddedFilesTest, AwkwardNamesGoToTheTrash) {
    const std::string longName(255, 'n');
    writeLibrary({"colon : slash.mp3", "kept", "line\nbreak.mp3", "kept2", "été – 歌.mp3", "kept3", longName,
                  "kept4", "say \"hi\".mp3", "kept5", "back\\nslash.mp3", "kept6", "no text \xff.mp3",
                  "kept7"});
    DisplayedList list = search(14);
    ASSERT_THAT(list.rows, SizeIs(14));
    markItems(list.rows, MarkType::highestBitrate, true);
    const DeleteReport report = deleteMarked(list);

    ASSERT_THAT(report.outcomes, SizeIs(7));
    for (const DeleteOutcome& outcome : report.outcomes)
        EXPECT_EQ(m_files.exists(outcome.location), outcome.file == DeleteOutcome::File::kept)
            << outcomeLine(outcome);
    EXPECT_EQ(m_trash.trashed, 7);
    EXPECT_FALSE(m_files.exists(m_folder.pathOf("say \"hi\".mp3")));
    EXPECT_FALSE(m_files.exists(m_folder.pathOf("back\\nslash.mp3")));
    EXPECT_EQ(libraryText(), test::withoutTracks(m_text, {100, 102, 104, 106, 108, 110, 112}));
}

TEST_F(EmbeddedFilesTest, ATrashThatRefusesLeavesTheFileAndSaysWhy) {
    writeLibrary({"a.mp3", "a2.mp3"});
    m_trash.refuses = true;
    DisplayedList list = search(2);
    markItems(list.rows, MarkType::highestBitrate, true);
    const DeleteReport report = deleteMarked(list);
    ASSERT_THAT(report.outcomes, SizeIs(1));
    EXPECT_THAT(outcomeText(report.outcomes[0]), testing::HasSubstr("deleted, file kept: "));
    EXPECT_THAT(outcomeText(report.outcomes[0]), testing::HasSubstr("the Trash is full"));
    EXPECT_TRUE(m_files.exists(m_folder.pathOf("a.mp3")));
    EXPECT_FALSE(m_desktop.muted);
}

} // namespace
} // namespace songsweep
