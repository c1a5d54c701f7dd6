// SPDX-License-Identifier: MIT
#include "delete/DeletePlan.h"

#include "delete/DeleteConfirmationFacts.h"
#include "delete/DeleteFixture.h"
#include "delete/TrackFacts.h"
#include "support/BindMount.h"
#include "support/RecordingTrash.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>

namespace songsweep {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class DeletePlanTest : public test::DeleteFixture {
  protected:
    using Others = std::vector<std::pair<std::string, std::string>>;

    /// The library's tracks: the displayed rows and these, by ID and location.
    LibraryLocations libraryWith(const Others& others) const {
        return [this, others](const LocationVisitor& visit) {
            for (const TrackRecord* const record : m_list.rows)
                visit(record->pid, record->location.string());
            for (const auto& [pid, location] : others)
                visit(pid, location);
            return true;
        };
    }
    DeletePlan plan(const Others& others, const Files& files) const {
        return test::makeDeletePlan(m_list.rows, files, libraryWith(others));
    }
    DeletePlan plan(const Others& others = {}) const { return plan(others, m_files); }
    /// The counts of files; of groups, CopiesThatStay asks.
    DeleteConfirmationFacts facts(const Others& others = {}) const {
        DeleteConfirmationFacts facts;
        const auto isStopped = [] { return false; };
        EXPECT_TRUE(surveyFiles(SurveyedRows(m_list.rows), {m_files, libraryWith(others)}, facts, isStopped));
        facts.groupsLosingEveryFile = 0;
        return facts;
    }
    /// Whether a survey that is stopped at the n-th time it asks gives a plan.
    bool answersWhenStoppedAt(int turn) const {
        DeleteConfirmationFacts facts;
        int asked = 0;
        return surveyFiles(SurveyedRows(m_list.rows), {m_files, libraryWith({})}, facts,
                           [&] { return ++asked >= turn; })
            .has_value();
    }
};

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
    EXPECT_EQ(facts, (DeleteConfirmationFacts{
                         .missingFiles = 1, .groupsLosingEveryFile = 1, .libraryUnknown = true}));
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

TEST_F(DeletePlanTest, TheFactsCountFilesBytesAndWhatIsShared) {
    addFile("A", true, "four");        // 4 bytes
    addFile("B", true, "sixsix");      // 6 bytes
    add(2, "C", true, path("sixsix")); // the file of B once more
    add(2, "D", true, path("gone"));
    addFile("E", true, "shared9"); // 7 bytes
    add(3, "F", false, path("four2"));
    const DeleteConfirmationFacts expected = {
        .filesToTrash = 2, .bytesToTrash = 10, .sharedFiles = 1, .sharedBytes = 7, .missingFiles = 1};
    EXPECT_EQ(facts({{"X", path("shared9")}}), expected);
}

TEST_F(DeletePlanTest, TheNamesOfOneFileCountItsBytesOnce) {
    addFile("A", true, "four");
    std::filesystem::create_hard_link(path("four"), path("other name"));
    add(1, "B", true, path("other name"));
    EXPECT_EQ(facts(), (DeleteConfirmationFacts{.filesToTrash = 2, .bytesToTrash = 4}));
}

TEST_F(DeletePlanTest, ALinkToAMarkedFileIsNoFileOfItsOwn) {
    addFile("A", true, "four");
    std::filesystem::create_symlink(path("four"), path("link"));
    add(1, "B", true, path("link"));
    EXPECT_EQ(facts(), (DeleteConfirmationFacts{.filesToTrash = 1, .bytesToTrash = 4}));
}

TEST_F(DeletePlanTest, AFileWithQuotesInItsNameIsCountedAsGoing) {
    addFile("A", true, "say \"hi\".mp3");
    EXPECT_EQ(facts().filesToTrash, 1);
}

TEST_F(DeletePlanTest, AFolderIsNotCountedAsGoingOrMissing) {
    add(1, "A", true, m_folder.path());
    EXPECT_EQ(facts(), DeleteConfirmationFacts());
}

TEST_F(DeletePlanTest, ASurveyThatIsStoppedHasNoPlan) {
    addFile("A", true, "a.mp3");
    addFile("B", false, "b.mp3");
    // For the library, each marked row, each of the library's, each copy that stays, and at the end.
    for (int turn = 1; turn <= 6; ++turn)
        EXPECT_FALSE(answersWhenStoppedAt(turn)) << turn;
    EXPECT_TRUE(answersWhenStoppedAt(7));
}

/// A Trash that has no room for a file but for the first ones.
class FullTrash final : public test::RecordingTrash {
  public:
    explicit FullTrash(int room)
        : RecordingTrash(m_calls)
        , m_room(room) {}
    std::unique_ptr<TrashCheck> newCheck() override { return std::make_unique<Check>(*this); }

