// SPDX-License-Identifier: MIT
#include "delete/StayingCopies.h"

#include "delete/DeletePlanFixture.h"
#include "delete/TrackFacts.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace songsweep {
namespace {

class CountingFiles final : public Files {
  public:
    std::optional<FileAttributes> attributes(const std::string& path) const override {
        ++looks;
        return Files::attributes(path);
    }
    mutable int looks = 0;
};

class StayingCopiesTest : public test::DeleteFixture {};

TEST_F(StayingCopiesTest, AreLookedAtAgainEachTime) {
    const TrackRecord& a = addFile("A", true, "a.mp3");
    addFile("B", false, "b.mp3");
    addFile("C", false, "c.mp3");
    StayingCopies copies(m_list.rows, {1}, m_files);
    EXPECT_TRUE(copies.isLeftOf(a));
    std::filesystem::remove(path("b.mp3"));
    EXPECT_TRUE(copies.isLeftOf(a));
    m_folder.write("c.mp3", "");
    EXPECT_FALSE(copies.isLeftOf(a));
}

TEST_F(StayingCopiesTest, OfSongsThatWereGivenUpAreNotMissed) {
    const TrackRecord& a = addFile("A", true, "a.mp3");
    StayingCopies copies(m_list.rows, {}, m_files);
    EXPECT_TRUE(copies.isLeftOf(a));
}

TEST_F(StayingCopiesTest, DoNotStandForAnotherSong) {
    const TrackRecord& a = addFile("A", true, "a.mp3");
    add(2, "B", true, path("b.mp3"));
    add(2, "C", false, m_folder.write("c.mp3", "c"));
    StayingCopies copies(m_list.rows, {1, 2}, m_files);
    EXPECT_FALSE(copies.isLeftOf(a));
    EXPECT_TRUE(copies.isLeftOf(*m_list.rows.at(1)));
}

TEST_F(StayingCopiesTest, AreAlsoMarkedTracksThatCannotBeDeleted) {
    const TrackRecord& a = addFile("A", true, "a.mp3");
    addFile("0", true, "b.mp3");
    StayingCopies copies(m_list.rows, {1}, m_files);
    EXPECT_TRUE(copies.isLeftOf(a));
}

TEST_F(StayingCopiesTest, CostLooksThatAreLinearInTheRows) {
    constexpr int count = 100;
    for (int copy = 0; copy < count; ++copy) {
        add(1, "A", true, path("a.mp3"));
        add(1, "B", false, path("gone.mp3"));
    }
    addFile("C", false, "c.mp3");
    const CountingFiles files;
    StayingCopies copies(m_list.rows, {1}, files);
    int left = 0;
    for (const TrackRecord* const row : m_list.rows)
        left += row->checkbox && copies.isLeftOf(*row) ? 1 : 0;
    EXPECT_EQ(left, count);
    EXPECT_EQ(files.looks, 2 * count);
}

/// The copies that are to stay, as a survey looks at them again.
class CopiesThatStay : public test::DeletePlanFixture {
  protected:
    int lost() const { return lost(m_files); }
    int lost(const Files& files) const {
        DeleteConfirmationFacts facts;
        const auto isStopped = [] { return false; };
        EXPECT_TRUE(surveyFiles(SurveyedRows(m_list.rows), {files}, facts, isStopped));
        return facts.groupsLosingEveryFile;
    }
};

class UnreadableFiles final : public Files {
  public:
    bool isReadable(const std::string&) const override { return false; }
};

TEST_F(CopiesThatStay, AWorkingFileIsEnough) {
    addFile("A", true, "a.mp3");
    add(1, "B", false, path("gone.mp3"));
    addFile("C", false, "c.mp3");
    EXPECT_EQ(lost(), 0);
}

TEST_F(CopiesThatStay, AFileThatWentSinceTheSearchIsNone) {
    addFile("A", true, "a.mp3");
    addFile("B", false, "b.mp3");
    std::filesystem::remove(path("b.mp3"));
    EXPECT_EQ(lost(), 1);
}

TEST_F(CopiesThatStay, AnEmptyFileIsNone) {
    addFile("A", true, "a.mp3");
    add(1, "B", false, m_folder.write("b.mp3", ""));
    EXPECT_EQ(lost(), 1);
}

TEST_F(CopiesThatStay, AFolderIsNone) {
    addFile("A", true, "a.mp3");
    add(1, "B", false, m_folder.path());
    EXPECT_EQ(lost(), 1);
}

TEST_F(CopiesThatStay, AFileThatCannotBeReadIsNone) {
    addFile("A", true, "a.mp3");
    addFile("B", false, "b.mp3");
    EXPECT_EQ(lost(UnreadableFiles()), 1);
}

TEST_F(CopiesThatStay, ATrackWithoutAFileIsNone) {
    addFile("A", true, "a.mp3");
    add(1, "B", false, "msng");
    EXPECT_EQ(lost(), 1);
}

TEST_F(CopiesThatStay, AreThoseOfTheirOwnGroupAlone) {
    addFile("A", true, "a.mp3");
    add(2, "B", true, m_folder.write("b.mp3", "b"));
    add(2, "C", false, m_folder.write("c.mp3", "c"));
    add(3, "D", false, m_folder.write("d.mp3", "d"));
    add(4, "E", true, m_folder.write("e.mp3", "e"));
    add(4, "F", false, path("gone.mp3"));
    EXPECT_EQ(lost(), 2);
}

TEST_F(CopiesThatStay, AMarkedTrackThatCannotBeDeletedIsOne) {
    addFile("A", true, "a.mp3");
    addFile("0", true, "b.mp3");
    EXPECT_EQ(lost(), 0);
}

TEST_F(CopiesThatStay, AGroupWithoutAFileToLoseIsJudgedAsTheSearchSawIt) {
    add(1, "A", true, path("gone.mp3")).isdead = true;
    add(1, "B", false, path("gone too.mp3")).isdead = true;
    EXPECT_EQ(lost(), 0);
    add(2, "C", true, path("gone.mp3")).isdead = true;
    add(2, "D", true, m_folder.path());
    EXPECT_EQ(lost(), 1) << "a folder stays where it is";
}

TEST_F(CopiesThatStay, AFileThatCameBackSinceTheSearchIsOne) {
    addFile("A", true, "a.mp3");
    addFile("B", false, "b.mp3").isdead = true;
    EXPECT_EQ(groupsLosingEveryCopy(m_list.rows), 1);
    EXPECT_EQ(lost(), 0);
}

} // namespace
} // namespace songsweep
