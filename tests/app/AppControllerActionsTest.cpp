// SPDX-License-Identifier: MIT
// What a user does with results and menus: marking, playing, showing, reopening, links.
#include "app/ControllerFixture.h"
#include "dupes/MarkingRules.h"

namespace songsweep::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class AppControllerActionsTest : public ControllerFixture {
  protected:
    void SetUp() override { view.calls.clear(); }

    void addFiles(const std::vector<const char*>& paths) {
        for (const char* path : paths) {
            addRows({1});
            records.back()->location = path;
        }
        view.calls.clear();
    }
};

TEST_F(AppControllerActionsTest, TheMarkDialogListsTheKindsOfItsFirstOpeningAlone) {
    addFiles({"/music/song.mp3", "/music/a.m4a", "/music/b.MP3"});
    controller->markButtonClick();
    EXPECT_THAT(view.calls, ElementsAre("fillKinds MP3 M4A", "showMarkWindow"));
    addFiles({"/music/c.wav"});
    controller->markButtonClick();
    EXPECT_THAT(view.calls, ElementsAre("showMarkWindow"));
}

TEST_F(AppControllerActionsTest, SmallDifferencesAreToldOfASearchThatAllowsThem) {
    addFiles({"/music/a.mp3", "/music/b.mp3"});
    const std::vector<TrackRecord*> copies = controller->tableDataSource().rows;
    copies[0]->name = copies[1]->name = "Song";
    copies[0]->gid = copies[1]->gid = 1;
    copies[0]->timev = 180;
    copies[1]->timev = 181;
    EXPECT_THAT(controller->differences(copies), ElementsAre("", ""));
    controller->paramOkButtonClick({.issamename = true, .issametime = true, .issimilar = true});
    EXPECT_THAT(controller->differences(copies), ElementsAre("", "1 s longer"));
}

TEST_F(AppControllerActionsTest, MarkingWithoutResultsLogsAndChangesNothing) {
    const std::size_t lines = log.lines().size();
    controller->markOkButtonClick({MarkType::latestAdded, true, ""});
    EXPECT_THAT(view.calls, IsEmpty());
    EXPECT_EQ(log.lines().size(), lines);
}

TEST_F(AppControllerActionsTest, ARuleIsLoggedByItsNumberAndItsDialogStaysOpen) {
    addRows({1, 1});
    records[0]->dateaddedv = 100;
    records[1]->dateaddedv = 200;
    view.calls.clear();
    controller->markOkButtonClick({MarkType::latestAdded, true, ""});
    EXPECT_EQ(log.lines().back(), "markTyp = 7");
    EXPECT_TRUE(records[0]->checkbox);
    EXPECT_FALSE(records[1]->checkbox);
    EXPECT_THAT(view.calls, ElementsAre("reloadTable", "setDeleteEnabled on", "setStatusText 1 of 2 marked"));
}

TEST_F(AppControllerActionsTest, UnmarkingNothingSelectedStillReloadsAndRefreshes) {
    addRows({1, 1});
    records[0]->checkbox = true;
    view.calls.clear();
    controller->markMenuClick(1);
    EXPECT_TRUE(records[0]->checkbox);
    EXPECT_THAT(view.calls, ElementsAre("reloadTable", "setDeleteEnabled on", "setStatusText 1 of 2 marked"));
}

TEST_F(AppControllerActionsTest, TheMarkCommandsSetTheSelectedRowsOrAll) {
    addRows({1, 1, 1});
    const auto marks = [this] {
        std::string text;
        for (const auto& record : records)
            text += record->checkbox ? 'x' : '-';
        return text;
    };
    view.selection = {0, 2};
    controller->markMenuClick(0);
    EXPECT_EQ(marks(), "x-x");
    view.selection = {2};
    controller->markMenuClick(1);
    EXPECT_EQ(marks(), "x--");
    controller->markMenuClick(2);
    EXPECT_EQ(marks(), "xxx");
    controller->markMenuClick(3);
    EXPECT_EQ(marks(), "---");
}

