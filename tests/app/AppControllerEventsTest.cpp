// SPDX-License-Identifier: MIT
#include "app/ControllerFixture.h"

namespace songsweep::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;

class AppControllerEventsTest : public ControllerFixture {
  protected:
    void SetUp() override { view.calls.clear(); }
    std::vector<std::string> handlerLines() const {
        std::vector<std::string> lines;
        for (const std::string& line : log.lines())
            if (line.starts_with("Handler : ")) lines.push_back(line);
        return lines;
    }
};

TEST_F(AppControllerEventsTest, BuildFinishShowsTheResultsInItsOrder) {
    addRows({1, 1, 2, 2});
    post(EventName::buildFinish);
    EXPECT_THAT(view.calls, ElementsAre("setTableVisible on", "reloadTable", "setDeleteEnabled off",
                                        "setStatusVisible on", "setMarkEnabled on", "setStatusText 4 songs",
                                        "setPerformLabelVisible off", "setHorizontalScroller on",
                                        "setSearchedText : everything"));
    EXPECT_THAT(handlerLines(), ElementsAre("Handler : buildFinish"));
    EXPECT_TRUE(records[0]->showid);
    EXPECT_FALSE(records[2]->showid);
}

TEST_F(AppControllerEventsTest, BuildFinishWithoutGroupsShowsTheEmptyTableAndThenTheAlert) {
    post(EventName::buildFinish);
    EXPECT_THAT(view.calls,
                ElementsAre("setTableVisible on", "reloadTable", "setDeleteEnabled off",
                            "setStatusVisible off", "setMarkEnabled off", "setPerformLabelVisible off",
                            "setHorizontalScroller on", "setSearchedText ", "alertNoDuplicates"));
}

TEST_F(AppControllerEventsTest, TheHorizontalScrollerComesOnceASearch) {
    addRows({1, 1});
    post(EventName::buildFinish);
    view.calls.clear();
    post(EventName::buildFinish);
    EXPECT_THAT(view.calls, Not(Contains("setHorizontalScroller on")));
}

TEST_F(AppControllerEventsTest, AddCancelShowsTheEmptyStateAndCountsTheRowsThere) {
    addRows({1, 1});
    post(EventName::addCancel);
    EXPECT_THAT(view.calls,
                ElementsAre("reloadTable", "setDeleteEnabled off", "setStatusVisible on", "setMarkEnabled on",
                            "setStatusText 2 songs", "setTableVisible off", "setPerformLabelVisible on"));
    EXPECT_EQ(controller->tableDataSource().rows.size(), 2U);
}

TEST_F(AppControllerEventsTest, CountingEventsMoveTheBar) {
    post(EventName::progressx, ProgressUnits{50});
    EXPECT_EQ(controller->progress().prc, 50);
    post(EventName::progress);
    post(EventName::deleteAddCount);
    TrackRecord record;
    post(EventName::step1, &record);
    EXPECT_EQ(controller->progress().prc, 53);
    EXPECT_TRUE(log.lines().size() == 1) << "counting events are not logged";
}

TEST_F(AppControllerEventsTest, AReadErrorIsToldAndNotLogged) {
    post(EventName::readError, std::make_shared<ReadError>(ReadError{3, "no end"}));
    EXPECT_THAT(view.calls, ElementsAre("tellReadError 3 no end"));
    EXPECT_THAT(handlerLines(), ElementsAre());
}

TEST_F(AppControllerEventsTest, XmlDoneParsingBeginsTheCheckOfMissingTracks) {
    post(EventName::progressx, ProgressUnits{500});
    post(EventName::xmlDoneParsing);
    EXPECT_EQ(controller->progress().prc, 0);
    EXPECT_EQ(controller->progress().progressBase, 50);
    EXPECT_EQ(controller->progress().progressSpan, 20);
    EXPECT_THAT(view.calls, ElementsAre("setProgressInfo Checking missing tracks..."));
    EXPECT_THAT(handlerLines(), ElementsAre("Handler : xmlDoneParsing"));
}

