// SPDX-License-Identifier: MIT
#include "app/ControllerFixture.h"

#include <algorithm>

namespace songsweep::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;

class AppControllerSearchTest : public ControllerFixture {
  protected:
    void SetUp() override { view.calls.clear(); }

    void addTracks(int count) {
        for (int i = 0; i < count; ++i) {
            FakeTrack track;
            track.pid = std::to_string(i);
            track.name = "Song " + std::to_string(i / 2);
            iTunes.tracks.push_back(track);
        }
    }
    static SearchParameters sameNameAndArtist() {
        SearchParameters choices;
        choices.issamename = true;
        choices.issameartist = true;
        choices.playlist = "Library";
        return choices;
    }
    /// A search to its end.
    void searchIn(const std::string& playlist) {
        SearchParameters choices = sameNameAndArtist();
        choices.playlist = playlist;
        controller->paramOkButtonClick(choices);
        runUntilIdle();
    }
    void failTexts(const std::string& part) {
        iTunes.fails = [part](const std::string& text) { return text.find(part) != std::string::npos; };
    }
};

TEST_F(AppControllerSearchTest, TheDialogAsksForThePlaylistsOnce) {
    iTunes.playlists = {"Library", "Party"};
    controller->startButtonClick();
    EXPECT_THAT(view.calls, ElementsAre("addPlaylist Library", "addPlaylist Library", "addPlaylist Party",
                                        "selectPlaylist 0", "showParamWindow"));
    const std::size_t asked = iTunes.texts().size();
    view.calls.clear();
    controller->startButtonClick();
    EXPECT_THAT(view.calls, ElementsAre("showParamWindow"));
    EXPECT_EQ(iTunes.texts().size(), asked);
}

TEST_F(AppControllerSearchTest, TheDialogListsAPlaylistThatIsTheOnlyOneOnce) {
    iTunes.fails = [](const std::string& text) { return text.find("whose smart") != std::string::npos; };
    iTunes.playlists = {"Library"};
    controller->startButtonClick();
    const auto listed = std::count(view.calls.begin(), view.calls.end(), "addPlaylist Library");
    controller->startButtonClick();
    EXPECT_EQ(std::count(view.calls.begin(), view.calls.end(), "addPlaylist Library"), listed);
}

TEST_F(AppControllerSearchTest, CancelOnlyClosesTheDialog) {
    controller->paramCancelButtonClick();
    EXPECT_THAT(view.calls, ElementsAre("closeParamWindow"));
    EXPECT_TRUE(iTunes.texts().empty());
}

TEST_F(AppControllerSearchTest, AVersionBefore10ReadsByAppleScript) {
    iTunes.version = "9.2.1";
    addTracks(4);
    controller->paramOkButtonClick(sameNameAndArtist());
    EXPECT_EQ(controller->progress().progressSpan, 90);
    EXPECT_EQ(controller->progress().total, 4);
    runUntilIdle();
    EXPECT_THAT(log.lines(), Contains("Applescript Parsing"));
    EXPECT_THAT(log.lines(), Not(Contains("XML Parsing")));
    EXPECT_EQ(controller->progress().progressBase, 90);
    EXPECT_EQ(controller->progress().progressSpan, 10);
    EXPECT_EQ(controller->tableDataSource().rows.size(), 4U);
}

TEST_F(AppControllerSearchTest, AVersionFrom10ReadsTheLibraryFile) {
    iTunes.version = "10.0";
    controller->paramOkButtonClick(sameNameAndArtist());
    EXPECT_EQ(controller->progress().progressSpan, 50);
    runUntilIdle();
    EXPECT_THAT(log.lines(), Contains("XML Parsing"));
}

TEST_F(AppControllerSearchTest, AVersionWithoutAPointIsReadWhole) {
    iTunes.version = "12";
    controller->paramOkButtonClick(sameNameAndArtist());
    EXPECT_EQ(controller->progress().progressSpan, 50);
    runUntilIdle();
}