TEST_F(AppControllerActionsTest, MarkNoneUnmarksEveryTrack) {
    addRows({1, 1});
    records[0]->checkbox = records[1]->checkbox = true;
    view.calls.clear();
    controller->markNone();
    EXPECT_EQ(controller->getCheckedCount(), 0);
    EXPECT_THAT(view.calls, ElementsAre("reloadTable", "setDeleteEnabled off", "setStatusVisible on",
                                        "setMarkEnabled on", "setStatusText 2 songs"));
}

TEST_F(AppControllerActionsTest, TheRuleOfTheMarksIsForgottenWhereItNoLongerExplainsThem) {
    addRows({1, 1, 2, 2});
    view.selection = {0};
    const auto isKnownAfter = [this](const std::function<void()>& act) {
        controller->markOkButtonClick({MarkType::latestAdded, true, ""});
        EXPECT_TRUE(controller->lastMarkChoice().has_value());
        act();
        return controller->lastMarkChoice().has_value();
    };
    EXPECT_FALSE(isKnownAfter([this] { controller->didClickTableColumn(Column::name); }));
    EXPECT_FALSE(isKnownAfter([this] { controller->setObjectValue(true, Column::checkbox, 1); }));
    EXPECT_FALSE(isKnownAfter([this] { controller->tableviewSpacebar(); }));
    EXPECT_FALSE(isKnownAfter([this] { controller->markMenuClick(0); }));
    EXPECT_FALSE(isKnownAfter([this] { controller->markNone(); }));
    EXPECT_FALSE(isKnownAfter([this] { post(EventName::deleteValidity); }));
    EXPECT_FALSE(isKnownAfter([this] { controller->resetForLibrary(); }));
}

TEST_F(AppControllerActionsTest, MarksAreUndoneAndDoneAgain) {
    addRows({1, 1, 2, 2});
    controller->markMenuClick(2);
    controller->markNone();
    controller->undoMarks();
    EXPECT_EQ(controller->getCheckedCount(), 4);
    EXPECT_EQ(controller->marksByHand(), 4);
    controller->undoMarks();
    controller->undoMarks();
    EXPECT_EQ(controller->getCheckedCount(), 0);
    view.calls.clear();
    controller->redoMarks();
    EXPECT_EQ(controller->getCheckedCount(), 4);
    EXPECT_TRUE(view.has("setStatusText 4 of 4 marked"));
    controller->setObjectValue(false, Column::checkbox, 1);
    controller->redoMarks();
    EXPECT_EQ(controller->getCheckedCount(), 3) << "what was taken back is forgotten";
}

TEST_F(AppControllerActionsTest, ReasonsSurviveSortingAndMarksByHand) {
    addRows({1, 1});
    records[0]->dateaddedv = 1;
    records[1]->dateaddedv = 2;
    EXPECT_EQ(controller->markReason(*records[0]), "");
    controller->markOkButtonClick({MarkType::latestAdded, true, ""});
    const std::string reason = controller->markReason(*records[0]);
    EXPECT_FALSE(reason.empty());
    EXPECT_EQ(controller->marksByHand(), 0);
    controller->didClickTableColumn(Column::dateadded);
    controller->setObjectValue(true, Column::checkbox, 1);
    EXPECT_EQ(controller->markReason(*records[0]), reason);
    EXPECT_EQ(controller->markReason(*records[1]), "marked by hand");
    EXPECT_EQ(controller->marksByHand(), 1);
    controller->resetForLibrary();
    EXPECT_EQ(controller->markReason(*records[0]), "");
}

TEST_F(AppControllerActionsTest, WhatChangesNoMarkKeepsItsRule) {
    addRows({1, 1});
    controller->markOkButtonClick({MarkType::latestAdded, true, ""});
    controller->tableviewSpacebar(); // nothing is selected
    controller->setObjectValue(true, Column::name, 0);
    controller->setStatusLabel();
    EXPECT_TRUE(controller->lastMarkChoice().has_value());
}

