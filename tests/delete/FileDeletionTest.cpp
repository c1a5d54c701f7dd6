// SPDX-License-Identifier: MIT
#include "delete/FileDeletion.h"

#include "delete/DeletePlan.h"
#include "delete/DeletePrediction.h"
#include "delete/DeleteProcFixture.h"
#include "scripting/TextLiteral.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

namespace songsweep {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FileDeletionTest : public test::DeleteProcFixture {};

TEST_F(FileDeletionTest, AFileFollowsItsTrack) {
    addFile("A", true, "a.mp3");
    addFile("B", false, "b.mp3");
    run(withFiles);
    EXPECT_THAT(journal(), ElementsAre("mute", "track A", fileEntry("a.mp3"), "event deleteAddCount",
                                       "unmute", "event deleteValidity", "event deleteFinish"));
    EXPECT_FALSE(exists("a.mp3"));
    EXPECT_TRUE(exists("b.mp3"));
    EXPECT_THAT(outcomes(), ElementsAre("A: deleted, file trashed"));
    EXPECT_TRUE(m_report.allDealtWith());
}

TEST_F(FileDeletionTest, WithoutTheFileOptionFilesStay) {
    addFile("A", true, "a.mp3");
    run(withoutFiles);
    EXPECT_TRUE(exists("a.mp3"));
    EXPECT_THAT(journal("file"), IsEmpty());
}

TEST_F(FileDeletionTest, APathWithColonsOrOtherLettersGoesInHfsNotation) {
    addFile("A", true, "a:b – été 歌.mp3");
    run(withFiles);
    std::string folder = hfsPath(m_folder.path()).value();
    EXPECT_THAT(journal("file"), ElementsAre("file " + folder + ":a/b – été 歌.mp3"));
    EXPECT_EQ(trashedCount(), 1);
}

TEST_F(FileDeletionTest, ANameOf255BytesWithALineBreakIsDeleted) {
    const std::string name = std::string(100, 'n') + "\n" + std::string(154, 'm');
    addFile("A", true, name);
    run(withFiles);
    EXPECT_FALSE(exists(name));
    EXPECT_THAT(outcomes(), ElementsAre("A: deleted, file trashed"));
}

TEST_F(FileDeletionTest, AFolderStaysWithAllThatIsInIt) {
    addFile("B", false, "Album/3.mp3");
    add(1, "A", true, path("Album"));
    run(withFiles);
    EXPECT_THAT(journal("file"), IsEmpty());
    EXPECT_TRUE(exists("Album/3.mp3"));
    EXPECT_THAT(outcomes(), ElementsAre("A: deleted, file kept: it is a folder"));
    EXPECT_FALSE(m_report.allDealtWith());
}

TEST_F(FileDeletionTest, WhatIsNoRegularFileStays) {
    ASSERT_EQ(::mkfifo(path("pipe.mp3").c_str(), 0600), 0);
    add(1, "A", true, path("pipe.mp3"));
    run(withFiles);
    EXPECT_THAT(journal("file"), IsEmpty());
    EXPECT_TRUE(exists("pipe.mp3"));
    EXPECT_THAT(outcomes(), ElementsAre("A: deleted, file kept: it is no regular file"));
}

TEST_F(FileDeletionTest, AFolderInThePlaceOfAPlannedFileStays) {
    addFile("A", true, "a.mp3");
    const DeletePlan plan = test::makeDeletePlan(m_list.rows, m_files, {});
    std::filesystem::remove(path("a.mp3"));
    m_folder.write("a.mp3/b.mp3", "another");
    run(withFiles, plan);
    EXPECT_TRUE(exists("a.mp3/b.mp3"));
    EXPECT_THAT(outcomes(), ElementsAre("A: deleted, file kept: it is a folder"));
}

TEST_F(FileDeletionTest, AMissingFileIsNotToldToFinder) {
    add(1, "A", true, path("gone.mp3"));
    add(1, "B", true, "");
    add(1, "C", true, "msng");
    run(withFiles);
    EXPECT_THAT(journal("file"), IsEmpty());
    EXPECT_THAT(outcomes(), ElementsAre("A: deleted, file missing", "B: deleted, file missing",
                                        "C: deleted, file missing"));
    EXPECT_TRUE(m_report.allDealtWith());
}

TEST_F(FileDeletionTest, AFileThatFinderLeavesIsReportedWithTheReason) {
    addFile("A", true, "a.mp3");
    failAt(fileEntry("a.mp3"), "the Trash refuses it");
    run(withFiles);
    EXPECT_TRUE(exists("a.mp3"));
    EXPECT_THAT(outcomes(), ElementsAre("A: deleted, file kept: the Trash refuses it"));
    EXPECT_THAT(pidsLeft(), IsEmpty());
}

TEST_F(FileDeletionTest, CopiesThatShareAFileAreTrashedOnceAndBothDealtWith) {
    addFile("A", true, "a.mp3");
    add(1, "B", true, path("a.mp3"));
    run(withFiles);
    EXPECT_THAT(journal("file"), ElementsAre(fileEntry("a.mp3")));
    EXPECT_THAT(outcomes(), ElementsAre("A: deleted, file trashed",
                                        "B: deleted, file trashed: it is the file of “Song” by Artist, too"));
    EXPECT_TRUE(m_report.allDealtWith());
}

TEST_F(FileDeletionTest, CopiesThatShareAFileByALinkedFolderAreTrashedOnce) {
    addFile("A", true, "real/a.mp3");
    std::filesystem::create_directory_symlink(path("real"), path("linked"));
    add(1, "B", true, path("linked/a.mp3"));
    run(withFiles);
    EXPECT_THAT(journal("file"), ElementsAre(fileEntry("real/a.mp3")));
    EXPECT_THAT(outcomes(), ElementsAre("A: deleted, file trashed",
                                        "B: deleted, file trashed: it is the file of “Song” by Artist, too"));
}

TEST_F(FileDeletionTest, TheOtherFormOfANameIsAnotherFile) {
    const std::string composed = "\u00e9.mp3";
    const std::string decomposed = "e\u0301.mp3";
    addFile("A", true, decomposed);
    add(1, "B", true, path(decomposed));
    addFile("C", false, composed);
    run(withFiles);
    EXPECT_THAT(journal("file"), ElementsAre(fileEntry(decomposed)));
    EXPECT_THAT(outcomes(), ElementsAre("A: deleted, file trashed",
                                        "B: deleted, file trashed: it is the file of “Song” by Artist, too"));
    EXPECT_TRUE(exists(composed));
}

TEST_F(FileDeletionTest, AFileThatIsNotTheOneOfThePlanStays) {
    addFile("A", true, "linked/a.mp3");
    add(1, "B", true, path("new.mp3"));
    const DeletePlan plan = test::makeDeletePlan(m_list.rows, m_files, {});
    std::filesystem::rename(path("linked"), path("old"));
    m_folder.write("other/a.mp3", "other");
    std::filesystem::create_directory_symlink(path("other"), path("linked"));
    m_folder.write("new.mp3", "new");
    run(withFiles, plan);
    EXPECT_THAT(journal("file"), IsEmpty());
    EXPECT_THAT(outcomes(), ElementsAre("A: deleted, file kept: it is not the file that was looked at",
                                        "B: deleted, file kept: it is not the file that was looked at"));
    EXPECT_FALSE(m_report.allDealtWith());
}

TEST_F(FileDeletionTest, ALinkAndTheFileThatItLeadsToBothGo) {
    addFile("A", true, "a.mp3");
    std::filesystem::create_symlink(path("a.mp3"), path("link.mp3"));
    TrackRecord& link = add(1, "B", true, path("link.mp3"));
    std::swap(m_list.rows[0], m_list.rows[1]);
    ASSERT_EQ(m_list.rows[0], &link);
    run(withFiles);
    EXPECT_FALSE(exists("a.mp3"));
    EXPECT_THAT(outcomes(), ElementsAre("B: deleted, file trashed", "A: deleted, file trashed"));
}

TEST_F(FileDeletionTest, ALinkWhoseFileWasTrashedBeforeIsDealtWith) {
    addFile("A", true, "a.mp3");
    std::filesystem::create_symlink(path("a.mp3"), path("link.mp3"));
    add(1, "B", true, path("link.mp3"));
    run(withFiles);
    EXPECT_THAT(outcomes(),
                ElementsAre("A: deleted, file trashed", "B: deleted, file trashed: it is a link, which is "
                                                        "left; it is the file of “Song” by Artist, too"));
    EXPECT_TRUE(m_report.allDealtWith());
}

/// A location of this kind is of no file that could be looked at; systems differ in what else cannot be told.
TEST_F(FileDeletionTest, ATrackStaysWithAFileWhoseNameCannotBeTold) {
    const TrackRecord& track = add(1, "A", true, "a.mp3");
    DeletePlan plan;
    plan.files[&track] = {.path = path("a.mp3"), .obstacle = nullptr};
    EXPECT_THAT(outcomesOf(predictedReport(m_list.rows, withoutFiles, plan, {})), ElementsAre("A: deleted"));
    EXPECT_THAT(outcomesOf(predictedReport(m_list.rows, withFiles, plan, {})),
                ElementsAre("A: failed, file kept: its file's name cannot be told to Finder"));
    run(withFiles, plan);
    EXPECT_THAT(journal("track"), IsEmpty());
    EXPECT_THAT(outcomes(), ElementsAre("A: failed, file missing: its file's name cannot be told to Finder"));
}

TEST_F(FileDeletionTest, AFileThatATrackUsesThatStaysIsLeft) {
    addFile("A", true, "a.mp3");
    add(1, "B", false, path("a.mp3"));
    run(withFiles);
    EXPECT_TRUE(exists("a.mp3"));
    EXPECT_THAT(journal("file"), IsEmpty());
    EXPECT_THAT(outcomes(), ElementsAre("A: deleted, file kept: a track that is not marked uses it too"));
    EXPECT_TRUE(m_report.allDealtWith());
}

TEST_F(FileDeletionTest, ASharedFileGoesWhereTheUserWantsIt) {
    addFile("A", true, "a.mp3");
    add(1, "B", false, path("a.mp3"));
    DeletePlan plan = test::makeDeletePlan(m_list.rows, m_files, {});
    plan.giveUpSharedFiles();
    run(withFiles, std::move(plan));
    EXPECT_FALSE(exists("a.mp3"));
}

class QuotedNameTest : public FileDeletionTest, public testing::WithParamInterface<const char*> {};

TEST_P(QuotedNameTest, GoesIntoItsTextEscaped) {
    addFile("A", true, GetParam());
    run(withFiles);
    const std::string folder = hfsPath(m_folder.path()).value();
    EXPECT_THAT(journal("file"), ElementsAre("file " + folder + ":" + escapedWords(GetParam())));
    EXPECT_FALSE(exists(GetParam()));
    EXPECT_THAT(outcomes(), ElementsAre("A: deleted, file trashed"));
    EXPECT_TRUE(m_report.allDealtWith());
}

INSTANTIATE_TEST_SUITE_P(names, QuotedNameTest,
                         testing::Values("say \"hi\".mp3", "back\\slash.mp3", "tab\\t.mp3", "\\", "\""));

} // namespace
} // namespace songsweep
