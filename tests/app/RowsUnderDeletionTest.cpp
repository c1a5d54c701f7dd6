// SPDX-License-Identifier: MIT
// Rows while a deletion takes them out of the list, and after it took the last one.
#include "app/ControllerFixture.h"

#include <gmock/gmock.h>

#include <semaphore>

namespace songsweep::test {
namespace {

using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::Not;

class RowsUnderDeletionTest : public ControllerFixture {
  protected:
    void addMarkedRows(const std::vector<int>& groups) {
        addRows(groups);
        for (const auto& record : records) {
            record->checkbox = true;
            record->pid = "00A1";
            record->location = "/music/song.mp3";
        }
    }

    void beginDeletion() {
        controller->deleteButtonClick();
        controller->delConfOkButtonClick(false);
        ASSERT_TRUE(runEventLoopUntil([this] { return controller->isWorking(); }));
    }
};

TEST_F(RowsUnderDeletionTest, AnEmptiedListIsShownEmpty) {
    addMarkedRows({1, 1, 2, 2});
    beginDeletion();
    runUntilIdle();
    EXPECT_TRUE(controller->tableDataSource().rows.empty());
    EXPECT_EQ(view.calls.back(), "setMarkEnabled off");
    EXPECT_TRUE(view.has("reloadTable"));
}

TEST_F(RowsUnderDeletionTest, ARowThatIsNoLongerThereIsLeftAlone) {
    addMarkedRows({1, 1});
    view.selection = {1, 7};
    controller->markMenuClick(1);
    EXPECT_FALSE(records[1]->checkbox);
    controller->tableviewSpacebar();
    EXPECT_TRUE(records[1]->checkbox);
    view.selection = {7};
    controller->setObjectValue(true, Column::checkbox, 7);
    controller->tableviewDoubleClick();
    controller->showinFinderMenuClick();
    EXPECT_THAT(iTunes.texts(), Not(Contains(HasSubstr("play"))));
    EXPECT_TRUE(desktop.calls.empty());
}

TEST_F(RowsUnderDeletionTest, NoRowIsPlayedOrShownWhileACancelledDeletionEnds) {
    std::binary_semaphore deleting{0};
    std::binary_semaphore mayGoOn{0};
    iTunes.onScript = [&](const std::string& text) {
        if (text.find("to delete") == std::string::npos) return;
        deleting.release();
        mayGoOn.acquire();
    };
    addMarkedRows({1, 1, 2, 2});
    view.selection = {0};
    beginDeletion();
    deleting.acquire();
    controller->cancelButtonClick();
    controller->tableviewDoubleClick();
    controller->showinFinderMenuClick();
    EXPECT_TRUE(desktop.calls.empty());
    EXPECT_THAT(iTunes.texts(), Not(Contains(HasSubstr("play \""))));
    mayGoOn.release();
    runUntilIdle();
    controller->showinFinderMenuClick();
    EXPECT_EQ(desktop.calls, std::vector<std::string>{"show /music/song.mp3"});
}

} // namespace
} // namespace songsweep::test
