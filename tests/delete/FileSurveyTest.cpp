// SPDX-License-Identifier: MIT
#include "delete/FileSurvey.h"

#include "delete/Cleanup.h"
#include "library/WorkerEvent.h"
#include "operations/NotificationCenter.h"
#include "platform/Files.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace songsweep {
namespace {

using testing::UnorderedElementsAre;

/// A clean-up that somebody else may keep from locking the library.
struct LockNotingCleanup final : Cleanup {
    Result<void> lock() override {
        if (isBusy) return Error{Error::Code::busy, "another Songsweep is cleaning up"};
        isLocked = true;
        return {};
    }

    bool isBusy = false;
    bool isLocked = false;
};

/// Two copies of a song with files of their own, of which the first is marked.
class FileSurveyTest : public testing::Test {
  protected:
    FileSurveyTest() {
        m_list.storage = std::make_shared<TrackStorage>();
        for (const char* const name : {"a.mp3", "b.mp3"}) {
            TrackRecord& record = m_list.storage->makeRecord();
            record.pid = m_list.storage->store(name);
            record.location = m_list.storage->store(m_folder.write(name, "sound"));
            m_list.rows.push_back(&record);
        }
        m_list.rows.front()->checkbox = true;
        m_center.setObserver([this](const WorkerEvent& event) {
            EXPECT_EQ(event.name, EventName::surveyDone);
            m_serial = event.sender->serial();
            m_answer = std::get<std::shared_ptr<SurveyAnswer>>(event.payload);
        });
    }

    std::unique_ptr<FileSurvey> survey(const LibraryLocations& locations = {}) {
        return std::make_unique<FileSurvey>(m_list, std::make_shared<std::mutex>(),
                                            DeleteConfirmationFacts{.tracks = 7, .filesPending = true},
                                            SurveySources{m_files, locations}, m_cleanup, m_center);
    }

    test::TemporaryFolder m_folder;
    Files m_files;
    LockNotingCleanup m_cleanup;
    DisplayedList m_list;
    NotificationCenter<WorkerEvent> m_center;
    std::uint64_t m_serial = 0;
    std::shared_ptr<SurveyAnswer> m_answer;
};

TEST_F(FileSurveyTest, AnswersWithThePlanAndTheCompletedFacts) {
    const auto made = survey();
    made->main();
    ASSERT_TRUE(m_answer);
    EXPECT_EQ(m_serial, made->serial());
    EXPECT_EQ(m_answer->facts, (DeleteConfirmationFacts{.tracks = 7, .filesToTrash = 1, .bytesToTrash = 5}));
    EXPECT_EQ(m_answer->plan.files.size(), 1U);
}

TEST_F(FileSurveyTest, CountsWhatCopiesThatStayAreToBeGivenWhereThatIsOffered) {
    const auto planned = [](const SongsToMerge& songs, const MergeChoice& choice) -> Result<MergePlan> {
        EXPECT_EQ(songs.songs.size(), 1U);
        EXPECT_TRUE(choice.places && choice.history && choice.fillIns);
        MergePlan plan;
        plan.counts.places = 3;
        return plan;
    };
    for (const bool isOffered : {true, false}) {
        SurveySources sources{m_files};
        sources.planMerge = planned;
        FileSurvey(m_list, std::make_shared<std::mutex>(), {.mergeOffered = isOffered}, sources, m_cleanup,
                   m_center)
            .main();
        EXPECT_EQ(m_answer->facts.merge, isOffered ? std::optional(MergeCounts{.places = 3}) : std::nullopt);
    }
}

TEST_F(FileSurveyTest, OffersNoMergeWhereTheLibraryCannotBeRead) {
    SurveySources sources{m_files};
    sources.planMerge = [](const SongsToMerge&, const MergeChoice&) -> Result<MergePlan> {
        return Error{Error::Code::notFound, "there is no such file"};
    };
    FileSurvey(m_list, std::make_shared<std::mutex>(), {.mergeOffered = true}, sources, m_cleanup, m_center)
        .main();
    EXPECT_FALSE(m_answer->facts.mergeOffered);
}

TEST_F(FileSurveyTest, LocksTheLibraryForTheDeletionThatMayFollow) {
    bool wasLocked = false;
    survey([&](const LocationVisitor&) {
        wasLocked = m_cleanup.isLocked;
        return true;
    })->main();
    EXPECT_TRUE(wasLocked && m_cleanup.isLocked);
}

TEST_F(FileSurveyTest, TellsWhoElseIsAtTheLibrary) {
    m_cleanup.isBusy = true;
    survey()->main();
    EXPECT_EQ(m_answer->facts.libraryObstacle, "another Songsweep is cleaning up");
    EXPECT_TRUE(m_answer->facts.libraryInUse);
}

TEST_F(FileSurveyTest, SaysNothingOnceItIsCancelled) {
    const auto made = survey();
    made->cancel();
    made->main();
    EXPECT_FALSE(m_answer);
}

TEST_F(FileSurveyTest, StopsVisitingTheLibraryOnceItIsCancelled) {
    FileSurvey* running = nullptr;
    bool wantsMore = true;
    const auto made = survey([&](const LocationVisitor& visit) {
        running->cancel();
        wantsMore = visit("X", "/x.mp3");
        return true;
    });
    running = made.get();
    made->main();
    EXPECT_FALSE(wantsMore);
    EXPECT_FALSE(m_answer);
}

TEST_F(FileSurveyTest, IsOfTheMarksAsTheyWereWhenItReadThemAndKeepsTheirTexts) {
    const TrackRecord* const marked = m_list.rows.front();
    const std::string shared = marked->location.string();
    const auto made = survey([&](const LocationVisitor& visit) {
        m_list.rows.front()->checkbox = false;
        m_list = {};
        return visit("X", shared);
    });
    made->main();
    ASSERT_TRUE(m_answer);
    EXPECT_THAT(m_answer->plan.shared, UnorderedElementsAre(marked));
}

} // namespace
} // namespace songsweep