TEST_F(AppControllerSearchTest, AFailedVersionReadsByAppleScript) {
    failTexts("get version");
    controller->paramOkButtonClick(sameNameAndArtist());
    EXPECT_EQ(controller->progress().progressSpan, 90);
    runUntilIdle();
    EXPECT_THAT(log.lines(), Contains("Error occured"));
}

TEST_F(AppControllerSearchTest, TheStartGoesThroughItsStepsInOrder) {
    iTunes.version = "9.0";
    controller->paramOkButtonClick(sameNameAndArtist());
    EXPECT_THAT(view.calls,
                ElementsAre("closeParamWindow", "reloadTable", "setHorizontalScroller off",
                            "setTableVisible off", "setPerformLabelVisible off",
                            "setProgressTitle Searching...", "setDeleteEnabled off", "setStatusVisible off",
                            "setMarkEnabled off", "setStatusText ", "setSearchedText ",
                            "beginProgress formprogress", "setProgressInfo Searching..."));
    runUntilIdle();
}

TEST_F(AppControllerSearchTest, AnUnreachableITunesGivesTheAlertAndChangesNothingElse) {
    addRows({1, 1});
    failTexts("count of tracks of playlist 1");
    view.calls.clear();
    controller->paramOkButtonClick(sameNameAndArtist());
    EXPECT_THAT(
        view.calls,
        ElementsAre("closeParamWindow",
                    "alertCantAccess Can't access iTunes. If there is a dialog window (eg. update "
                    "notification, song info, preferences) showing on iTunes, please close it first.|line "
                    "3: no end"));
    EXPECT_EQ(controller->tableDataSource().rows.size(), 2U);
    EXPECT_FALSE(controller->isWorking());
    EXPECT_THAT(log.lines(), Contains("Location: Library"));
}

TEST_F(AppControllerSearchTest, TheAlertSpeaksOfThePlayerThatIsThere) {
    ControllerServices services = this->services(files);
    services.playerName = [] { return std::string("Music"); };
    controller = std::make_unique<AppController>(services, view.views());
    failTexts("count of tracks of playlist 1");
    view.calls.clear();
    controller->paramOkButtonClick(sameNameAndArtist());
    EXPECT_THAT(view.calls,
                ElementsAre("closeParamWindow",
                            "alertCantAccess Can't access Music. If there is a dialog window (eg. update "
                            "notification, song info, preferences) showing on Music, please close it first.|"
                            "line 3: no end"));
}

TEST_F(AppControllerSearchTest, MusicIsAskedByAppleScriptWhateverFileThereIs) {
    iTunes.version = "1.5.2"; // as Music counts
    controller->paramOkButtonClick(sameNameAndArtist());
    EXPECT_EQ(controller->progress().progressSpan, 90);
    runUntilIdle();
}

TEST_F(AppControllerSearchTest, HelpOfTheAlertOpensTheQuestionsPage) {
    controller->alertCantAccessDidEnd(1000);
    EXPECT_TRUE(desktop.calls.empty());
    controller->alertCantAccessDidEnd(1001);
    ASSERT_EQ(desktop.calls.size(), 1U);
    EXPECT_THAT(desktop.calls[0], ::testing::EndsWith("/faq.php#cant-access-itunes"));
}

TEST_F(AppControllerSearchTest, ATrackCountOfZeroPassesTheAccessCheck) {
    iTunes.version = "9.0";
    searchIn("Library");
    EXPECT_THAT(view.calls, Contains("alertNoDuplicates"));
}

TEST_F(AppControllerSearchTest, ASearchThatMissedItsPlaylistIsNotShownAsOneOfIt) {
    iTunes.version = "9.0";
    iTunes.playlists = {"Lib\"rary", "Par\"ty"};
    addTracks(4);
    searchIn("Par\"ty");
    EXPECT_TRUE(controller->missedPlaylist());
    EXPECT_THAT(view.calls, Contains("setSearchedText Whole library, not “Par\"ty”: same name, artist"));
    searchIn("Lib\"rary");
    EXPECT_FALSE(controller->missedPlaylist());
    EXPECT_THAT(view.calls, Contains("setSearchedText Lib\"rary: same name, artist"));
}