TEST_F(AppControllerActionsTest, ChoosingAFolderIsLogged) {
    controller->markFolderButtonClick();
    EXPECT_EQ(log.lines().back(), "Select mark folder");
    EXPECT_THAT(view.calls, ElementsAre("chooseMarkFolder"));
}

TEST_F(AppControllerActionsTest, CancelOfTheMarkDialogOnlyHidesIt) {
    controller->markCancelButtonClick();
    EXPECT_THAT(view.calls, ElementsAre("closeMarkWindow"));
}

TEST_F(AppControllerActionsTest, ADoubleClickWithoutASelectedRowDoesNothing) {
    addFiles({"/music/a.mp3"});
    controller->tableviewDoubleClick();
    controller->playMenuClick();
    controller->showinFinderMenuClick();
    EXPECT_THAT(iTunes.texts(), IsEmpty());
    EXPECT_THAT(desktop.calls, IsEmpty());
}

TEST_F(AppControllerActionsTest, ADoubleClickAndThePlayCommandPlayTheSelectedRow) {
    addFiles({"/music/a.mp3", "/music/b.mp3"});
    view.selection = {1};
    controller->tableviewDoubleClick();
    const std::string script = "tell application \"iTunes\" \nplay \"Macintosh HD:music:b.mp3\" \nend tell";
    EXPECT_THAT(iTunes.texts(), ElementsAre(script));
    controller->playMenuClick();
    EXPECT_THAT(iTunes.texts(), ElementsAre(script, script));
}

TEST_F(AppControllerActionsTest, AnErrorOfThePlayScriptIsNotLookedAt) {
    addFiles({"/music/a.mp3"});
    view.selection = {0};
    iTunes.fails = [](const std::string&) { return true; };
    controller->tableviewDoubleClick();
    EXPECT_THAT(view.calls, IsEmpty());
}

TEST_F(AppControllerActionsTest, TheSelectedRowIsShownInTheFileManager) {
    addFiles({"/music/a.mp3", "/music/b.mp3"});
    view.selection = {0};
    controller->showinFinderMenuClick();
    EXPECT_THAT(desktop.calls, ElementsAre("show /music/a.mp3"));
}

TEST_F(AppControllerActionsTest, ReopeningBringsTheMainWindowOnlyWhereNoneIsToBeSeen) {
    EXPECT_TRUE(controller->applicationShouldHandleReopen(true));
    EXPECT_THAT(view.calls, IsEmpty());
    EXPECT_FALSE(controller->applicationShouldHandleReopen(false));
    EXPECT_THAT(view.calls, ElementsAre("showMainWindow"));
}

TEST_F(AppControllerActionsTest, TheLinksOpenTheirAddresses) {
    controller->websiteButtonClick();
    controller->helpButtonClick();
    controller->contactButtonClick();
    ASSERT_EQ(desktop.calls.size(), 3U);
    EXPECT_THAT(desktop.calls[0], ::testing::MatchesRegex("openUrl https://[a-z.]+/"));
    EXPECT_EQ(desktop.calls[1], desktop.calls[0] + "help.php");
    EXPECT_THAT(desktop.calls[2], ::testing::EndsWith("/contact.php?id=songsweep"));
}

TEST_F(AppControllerActionsTest, TheGuideIsTheOneThatCameWithTheProgramOrThatOfTheNet) {
    controller->guideMenuClick();
    ControllerServices withGuide = services(files);
    withGuide.guide = [] { return std::string("/usr/share/doc/songsweep/user guide.html"); };
    controller = std::make_unique<AppController>(std::move(withGuide), view.views());
    controller->guideMenuClick();
    ASSERT_EQ(desktop.calls.size(), 2U);
    EXPECT_THAT(desktop.calls[0], ::testing::EndsWith("/help.php"));
    EXPECT_EQ(desktop.calls[1], "openUrl file:///usr/share/doc/songsweep/user%20guide.html");
}

} // namespace
} // namespace songsweep::test
