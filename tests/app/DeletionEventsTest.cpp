// SPDX-License-Identifier: MIT
// The course of a deletion: its start after the confirmation, its events, its end.
#include "app/ControllerFixture.h"

#include <QTimer>

#include <algorithm>
#include <array>
#include <semaphore>

namespace songsweep::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

class DeletionEventsTest : public ControllerFixture {
  protected:
    /// Rows of the given groups, the first of each group marked.
    void addMarkedRows(const std::vector<int>& groups) {
        addRows(groups);
        constexpr std::array pids = {"A0", "A1", "A2", "A3", "A4", "A5", "A6", "A7"};
        for (std::size_t row = 0; row < groups.size(); ++row) {
            records[row]->pid = pids.at(row);
            records[row]->checkbox = row == 0 || groups[row] != groups[row - 1];
        }
        view.calls.clear();
    }
    void confirm() {
        controller->deleteButtonClick();
        controller->delConfOkButtonClick(false);
    }
    /// Begins the deletion and stops its worker at the first track, until `goOn` is called.
    void beginAndHold() {
        iTunes.onScript = [this](const std::string& text) {
            if (!isDeletion(text)) return;
            m_deleting.release();
            m_mayGoOn.acquire();
        };
        confirm();
        controller->beginDelete();
        m_deleting.acquire();
    }
    void goOn() { m_mayGoOn.release(records.size()); }

    static bool isDeletion(const std::string& text) {
        return text.starts_with("tell application \"iTunes\" to delete");
    }
    int deletedTracks() const {
        const auto texts = iTunes.texts();
        return static_cast<int>(std::count_if(texts.begin(), texts.end(), isDeletion));
    }
    std::vector<TrackRecord*> rows() const { return controller->tableDataSource().rows; }
    std::vector<bool> marks() const {
        std::vector<bool> marks;
        for (const auto& record : records)
            marks.push_back(record->checkbox);
        return marks;
    }

    /// Everything that would search or change marks and order.
    void trySearchingAndMarking() {
        view.selection = {0, 1};
        controller->startButtonClick();
        controller->paramOkButtonClick({});
        controller->markOkButtonClick({.markType = MarkType::highestBitrate, .exceptOne = true, .text = {}});
        controller->markNone();
        for (const int tag : {0, 1, 2, 3})
            controller->markMenuClick(tag);
        controller->setObjectValue(true, Column::checkbox, 1);
        controller->tableviewSpacebar();
        controller->didClickTableColumn(Column::name);
        EXPECT_FALSE(controller->resetForLibrary());
    }

  private:
    std::counting_semaphore<> m_deleting{0};
    std::counting_semaphore<> m_mayGoOn{0};
};

TEST_F(DeletionEventsTest, ACancelBeforeTheWorkerBeginsDeletesNothing) {
    addMarkedRows({1, 1, 2, 2});
    int idle = 0;
    controller->setIdleHandler([&] { ++idle; });
    confirm();
    controller->cancelButtonClick();
    EXPECT_FALSE(controller->isDeleting());
    bool isLater = false; // than the delay before a worker begins
    QTimer::singleShot(300, [&] { isLater = true; });
    ASSERT_TRUE(runEventLoopUntil([&] { return isLater; }));
    EXPECT_EQ(idle, 1);
    EXPECT_EQ(deletedTracks(), 0);
    EXPECT_EQ(controller->getCheckedCount(), 2);
    EXPECT_EQ(controller->lastDeleteReport(), nullptr);
}

TEST_F(DeletionEventsTest, ADeletionThatCouldNotBeWrittenDoesNotBegin) {
    addMarkedRows({1, 1, 2, 2});
    const auto rowsBefore = rows();
    cleanup.mayBegin = Error{Error::Code::noPermission, "the folder is closed"};
    confirm();
    view.calls.clear();
    controller->beginDelete();
    runUntilIdle();
    EXPECT_FALSE(controller->isDeleting());
    EXPECT_TRUE(view.has("alertCantBeginDelete the folder is closed"));
    EXPECT_TRUE(view.has("endProgress progress"));
    EXPECT_EQ(deletedTracks(), 0);
    EXPECT_EQ(rows(), rowsBefore);
    EXPECT_EQ(controller->getCheckedCount(), 2);
    ASSERT_NE(controller->lastDeleteReport(), nullptr);
    EXPECT_EQ(controller->lastDeleteReport()->notBegun, "the folder is closed");

    cleanup.mayBegin = {};
    confirm();
    controller->beginDelete();
    runUntilIdle();
    EXPECT_EQ(deletedTracks(), 2);
}

