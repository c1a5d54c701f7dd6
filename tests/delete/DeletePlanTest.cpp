// SPDX-License-Identifier: MIT
#include "delete/DeletePlan.h"

#include "delete/DeletePlanFixture.h"
#include "support/BindMount.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>

namespace songsweep {
namespace {

using testing::IsEmpty;
using testing::UnorderedElementsAre;

class DeletePlanTest : public test::DeletePlanFixture {
  protected:
    /// Whether a survey that is stopped at the n-th time it asks gives a plan.
    bool answersWhenStoppedAt(int turn) const {
        DeleteConfirmationFacts facts;
        int asked = 0;
        return surveyFiles(SurveyedRows(m_list.rows), {m_files, libraryWith({})}, facts,
                           [&] { return ++asked >= turn; })
            .has_value();
    }
};

TEST_F(DeletePlanTest, CountsTracksThatStayForASharedIdApartWithTheirFiles) {
    addFile("A", true, "a.mp3");
    addFile("A", false, "b.mp3");
    addFile("C", true, "c.mp3");
    addFile("D", true, "d.mp3");
    add(1, "E", true, path("a.mp3")); // uses the file of a track that stays
    add(1, "F", true, path("missing.mp3"));
    DeleteConfirmationFacts facts;
    SurveySources sources{m_files, libraryWith({})};
    sources.tracksOfId = [](std::string_view pid) { return std::vector<std::string>(pid == "D" ? 2 : 1); };
    const auto plan = surveyFiles(SurveyedRows(m_list.rows), sources, facts, [] { return false; });
    ASSERT_TRUE(plan);
    EXPECT_EQ(facts.keptTracks, 2);
    EXPECT_EQ(facts.filesToTrash, 1) << "that of C";
    EXPECT_EQ(facts.sharedFiles, 1) << "that of E";
    EXPECT_EQ(facts.missingFiles, 1);
    EXPECT_TRUE(plan->shared.contains(m_list.rows[4]));
}

TEST_F(DeletePlanTest, ATrackThatStaysForASharedIdIsACopyThatStays) {
    addFile("A", true, "a.mp3");
    addFile("B", true, "b.mp3");
    DeleteConfirmationFacts facts;
    SurveySources sources{m_files, libraryWith({})};
    sources.tracksOfId = [](std::string_view pid) { return std::vector<std::string>(pid == "A" ? 2 : 1); };
    ASSERT_TRUE(surveyFiles(SurveyedRows(m_list.rows), sources, facts, [] { return false; }));
    EXPECT_EQ(facts.groupsLosingEveryFile, 0);
}

/// A file system on which every file has the same number.
class OneNumberFiles final : public Files {
  public:
    std::optional<FileAttributes> attributes(const std::string& path) const override {
        auto attributes = Files::attributes(path);
        if (attributes) attributes->device = attributes->inode = 0;
        return attributes;
    }
};

/// A file system whose files grow whenever they are looked at.
class GrowingFiles final : public Files {
  public:
    std::optional<FileAttributes> attributes(const std::string& path) const override {
        auto attributes = Files::attributes(path);
        if (attributes) attributes->size += m_looks++;
        return attributes;
    }

