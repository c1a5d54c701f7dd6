// SPDX-License-Identifier: MIT
// The course of a deletion: its start after the confirmation, its events, its end.
#include "app/ControllerFixture.h"

#include <QTimer>

#include <algorithm>
#include <array>

namespace songsweep::test {
namespace {

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
    int deletedTracks() const {
        const auto texts = iTunes.texts();
        return static_cast<int>(std::count_if(texts.begin(), texts.end(), [](const std::string& text) {
            return text.starts_with("tell application \"iTunes\" to delete");
        }));
    }
};

TEST_F(DeletionEventsTest, ACancelBeforeTheWorkerBeginsDeletesNothing) {
    addMarkedRows({1, 1, 2, 2});
    int idle = 0;
    controller->setIdleHandler([&] { ++idle; });
    controller->deleteButtonClick();
    controller->delConfOkButtonClick(false);
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

} // namespace
} // namespace songsweep::test