TEST_F(DeletionEventsTest, ADeletionThatCannotBeWrittenEndsAsACancelledOneAndSaysSo) {
    addMarkedRows({1, 1});
    cleanup.canWrite = Error{Error::Code::noSpace, "the disk is full"};
    confirm();
    view.calls.clear();
    controller->beginDelete();
    runUntilIdle();
    EXPECT_TRUE(view.has("alertCantGoOnDeleting the disk is full"));
    EXPECT_TRUE(view.has("endProgress progress"));
    EXPECT_FALSE(view.has("alertCantBeginDelete the disk is full"));
    EXPECT_FALSE(controller->isDeleting());
}

TEST_F(DeletionEventsTest, ITunesIsStoppedBeforeTheDelay) {
    addMarkedRows({1, 1});
    confirm();
    EXPECT_THAT(iTunes.texts(), ElementsAre("tell application \"iTunes\" to stop"));
    EXPECT_FALSE(controller->isWorking());
    EXPECT_FALSE(view.has("beginProgress progress"));
}

TEST_F(DeletionEventsTest, TheBarHasOnePhaseFromNothingToEveryMarkedTrack) {
    post(EventName::xmlDoneParsing); // leaves another phase behind
    addMarkedRows({1, 1, 2, 2});
    confirm();
    view.calls.clear();
    controller->beginDelete();
    EXPECT_EQ(controller->progress().progressBase, 0);
    EXPECT_EQ(controller->progress().progressSpan, 100);
    EXPECT_EQ(controller->progress().prc, 0);
    EXPECT_EQ(controller->progress().total, 2);
    EXPECT_THAT(view.calls, ElementsAre("setProgressTitle Deleting...", "beginProgress progress"));
    runUntilIdle();
    EXPECT_EQ(controller->progress().percent(), 100);
    EXPECT_TRUE(view.has("endProgress progress"));
}

TEST_F(DeletionEventsTest, ACancelledDeletionPrunesTheGroupsToo) {
    addMarkedRows({1, 1, 2, 2});
    beginAndHold();
    controller->cancelButtonClick();
    EXPECT_TRUE(view.has("endProgress progress"));
    view.calls.clear();
    goOn();
    runUntilIdle();
    EXPECT_THAT(rows(), ElementsAre(records[2].get(), records[3].get()));
    EXPECT_THAT(view.calls, ElementsAre("reloadTable", "setDeleteEnabled on", "setStatusText 1 of 2 marked"));
    EXPECT_FALSE(controller->isDeleting());
}

TEST_F(DeletionEventsTest, TheBandsBeginAnewAfterADeletion) {
    addMarkedRows({1, 1, 2, 2, 3, 3});
    for (const std::size_t row : {2, 4})
        records[row]->checkbox = false;
    post(EventName::buildFinish);
    ASSERT_FALSE(records[2]->showid);
    ASSERT_TRUE(records[4]->showid);
    confirm();
    controller->beginDelete();
    runUntilIdle();
    ASSERT_EQ(rows().size(), 4U);
    EXPECT_TRUE(records[2]->showid && records[3]->showid);
    EXPECT_FALSE(records[4]->showid || records[5]->showid);
}

TEST_F(DeletionEventsTest, SearchAndMarkingDoNothingWhileADeletionRuns) {
    addMarkedRows({1, 1, 2, 2});
    beginAndHold();
    view.calls.clear();
    const std::vector<bool> marksBefore = marks();
    const std::size_t textsBefore = iTunes.texts().size();
    trySearchingAndMarking();
    EXPECT_THAT(view.calls, IsEmpty());
    EXPECT_EQ(marks(), marksBefore);
    EXPECT_EQ(iTunes.texts().size(), textsBefore);
    goOn();
    runUntilIdle();
    EXPECT_EQ(deletedTracks(), 2);
}

TEST_F(DeletionEventsTest, SearchAndMarkingDoNothingWhileADeletionIsConfirmedAndDelayed) {
    addMarkedRows({1, 1, 2, 2});
    const std::vector<bool> marksBefore = marks();
    controller->deleteButtonClick();
    view.calls.clear();
    trySearchingAndMarking();
    EXPECT_THAT(view.calls, IsEmpty());
    controller->delConfOkButtonClick(false);
    view.calls.clear();
    trySearchingAndMarking();
    EXPECT_THAT(view.calls, IsEmpty());
    EXPECT_EQ(marks(), marksBefore);
    EXPECT_THAT(iTunes.texts(), ElementsAre("tell application \"iTunes\" to stop"));
}

TEST_F(DeletionEventsTest, TheProgressDisplayOfACancelledDeletionIsClosedOnce) {
    addMarkedRows({1, 1});
    confirm();
    controller->beginDelete();
    controller->cancelButtonClick();
    runUntilIdle();
    post(EventName::deleteFinish); // as a worker that looked for a cancel before it came
    EXPECT_EQ(std::count(view.calls.begin(), view.calls.end(), "beginProgress progress"), 1);
    EXPECT_EQ(std::count(view.calls.begin(), view.calls.end(), "endProgress progress"), 1);
}

} // namespace
} // namespace songsweep::test