TEST_F(AppControllerSearchTest, TheFirstPlaylistIsFoundThoughAnotherIsTheMusicPlaylist) {
    iTunes.version = "9.0";
    iTunes.playlists = {"Party", "Library"};
    addTracks(4);
    iTunes.onScript = [this](const std::string& text) {
        // Only the first question is answered by another order, as by a library that is sorted meanwhile.
        if (text.find("playlist 1") != std::string::npos) iTunes.playlists = {"Library", "Party"};
    };
    searchIn("Party");
    EXPECT_FALSE(controller->missedPlaylist());
}

TEST_F(AppControllerSearchTest, AnAllClearNamesWhatWasSearchedInsteadOfThePlaylist) {
    iTunes.version = "9.0";
    iTunes.playlists = {"Library", "Par\"ty"};
    addTracks(1);
    searchIn("Par\"ty");
    EXPECT_THAT(view.explanations, ElementsAre("the whole library was searched, not “Par\"ty”"));
    searchIn("Library");
    EXPECT_THAT(view.explanations, ElementsAre());
}

TEST_F(AppControllerSearchTest, ATrackThatCannotBeReadIsToldBesideTheResults) {
    iTunes.version = "9.0";
    addTracks(4);
    iTunes.fails = [](const std::string& text) {
        return text.find("from 4 to 4 ") != std::string::npos || text.find("to 4 \n") != std::string::npos;
    };
    searchIn("Library");
    EXPECT_FALSE(controller->searchVerdict().isComplete);
    EXPECT_THAT(view.calls,
                Contains("setSearchedText Library (1 track could not be read: told to fail): same "
                         "name, artist"));
}

TEST_F(AppControllerSearchTest, WithNoFieldAndNoPlaylistTheSearchRunsAllTheSame) {
    iTunes.version = "9.0";
    addTracks(3);
    controller->paramOkButtonClick({});
    runUntilIdle();
    EXPECT_EQ(controller->tableDataSource().rows.size(), 3U);
    EXPECT_EQ(controller->tableDataSource().rows[2]->gid, 1);
}

TEST_F(AppControllerSearchTest, AnUnknownPlaylistSearchesTheLibrary) {
    iTunes.version = "9.0";
    searchIn("Nowhere");
    EXPECT_THAT(iTunes.texts(), Contains("tell application \"iTunes\" to get count of tracks of playlist 1"));
}

TEST_F(AppControllerSearchTest, APlaylistNamedTwiceUsesTheFirst) {
    iTunes.version = "9.0";
    iTunes.playlists = {"Library", "Party", "Party"};
    searchIn("Party");
    EXPECT_THAT(iTunes.texts(), Contains("tell application \"iTunes\" to get count of tracks of playlist 2"));
}

TEST_F(AppControllerSearchTest, AfterAFailedLibraryFileTheBarGoesOnFrom50AndGroupingFrom70) {
    addTracks(4);
    std::vector<std::pair<int, int>> phases;
    iTunes.onScript = [&](const std::string& text) {
        if (text.find("itunes_records") != std::string::npos)
            phases.emplace_back(controller->progress().progressBase, controller->progress().progressSpan);
    };
    searchIn("Library");
    EXPECT_THAT(phases, ElementsAre(std::pair(50, 40)));
    EXPECT_EQ(controller->progress().progressBase, 70);
    EXPECT_EQ(controller->progress().progressSpan, 30);
    EXPECT_EQ(controller->tableDataSource().rows.size(), 4U);
    EXPECT_THAT(log.lines(), Contains("Handler : xmlErrorParsing"));
}

