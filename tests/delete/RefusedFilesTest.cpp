// SPDX-License-Identifier: MIT
#include "delete/RefusedFiles.h"

#include "delete/DeletePlanFixture.h"
#include "support/RecordingTrash.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace songsweep {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

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
class FilesThatTheTrashRefuses : public test::DeletePlanFixture {
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

} // namespace
} // namespace songsweep
