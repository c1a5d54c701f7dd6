// SPDX-License-Identifier: MIT
#include "app/ProgressDisplay.h"

#include "app/RecordingView.h"
#include "support/EventLoop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace songsweep::test {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ProgressDisplayTest : public ::testing::Test {
  protected:
    RecordingView view;
    ProgressDisplay display{view.views().progress, view.views().formprogress};
};

TEST_F(ProgressDisplayTest, ShowingOneBarPutsBothBackToNothing) {
    display.progress().total = 4;
    display.count(3);
    display.showProgressWindow(ProgressBar::formprogress);
    EXPECT_THAT(view.calls, ElementsAre("beginProgress formprogress"));
    EXPECT_THAT(view.progressValues, ElementsAre(0));
    EXPECT_THAT(view.formprogressValues, ElementsAre(0));
}

TEST_F(ProgressDisplayTest, TheTimerAloneRedrawsAndBothBarsAlike) {
    display.showProgressWindow(ProgressBar::progress);
    view.progressValues.clear();
    display.progress().total = 200;
    for (int units = 0; units < 100; ++units)
        display.count(1);
    EXPECT_THAT(view.progressValues, IsEmpty());
    ASSERT_TRUE(runEventLoopUntil([this] { return view.progressValues.size() == 2; }));
    EXPECT_THAT(view.progressValues, Each(50));
    EXPECT_THAT(view.formprogressValues, ElementsAre(0, 50, 50));
}

TEST_F(ProgressDisplayTest, OnlyTheBarThatIsShownCanBeClosed) {
    display.showProgressWindow(ProgressBar::progress);
    display.closeProgressWindow(ProgressBar::formprogress);
    EXPECT_THAT(view.calls, ElementsAre("beginProgress progress"));
    display.closeProgressWindow(ProgressBar::progress);
    display.closeProgressWindow(ProgressBar::progress);
    EXPECT_THAT(view.calls, ElementsAre("beginProgress progress", "endProgress progress"));
}

} // namespace
} // namespace songsweep::test