TEST_F(AppControllerEventsTest, AnXmlErrorFallsBackToITunes) {
    for (const EventName name : {EventName::xmlErrorParsing, EventName::xmlErrorProcessing}) {
        post(name);
        EXPECT_EQ(controller->progress().progressBase, 50);
        EXPECT_EQ(controller->progress().progressSpan, 40);
        runUntilIdle();
        EXPECT_THAT(log.lines(), Contains("Applescript Parsing"));
    }
}

TEST_F(AppControllerEventsTest, XmlErrorNotFoundLeavesTheBarsPlaceAlone) {
    post(EventName::progressx, ProgressUnits{500});
    post(EventName::xmlerrornotfound);
    EXPECT_EQ(controller->progress().prc, 0);
    EXPECT_EQ(controller->progress().progressBase, 0);
    EXPECT_EQ(controller->progress().progressSpan, 100);
    runUntilIdle();
    EXPECT_THAT(handlerLines(), Contains("Handler : xmlerrornotfound"));
    EXPECT_THAT(log.lines(), Contains("Applescript Parsing"));
}

TEST_F(AppControllerEventsTest, SpaceChecksAllWhereOneIsUncheckedAndUnchecksAllAfterwards) {
    addRows({1, 1, 1});
    records[0]->checkbox = true;
    view.selection = {0, 1};
    view.calls.clear();
    controller->tableviewSpacebar();
    EXPECT_TRUE(records[0]->checkbox);
    EXPECT_TRUE(records[1]->checkbox);
    EXPECT_FALSE(records[2]->checkbox);
    EXPECT_THAT(view.calls, ElementsAre("reloadTable")) << "the status line is not recomputed";
    controller->tableviewSpacebar();
    EXPECT_FALSE(records[0]->checkbox);
    EXPECT_FALSE(records[1]->checkbox);
}

TEST_F(AppControllerEventsTest, SpaceWithoutASelectionOnlyReloads) {
    addRows({1, 1});
    view.calls.clear();
    controller->tableviewSpacebar();
    EXPECT_FALSE(records[0]->checkbox);
    EXPECT_THAT(view.calls, ElementsAre("reloadTable"));
}

TEST_F(AppControllerEventsTest, TheStatusLineCountsTheMarkedRows) {
    addRows({1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1});
    for (int i = 0; i < 3; ++i)
        records[static_cast<std::size_t>(i)]->checkbox = true;
    view.calls.clear();
    controller->setStatusLabel();
    EXPECT_THAT(view.calls, ElementsAre("setDeleteEnabled on", "setStatusText 3 of 12 marked"));
    for (const auto& record : records)
        record->checkbox = false;
    view.calls.clear();
    controller->setStatusLabel();
    EXPECT_THAT(view.calls, ElementsAre("setDeleteEnabled off", "setStatusVisible on", "setMarkEnabled on",
                                        "setStatusText 12 songs"));
}

TEST_F(AppControllerEventsTest, DeleteFinishWithOneRowLeftOfEachGroupEmptiesTheResults) {
    addRows({1, 2, 3});
    post(EventName::deleteFinish);
    EXPECT_TRUE(controller->tableDataSource().rows.empty());
    EXPECT_THAT(view.calls, Contains("setStatusVisible off"));
}

TEST_F(AppControllerEventsTest, ASecondCloseOfTheProgressDisplayIsHarmless) {
    iTunes.version = "9.0";
    controller->paramOkButtonClick({});
    controller->cancelformButtonClick();
    runUntilIdle();
    post(EventName::buildFinish); // as of a worker that looked for a cancel before it came
    EXPECT_EQ(std::count(view.calls.begin(), view.calls.end(), "beginProgress formprogress"), 1);
    EXPECT_EQ(std::count(view.calls.begin(), view.calls.end(), "endProgress formprogress"), 1);
}

TEST_F(AppControllerEventsTest, WithATotalOfZeroTheBarStandsAtItsBase) {
    Progress progress;
    progress.beginPhase(70, 30);
    progress.prc = 5;
    EXPECT_EQ(progress.percent(), 70);
    progress.total = 10;
    EXPECT_EQ(progress.percent(), 85);
}

} // namespace
} // namespace songsweep::test