  private:
    mutable std::uint64_t m_looks = 0;
};

TEST_F(DeletePlanTest, AMarkedTrackDoesNotShareWithItselfOrAnotherMarkedOne) {
    addFile("A", true, "a.mp3");
    add(1, "B", true, path("a.mp3"));
    EXPECT_THAT(plan().shared, IsEmpty());
}

TEST_F(DeletePlanTest, ATrackOutsideOfTheResultsCanShareAFile) {
    const TrackRecord& a = addFile("A", true, "a.mp3");
    addFile("B", true, "b.mp3");
    EXPECT_THAT(plan({{"X", path("a.mp3")}, {"Y", path("c.mp3")}}).shared, UnorderedElementsAre(&a));
}

TEST_F(DeletePlanTest, AFileIsSharedThoughItHasChangedSinceItWasLookedAt) {
    const TrackRecord& a = addFile("A", true, "a.mp3");
    const GrowingFiles files;
    EXPECT_THAT(plan({{"X", path("a.mp3")}}, files).shared, UnorderedElementsAre(&a));
}

TEST_F(DeletePlanTest, ALinkedFolderLeadsToTheSameFile) {
    const TrackRecord& a = addFile("A", true, "real/a.mp3");
    std::filesystem::create_directory_symlink(path("real"), path("linked"));
    EXPECT_THAT(plan({{"X", path("linked/../linked/a.mp3")}}).shared, UnorderedElementsAre(&a));
}

TEST_F(DeletePlanTest, ALinkedFileIsTheFileItLeadsTo) {
    const TrackRecord& a = addFile("A", true, "a.mp3");
    std::filesystem::create_symlink(path("a.mp3"), path("link.mp3"));
    EXPECT_THAT(plan({{"X", path("link.mp3")}}).shared, UnorderedElementsAre(&a));
}

TEST_F(DeletePlanTest, AHardLinkIsTheSameFile) {
    const TrackRecord& a = addFile("A", true, "a.mp3");
    std::filesystem::create_hard_link(path("a.mp3"), path("other.mp3"));
    EXPECT_THAT(plan({{"X", path("other.mp3")}}).shared, UnorderedElementsAre(&a));
}

TEST_F(DeletePlanTest, AnEqualFileNumberAloneIsNoSharing) {
    const TrackRecord& a = addFile("A", true, "a.mp3");
    addFile("B", true, "another.mp3");
    addFile("C", false, "a third one.mp3");
    const OneNumberFiles files;
    EXPECT_THAT(plan({}, files).shared, IsEmpty());
    EXPECT_THAT(plan({{"X", path("a.mp3")}}, files).shared, UnorderedElementsAre(&a));
}

TEST_F(DeletePlanTest, TheSameFileUnderAnotherMountIsShared) {
    const TrackRecord& a = addFile("A", true, "music/a.mp3");
    addFile("B", true, "music/b.mp3");
    const test::BindMount mount(path("music"), path("mounted"));
    if (!mount.isMounted()) GTEST_SKIP() << "this user may not mount";
    EXPECT_THAT(plan({{"X", path("mounted/a.mp3")}}).shared, UnorderedElementsAre(&a));
}

TEST_F(DeletePlanTest, AFileOfEqualNumberSizeAndTimeIsTakenForTheSame) {
    const TrackRecord& a = addFile("A", true, "a.mp3");
    addFile("B", false, "b.mp3");
    const auto time = std::filesystem::last_write_time(path("a.mp3"));
    const OneNumberFiles files;
    std::filesystem::last_write_time(path("b.mp3"), time);
    EXPECT_THAT(plan({}, files).shared, UnorderedElementsAre(&a));
    std::filesystem::last_write_time(path("b.mp3"), time + std::chrono::seconds(1));
    EXPECT_THAT(plan({}, files).shared, IsEmpty());
}

TEST_F(DeletePlanTest, AMarkedTrackThatCannotBeDeletedKeepsItsFile) {
    const TrackRecord& a = addFile("0", true, "a.mp3");
    const TrackRecord& b = add(1, "B", true, path("a.mp3"));
    const TrackRecord& c = addFile("", true, "c.mp3");
    EXPECT_THAT(plan().shared, UnorderedElementsAre(&a, &b, &c));
    EXPECT_THAT(test::makeDeletePlan(m_list.rows, m_files, {}).shared, UnorderedElementsAre(&a, &b, &c));
    EXPECT_EQ(facts(), (DeleteConfirmationFacts{.sharedFiles = 1, .sharedBytes = 5})) << "c stays anyway";
}

TEST_F(DeletePlanTest, AnEntryOfAMarkedIdThatIsNotMarkedKeepsItsFile) {
    const TrackRecord& a = addFile("A", true, "a.mp3");
    addFile("B", true, "b.mp3");
    add(2, "B", true, path("b.mp3"));
    EXPECT_THAT(plan({{"A", path("a.mp3")}}).shared, UnorderedElementsAre(&a));
}

TEST_F(DeletePlanTest, ARowOfAMarkedIdThatIsNotMarkedKeepsItsFile) {
    const TrackRecord& a = addFile("A", true, "a.mp3");
    add(1, "A", false, path("a.mp3"));
    const LibraryLocations oneEntry = [this](const LocationVisitor& visit) {
        return visit("A", path("a.mp3"));
    };
    EXPECT_THAT(test::makeDeletePlan(m_list.rows, m_files, oneEntry).shared, UnorderedElementsAre(&a));
}

TEST_F(DeletePlanTest, AnEntryOfAMarkedIdElsewhereIsNotTheMarkedOne) {
    addFile("A", true, "a.mp3");
    m_folder.write("b.mp3", "b");
    EXPECT_THAT(plan({{"A", path("b.mp3")}}).shared, IsEmpty());
}

TEST_F(DeletePlanTest, AnEntryIsTheMarkedOneUnderAnotherNameOfItsFile) {
    addFile("A", true, "real/a.mp3");
    std::filesystem::create_directory_symlink(path("real"), path("linked"));
    const LibraryLocations oneEntry = [this](const LocationVisitor& visit) {
        return visit("A", path("linked/a.mp3"));
    };
    EXPECT_THAT(test::makeDeletePlan(m_list.rows, m_files, oneEntry).shared, IsEmpty());
}

TEST_F(DeletePlanTest, ALibraryThatCannotBeLookedAtKeepsEveryFileWhateverIsWanted) {
    const TrackRecord& a = addFile("A", true, "a.mp3");
    add(1, "B", true, path("gone.mp3"));
    DeleteConfirmationFacts facts;
    auto made =
        surveyFiles(SurveyedRows(m_list.rows), {m_files, [](const LocationVisitor&) { return false; }}, facts,
                    [] { return false; });
    ASSERT_TRUE(made);
    EXPECT_EQ(facts, (DeleteConfirmationFacts{.missingFiles = 1,
                                              .groupsLosingEveryFile = 1,
                                              .groupsLosingSharedFiles = 1,
                                              .libraryUnknown = true}));
    made->giveUpSharedFiles();
    EXPECT_THAT(made->shared, UnorderedElementsAre(&a));
}

TEST_F(DeletePlanTest, APlanWithoutFilesDoesNotVisitTheLibrary) {
    add(1, "A", true);
    int visits = 0;
    const auto library = [&visits](const LocationVisitor&) {
        ++visits;
        return true;
    };
    test::makeDeletePlan(m_list.rows, m_files, library);
    EXPECT_EQ(visits, 0);
    addFile("B", true, "b.mp3");
    test::makeDeletePlan(m_list.rows, m_files, library);
    EXPECT_EQ(visits, 1);
}

TEST_F(DeletePlanTest, WithoutALibraryTheUnmarkedRowsStandForIt) {
    const TrackRecord& a = addFile("A", true, "a.mp3");
    add(1, "B", false, path("a.mp3"));
    EXPECT_THAT(test::makeDeletePlan(m_list.rows, m_files, {}).shared, UnorderedElementsAre(&a));
}

TEST_F(DeletePlanTest, ALocationThatIsNoPathIsNoFile) {
    add(1, "A", true, "msng");
    add(1, "B", true, "");
    EXPECT_THAT(plan({{"X", "msng"}, {"Y", ""}}).files, IsEmpty());
}

TEST_F(DeletePlanTest, ASurveyThatIsStoppedHasNoPlan) {
    addFile("A", true, "a.mp3");
    addFile("B", false, "b.mp3");
    // For the library, each marked row, each of the library's, each copy that stays, and at the end.
    for (int turn = 1; turn <= 6; ++turn)
        EXPECT_FALSE(answersWhenStoppedAt(turn)) << turn;
    EXPECT_TRUE(answersWhenStoppedAt(7));
}

} // namespace
} // namespace songsweep