TEST_F(AppControllerSearchTest, MarksAndStatusStandStillUntilTheWorkersHaveReturned) {
    iTunes.version = "9.0";
    addTracks(4);
    const auto tryToMark = [this] {
        view.selection = {0};
        view.calls.clear();
        controller->markMenuClick(0);
        controller->markMenuClick(2);
        controller->markOkButtonClick({.markType = MarkType::highestBitrate, .exceptOne = true, .text = {}});
        controller->setObjectValue(true, Column::checkbox, 0);
        controller->tableviewSpacebar();
        controller->didClickTableColumn(Column::name);
    };
    controller->paramOkButtonClick(sameNameAndArtist());
    addRows({1, 1});
    tryToMark();
    EXPECT_THAT(view.calls, ElementsAre());
    EXPECT_EQ(controller->getCheckedCount(), 0);
    controller->deleteMarkedMenuClick();
    EXPECT_THAT(view.calls, ElementsAre("beep"));
    controller->cancelformButtonClick();
    tryToMark();
    EXPECT_THAT(view.calls, ElementsAre());
    EXPECT_EQ(controller->getCheckedCount(), 0);
    runUntilIdle();
}

TEST_F(AppControllerSearchTest, ACancelledSearchEndsInTheEmptyState) {
    iTunes.version = "9.0";
    addTracks(200);
    controller->paramOkButtonClick(sameNameAndArtist());
    controller->cancelformButtonClick();
    EXPECT_THAT(view.calls, Contains("endProgress formprogress"));
    runUntilIdle();
    EXPECT_EQ(view.calls.back(), "setPerformLabelVisible on");
    EXPECT_THAT(view.calls, Not(Contains("alertNoDuplicates")));
}

TEST_F(AppControllerSearchTest, ANewSearchAfterACancelHearsNothingOfTheOldOne) {
    iTunes.version = "9.0";
    addTracks(200);
    controller->paramOkButtonClick(sameNameAndArtist());
    controller->cancelformButtonClick();
    view.calls.clear();
    searchIn("Library");
    EXPECT_THAT(view.calls, Not(Contains("setPerformLabelVisible on")));
    EXPECT_EQ(controller->tableDataSource().rows.size(), 200U);
}

TEST_F(AppControllerSearchTest, TheSortIndicatorGoesWithANewSearch) {
    iTunes.version = "9.0";
    controller->didClickTableColumn(Column::name);
    controller->paramOkButtonClick(sameNameAndArtist());
    EXPECT_THAT(view.calls, Contains("clearSortIndicator"));
    runUntilIdle();
    view.calls.clear();
    controller->didClickTableColumn(Column::name);
    EXPECT_THAT(view.calls, ElementsAre("setSortIndicator name off", "reloadTable"))
        << "the column last sorted upwards is sorted downwards";
}

TEST_F(AppControllerSearchTest, TheReaderMadeWithoutArgumentsDoesNotCrash) {
    controller->xmlStartClick();
    runUntilIdle();
    EXPECT_THAT(log.lines(), Contains("XML Parsing"));
}

TEST_F(AppControllerSearchTest, QuittingWhileAWorkerRunsReleasesIt) {
    iTunes.version = "9.0";
    addTracks(5000);
    controller->paramOkButtonClick(sameNameAndArtist());
    EXPECT_TRUE(controller->applicationShouldTerminate());
    controller.reset();
}

TEST_F(AppControllerSearchTest, AnotherLibraryForgetsResultsAndPlaylists) {
    controller->startButtonClick();
    addRows({1, 1});
    view.calls.clear();
    EXPECT_TRUE(controller->resetForLibrary());
    EXPECT_TRUE(controller->tableDataSource().rows.empty());
    EXPECT_THAT(view.calls, Contains("clearPlaylists"));
    view.calls.clear();
    controller->startButtonClick();
    EXPECT_THAT(view.calls, Contains("addPlaylist Library"));
}

} // namespace
} // namespace songsweep::test