    std::vector<std::string> asked;

  private:
    class Check final : public TrashCheck {
      public:
        explicit Check(FullTrash& trash)
            : m_trash(trash) {}
        Result<void> add(const std::string& path) override {
            m_trash.asked.push_back(path);
            if (m_trash.m_room-- > 0) return {};
            return Error{Error::Code::noSpace, "there is no room"};
        }

      private:
        FullTrash& m_trash;
    };

    std::vector<std::string> m_calls;
    int m_room;
};

/// What the Trash will refuse.
class FilesThatTheTrashRefuses : public DeletePlanTest {
  protected:
    DeletePlan planWith(FullTrash& trash, const Others& others = {}) {
        SurveySources sources = {m_files, libraryWith(others)};
        sources.trash = &trash;
        m_facts = {};
        return surveyFiles(SurveyedRows(m_list.rows), sources, m_facts, [] { return false; }).value();
    }

    DeleteConfirmationFacts m_facts;
};

TEST_F(FilesThatTheTrashRefuses, AreCountedApartAndSayWhy) {
    const TrackRecord& a = addFile("A", true, "a.mp3");
    const TrackRecord& b = addFile("B", true, "b.mp3");
    FullTrash trash(1);
    const DeletePlan plan = planWith(trash);
    EXPECT_EQ(plan.files.at(&a).refusal, "");
    EXPECT_EQ(plan.files.at(&b).refusal, "there is no room");
    EXPECT_EQ(m_facts.filesToTrash, 1);
    EXPECT_EQ(m_facts.bytesToTrash, 5);
    EXPECT_EQ(m_facts.refusedFiles, 1);
    EXPECT_EQ(m_facts.refusal, "there is no room");
}

TEST_F(FilesThatTheTrashRefuses, AreAskedAboutOnceAndOnlyIfTheyAreToGo) {
    addFile("A", true, "a.mp3");
    addFile("B", false, "b.mp3");
    add(1, "C", true, path("a.mp3"));
    add(1, "D", true, m_folder.path());
    add(1, "E", true, path("gone.mp3"));
    addFile("0", true, "without an ID.mp3");
    FullTrash trash(9);
    planWith(trash);
    EXPECT_THAT(trash.asked, ElementsAre(path("a.mp3")));
}

TEST_F(FilesThatTheTrashRefuses, LeaveTheRoomToThoseThatNobodyElseUses) {
    const TrackRecord& shared = addFile("A", true, "a.mp3");
    const TrackRecord& b = addFile("B", true, "b.mp3");
    FullTrash trash(1);
    const DeletePlan plan = planWith(trash, {{"X", path("a.mp3")}});
    EXPECT_EQ(plan.files.at(&b).refusal, "");
    EXPECT_EQ(plan.files.at(&shared).refusal, "there is no room");
}

TEST_F(FilesThatTheTrashRefuses, AreLookedForUntilTheSurveyIsStopped) {
    addFile("A", true, "a.mp3");
    FullTrash trash(9);
    SurveySources sources = {m_files};
    sources.trash = &trash;
    int asked = 0;
    const auto isStopped = [&] { return ++asked > 2; }; // the library, the file
    EXPECT_FALSE(surveyFiles(SurveyedRows(m_list.rows), sources, m_facts, isStopped));
    EXPECT_THAT(trash.asked, IsEmpty());
}

TEST_F(DeletePlanTest, TheFactsTellWhyTheLibraryWillNotBeWritten) {
    SurveySources sources = {m_files};
    sources.libraryForesight = [] { return Error{Error::Code::noPermission, "it is closed"}; };
    DeleteConfirmationFacts facts;
    EXPECT_TRUE(surveyFiles(SurveyedRows(m_list.rows), sources, facts, [] { return false; }));
    EXPECT_EQ(facts.libraryObstacle, "it is closed");
}

/// The copies that are to stay, looked at again.
class CopiesThatStay : public DeletePlanTest {
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
