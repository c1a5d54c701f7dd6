// SPDX-License-Identifier: MIT
#include "delete/DeleteFixture.h"
#include "delete/DeletePlan.h"
#include "platform/HfsPath.h"
#include "scripting/TextLiteral.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <stdexcept>

namespace songsweep {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr bool withFiles = true;
constexpr bool withoutFiles = false;

class DeleteProcTest : public test::DeleteFixture {
  protected:
    std::string fileEntry(const std::string& name) const { return "file " + hfsPath(path(name)).value(); }

    /// Throws at the entry.
    template <class Thrown>
    void throwAt(const std::string& entry, Thrown thrown) {
        setHook([=](const std::string& noted) {
            if (noted == entry) throw Thrown(thrown);
        });
    }
    void cancelAt(const std::string& entry) {
        setHook([this, entry](const std::string& noted) {
            if (noted == entry) cancel();
        });
    }
};

TEST_F(DeleteProcTest, AnEmptyListRunsNoScriptAndPostsOnlyTheEnd) {
    run(withFiles);
    EXPECT_THAT(wholeJournal(), ElementsAre("event deleteFinish"));
}

TEST_F(DeleteProcTest, WithNothingMarkedTheSoundGoesOffAndOnAndTheRowsAreVisited) {
    add(1, "A", false);
    add(1, "B", false);
    run(withFiles);
    EXPECT_THAT(wholeJournal(), ElementsAre("mute", "unmute", "event deleteValidity", "event deleteFinish"));
    EXPECT_THAT(pidsLeft(), ElementsAre("A", "B"));
}

TEST_F(DeleteProcTest, EachMarkedTrackIsDeletedAndCounted) {
    add(1, "A", true);
    add(1, "B", false);
    add(2, "C", true);
    run(withoutFiles);
    EXPECT_THAT(journal(),
                ElementsAre("mute", "track A", "event deleteAddCount", "track C", "event deleteAddCount",
                            "unmute", "event deleteValidity", "event deleteFinish"));
    EXPECT_THAT(pidsLeft(), ElementsAre("B"));
    EXPECT_THAT(outcomes(), ElementsAre("A: deleted", "C: deleted"));
}

TEST_F(DeleteProcTest, TheReportIsFullBeforeTheFinalEventIsHandled) {
    add(1, "A", true);
    add(1, "B", true);
    add(2, "C", true);
    std::vector<std::string> told;
    setHook([&](const std::string& entry) {
        if (entry == "track A") cancel();
        if (entry == "event deleteCancel") told = outcomes();
    });
    run(withoutFiles);
    EXPECT_THAT(told, ElementsAre("A: deleted", "B: not attempted", "C: not attempted"));
}

TEST_F(DeleteProcTest, AFileFollowsItsTrack) {
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

TEST_F(DeleteProcTest, WithoutTheFileOptionFilesStay) {
    addFile("A", true, "a.mp3");
    run(withoutFiles);
    EXPECT_TRUE(exists("a.mp3"));
    EXPECT_THAT(journal("file"), IsEmpty());
}

TEST_F(DeleteProcTest, OutcomesAreLoggedAfterTheFinalEvent) {
    addFile("A", true, "a.mp3");
    run(withFiles);
    const auto& entries = wholeJournal();
    EXPECT_EQ(entries.at(entries.size() - 2), "event deleteFinish");
    EXPECT_EQ(entries.back(), "log Track Song by Artist (A) deleted, file trashed, " + path("a.mp3"));
}

TEST_F(DeleteProcTest, APathWithColonsOrOtherLettersGoesInHfsNotation) {
    addFile("A", true, "a:b – été 歌.mp3");
    run(withFiles);
    std::string folder = hfsPath(m_folder.path()).value();
    EXPECT_THAT(journal("file"), ElementsAre("file " + folder + ":a/b – été 歌.mp3"));
    EXPECT_EQ(trashedCount(), 1);
}

TEST_F(DeleteProcTest, ANameOf255BytesWithALineBreakIsDeleted) {
    const std::string name = std::string(100, 'n') + "\n" + std::string(154, 'm');
    addFile("A", true, name);
    run(withFiles);
    EXPECT_FALSE(exists(name));
    EXPECT_THAT(outcomes(), ElementsAre("A: deleted, file trashed"));
}

class QuotedNameTest : public DeleteProcTest, public testing::WithParamInterface<const char*> {};

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

TEST_F(DeleteProcTest, AFolderStaysWithAllThatIsInIt) {
    addFile("B", false, "Album/3.mp3");
    add(1, "A", true, path("Album"));
    run(withFiles);
    EXPECT_THAT(journal("file"), IsEmpty());
    EXPECT_TRUE(exists("Album/3.mp3"));
    EXPECT_THAT(outcomes(), ElementsAre("A: deleted, file kept: it is a folder"));
    EXPECT_FALSE(m_report.allDealtWith());
}

TEST_F(DeleteProcTest, WhatIsNoRegularFileStays) {
    ASSERT_EQ(::mkfifo(path("pipe.mp3").c_str(), 0600), 0);
    add(1, "A", true, path("pipe.mp3"));
    run(withFiles);
    EXPECT_THAT(journal("file"), IsEmpty());
    EXPECT_TRUE(exists("pipe.mp3"));
    EXPECT_THAT(outcomes(), ElementsAre("A: deleted, file kept: it is no regular file"));
}

TEST_F(DeleteProcTest, AFolderInThePlaceOfAPlannedFileStays) {
    addFile("A", true, "a.mp3");
    const DeletePlan plan = test::makeDeletePlan(m_list.rows, m_files, {});
    std::filesystem::remove(path("a.mp3"));
    m_folder.write("a.mp3/b.mp3", "another");
    run(withFiles, plan);
    EXPECT_TRUE(exists("a.mp3/b.mp3"));
    EXPECT_THAT(outcomes(), ElementsAre("A: deleted, file kept: it is a folder"));
}

TEST_F(DeleteProcTest, AMissingFileIsNotToldToFinder) {
    add(1, "A", true, path("gone.mp3"));
    add(1, "B", true, "");
    add(1, "C", true, "msng");
    run(withFiles);
    EXPECT_THAT(journal("file"), IsEmpty());
    EXPECT_THAT(outcomes(), ElementsAre("A: deleted, file missing", "B: deleted, file missing",
                                        "C: deleted, file missing"));
    EXPECT_TRUE(m_report.allDealtWith());
}

TEST_F(DeleteProcTest, ATrackWhoseIdAnUnmarkedRowHasTooStaysWithItsFile) {
    addFile("00A1B2C3D4E5F607", true, "a.mp3");
    addFile("00a1b2c3d4e5f607", false, "b.mp3").name = "Other";
    addFile("C", true, "c.mp3");
    run(withFiles);
    EXPECT_THAT(journal(),
                ElementsAre("mute", "event deleteAddCount", "track C", fileEntry("c.mp3"),
                            "event deleteAddCount", "unmute", "event deleteValidity", "event deleteFinish"));
    EXPECT_THAT(pidsLeft(), ElementsAre("00a1b2c3d4e5f607"));
    EXPECT_THAT(outcomes(),
                ElementsAre("00A1B2C3D4E5F607: failed, file kept: “Other” by Artist, which is not "
                            "marked, has its persistent ID, too",
                            "C: deleted, file trashed"));
    EXPECT_TRUE(exists("a.mp3"));
    EXPECT_FALSE(m_report.allDealtWith());
}

TEST_F(DeleteProcTest, ATrackWhoseIdATrackOutsideOfTheResultsHasTooStays) {
    add(1, "A", true);
    add(1, "B", true);
    m_tracksOfId = [](std::string_view pid) {
        return pid == "A" ? std::vector<std::string>{"“One” by X", "“Two” by Y"} : std::vector<std::string>();
    };
    run(withoutFiles);
    EXPECT_THAT(journal("track"), ElementsAre("track B"));
    EXPECT_THAT(outcomes(),
                ElementsAre("A: failed: 2 tracks of the library have its persistent ID (“One” by X, "
                            "“Two” by Y), of which 1 is marked",
                            "B: deleted"));
}

TEST_F(DeleteProcTest, TracksOfOneIdGoWhereAllOfThemAreMarked) {
    add(1, "A", true);
    add(1, "A", true);
    m_tracksOfId = [](std::string_view) { return std::vector<std::string>{"“One” by X", "“Two” by Y"}; };
    run(withoutFiles);
    EXPECT_THAT(journal("track"), ElementsAre("track A", "track A"));
    EXPECT_TRUE(m_report.allDealtWith());
}

TEST_F(DeleteProcTest, TheLastCopyStaysWhereTheOneThatWasToStayHasGoneMeanwhile) {
    addFile("A", true, "a.mp3");
    addFile("B", false, "b.mp3");
    add(2, "C", true, m_folder.write("c.mp3", "c"));
    add(2, "D", false, m_folder.write("d.mp3", "d"));
    const DeletePlan plan = test::makeDeletePlan(m_list.rows, m_files, {});
    setHook([&](const std::string& entry) {
        if (entry == "event deleteAddCount") std::filesystem::remove(path("d.mp3")); // after the first track
    });
    run(withFiles, plan);
    EXPECT_THAT(journal("track"), ElementsAre("track A"));
    EXPECT_TRUE(exists("c.mp3"));
    EXPECT_THAT(outcomes(),
                ElementsAre("A: deleted, file trashed",
                            "C: failed, file kept: the copy that was to stay is no longer there, or "
                            "does not work"));
    EXPECT_THAT(pidsLeft(), ElementsAre("B", "D"));
}

TEST_F(DeleteProcTest, CopiesThatWereGivenUpGo) {
    addFile("A", true, "a.mp3");
    add(1, "B", false, path("gone.mp3"));
    run(withFiles);
    EXPECT_THAT(outcomes(), ElementsAre("A: deleted, file trashed"));
}

TEST_F(DeleteProcTest, WithoutFilesNobodyLooksAtTheCopiesThatStay) {
    addFile("A", true, "a.mp3");
    addFile("B", false, "b.mp3");
    std::filesystem::remove(path("b.mp3"));
    run(withoutFiles, {});
    EXPECT_THAT(outcomes(), ElementsAre("A: deleted"));
}

TEST_F(DeleteProcTest, AFailedScriptStillTakesTheRowAwayAndCounts) {
    addFile("A", true, "a.mp3");
    failAt("track A", "iTunes got an error");
    run(withFiles);
    EXPECT_THAT(journal("event"),
                ElementsAre("event deleteAddCount", "event deleteValidity", "event deleteFinish"));
    EXPECT_THAT(journal("file"), IsEmpty());
    EXPECT_THAT(pidsLeft(), IsEmpty());
    EXPECT_THAT(outcomes(), ElementsAre("A: failed, file kept: iTunes got an error"));
    EXPECT_FALSE(m_report.allDealtWith());
}

TEST_F(DeleteProcTest, AFileThatFinderLeavesIsReportedWithTheReason) {
    addFile("A", true, "a.mp3");
    failAt(fileEntry("a.mp3"), "the Trash refuses it");
    run(withFiles);
    EXPECT_TRUE(exists("a.mp3"));
    EXPECT_THAT(outcomes(), ElementsAre("A: deleted, file kept: the Trash refuses it"));
    EXPECT_THAT(pidsLeft(), IsEmpty());
}

TEST_F(DeleteProcTest, AnIdThatCouldEndItsLiteralIsEscaped) {
    add(1, "A\" or \"1\" is \"1", true);
    run(withoutFiles);
    EXPECT_THAT(journal("track"), ElementsAre("track A\\\" or \\\"1\\\" is \\\"1"));
    EXPECT_TRUE(m_report.allDealtWith());
}

TEST_F(DeleteProcTest, ATrackWithoutAnIdStaysAndSoDoesItsFile) {
    addFile("0", true, "a.mp3");
    add(1, "", true);
    run(withFiles);
    EXPECT_THAT(journal("track"), ElementsAre("track 0", "track "));
    EXPECT_THAT(journal("event deleteAddCount"), testing::SizeIs(2));
    EXPECT_TRUE(exists("a.mp3"));
    EXPECT_THAT(outcomes(), ElementsAre("0: failed, file kept: it has no persistent ID",
                                        ": failed, file missing: it has no persistent ID"));
    EXPECT_FALSE(m_report.allDealtWith());
    EXPECT_THAT(pidsLeft(), IsEmpty());
}

TEST_F(DeleteProcTest, ACancelInTheMiddleStopsBeforeTheNextRow) {
    add(1, "A", true);
    add(1, "B", true);
    add(1, "C", false);
    cancelAt("track A");
    run(withoutFiles);
    EXPECT_THAT(journal(),
                ElementsAre("mute", "track A", "event deleteAddCount", "unmute", "event deleteCancel"));
    EXPECT_THAT(pidsLeft(), ElementsAre("B", "C"));
    EXPECT_THAT(outcomes(), ElementsAre("A: deleted", "B: not attempted"));
    EXPECT_FALSE(m_report.allDealtWith());
}

TEST_F(DeleteProcTest, ACancelWhileMutingDeletesNothing) {
    add(1, "A", true);
    cancelAt("mute");
    run(withoutFiles);
    EXPECT_THAT(journal(), ElementsAre("mute", "unmute", "event deleteCancel"));
    EXPECT_THAT(pidsLeft(), ElementsAre("A"));
}

TEST_F(DeleteProcTest, ACancelAfterTheLastRowPostsBothEvents) {
    add(1, "A", true);
    cancelAt("event deleteAddCount");
    run(withoutFiles);
    EXPECT_THAT(journal("event"),
                ElementsAre("event deleteAddCount", "event deleteValidity", "event deleteCancel"));
}

TEST_F(DeleteProcTest, AnExceptionEndsTheLoopUnmutesAndComesOut) {
    add(1, "A", true);
    add(1, "B", true);
    add(1, "C", false);
    throwAt("track B", std::runtime_error("broken"));
    EXPECT_THROW(run(withoutFiles), std::runtime_error);
    EXPECT_THAT(journal(), ElementsAre("mute", "track A", "event deleteAddCount", "track B", "unmute",
                                       "event deleteFinish"));
    EXPECT_THAT(pidsLeft(), ElementsAre("B", "C"));
    EXPECT_THAT(outcomes(), ElementsAre("A: deleted", "B: not attempted"));
}

TEST_F(DeleteProcTest, AnExceptionWhileDeletingAFileIsSwallowed) {
    addFile("A", true, "a.mp3");
    add(1, "B", true);
    throwAt(fileEntry("a.mp3"), std::runtime_error("the disk is gone"));
    run(withFiles);
    EXPECT_THAT(journal("event"), ElementsAre("event deleteAddCount", "event deleteAddCount",
                                              "event deleteValidity", "event deleteFinish"));
    EXPECT_THAT(outcomes(),
                ElementsAre("A: deleted, file kept: the disk is gone", "B: deleted, file missing"));
}

TEST_F(DeleteProcTest, AnExceptionOfAnotherKindWhileDeletingAFileEndsTheLoop) {
    addFile("A", true, "a.mp3");
    throwAt(fileEntry("a.mp3"), 42);
    EXPECT_THROW(run(withFiles), int);
    EXPECT_THAT(journal("event"), ElementsAre("event deleteFinish"));
    EXPECT_THAT(journal("unmute"), ElementsAre("unmute"));
    EXPECT_THAT(pidsLeft(), ElementsAre("A"));
}

TEST_F(DeleteProcTest, AnExceptionAfterACancelPostsTheCancel) {
    add(1, "A", true);
    setHook([this](const std::string& entry) {
        if (entry != "track A") return;
        cancel();
        throw std::runtime_error("broken");
    });
    EXPECT_THROW(run(withoutFiles), std::runtime_error);
    EXPECT_THAT(journal("event"), ElementsAre("event deleteCancel"));
}

TEST_F(DeleteProcTest, AnExceptionWhileMutingUnmutesAndEnds) {
    add(1, "A", true);
    throwAt("mute", std::runtime_error("no sound"));
    EXPECT_THROW(run(withoutFiles), std::runtime_error);
    EXPECT_THAT(journal(), ElementsAre("mute", "unmute", "event deleteFinish"));
}

TEST_F(DeleteProcTest, AnExceptionWhileUnmutingStillEnds) {
    add(1, "A", true);
    throwAt("unmute", std::runtime_error("no sound"));
    EXPECT_THROW(run(withoutFiles), std::runtime_error);
    EXPECT_THAT(journal("event"),
                ElementsAre("event deleteAddCount", "event deleteValidity", "event deleteFinish"));
}

TEST_F(DeleteProcTest, CopiesThatShareAFileAreTrashedOnceAndBothDealtWith) {
    addFile("A", true, "a.mp3");
    add(1, "B", true, path("a.mp3"));
    run(withFiles);
    EXPECT_THAT(journal("file"), ElementsAre(fileEntry("a.mp3")));
    EXPECT_THAT(outcomes(), ElementsAre("A: deleted, file trashed", "B: deleted, file trashed"));
    EXPECT_TRUE(m_report.allDealtWith());
}

TEST_F(DeleteProcTest, CopiesThatShareAFileByALinkedFolderAreTrashedOnce) {
    addFile("A", true, "real/a.mp3");
    std::filesystem::create_directory_symlink(path("real"), path("linked"));
    add(1, "B", true, path("linked/a.mp3"));
    run(withFiles);
    EXPECT_THAT(journal("file"), ElementsAre(fileEntry("real/a.mp3")));
    EXPECT_THAT(outcomes(), ElementsAre("A: deleted, file trashed", "B: deleted, file trashed"));
}

TEST_F(DeleteProcTest, TheOtherFormOfANameIsAnotherFile) {
    const std::string composed = "\u00e9.mp3";
    const std::string decomposed = "e\u0301.mp3";
    addFile("A", true, decomposed);
    add(1, "B", true, path(decomposed));
    addFile("C", false, composed);
    run(withFiles);
    EXPECT_THAT(journal("file"), ElementsAre(fileEntry(decomposed)));
    EXPECT_THAT(outcomes(), ElementsAre("A: deleted, file trashed", "B: deleted, file trashed"));
    EXPECT_TRUE(exists(composed));
}

TEST_F(DeleteProcTest, AFileThatIsNotTheOneOfThePlanStays) {
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

TEST_F(DeleteProcTest, ALinkAndTheFileThatItLeadsToBothGo) {
    addFile("A", true, "a.mp3");
    std::filesystem::create_symlink(path("a.mp3"), path("link.mp3"));
    TrackRecord& link = add(1, "B", true, path("link.mp3"));
    std::swap(m_list.rows[0], m_list.rows[1]);
    ASSERT_EQ(m_list.rows[0], &link);
    run(withFiles);
    EXPECT_FALSE(exists("a.mp3"));
    EXPECT_THAT(outcomes(), ElementsAre("B: deleted, file trashed", "A: deleted, file trashed"));
}

TEST_F(DeleteProcTest, ALinkWhoseFileWasTrashedBeforeIsDealtWith) {
    addFile("A", true, "a.mp3");
    std::filesystem::create_symlink(path("a.mp3"), path("link.mp3"));
    add(1, "B", true, path("link.mp3"));
    run(withFiles);
    EXPECT_THAT(outcomes(), ElementsAre("A: deleted, file trashed", "B: deleted, file trashed"));
    EXPECT_TRUE(m_report.allDealtWith());
}

TEST_F(DeleteProcTest, AFileThatATrackUsesThatStaysIsLeft) {
    addFile("A", true, "a.mp3");
    add(1, "B", false, path("a.mp3"));
    run(withFiles);
    EXPECT_TRUE(exists("a.mp3"));
    EXPECT_THAT(journal("file"), IsEmpty());
    EXPECT_THAT(outcomes(), ElementsAre("A: deleted, file kept: a track that is not marked uses it too"));
    EXPECT_TRUE(m_report.allDealtWith());
}

TEST_F(DeleteProcTest, ASharedFileGoesWhereTheUserWantsIt) {
    addFile("A", true, "a.mp3");
    add(1, "B", false, path("a.mp3"));
    DeletePlan plan = test::makeDeletePlan(m_list.rows, m_files, {});
    plan.giveUpSharedFiles();
    run(withFiles, std::move(plan));
    EXPECT_FALSE(exists("a.mp3"));
}

} // namespace
} // namespace songsweep
