// SPDX-License-Identifier: MIT
#include "app/CurrentLibrary.h"

#include "app/ControllerFixture.h"

namespace songsweep::test {
namespace {

using State = LibraryOverview::State;

class CurrentLibraryTest : public ControllerFixture {
  protected:
    /// A controller whose library file is that one; "" for none.
    void restart(const std::string& path) {
        controller.reset();
        ControllerServices services{.scripts = iTunes,
                                    .files = files,
                                    .preferences = preferences,
                                    .sleeper = sleeper,
                                    .log = log,
                                    .desktop = desktop,
                                    .cleanup = cleanup,
                                    .version = "1.0"};
        services.libraryFile = [path] { return path; };
        services.libraryContents = [this] { return contents; };
        services.libraryPlaces = [] { return std::vector<std::string>{"/home/ann/Music"}; };
        services.embeddedLibrary = [this] { return isEmbedded; };
        controller = std::make_unique<AppController>(std::move(services), view.views());
        controller->awakeFromNib();
        view.calls.clear();
    }
    bool waitUntilRead() {
        return runEventLoopUntil([this] { return controller->mayOpenLibrary(); });
    }

    Result<LibraryContents> contents = LibraryContents{5, 2, 0};
    bool isEmbedded = true;
};

TEST_F(CurrentLibraryTest, WithoutALibrarySearchAsksForOne) {
    restart("");
    controller->beginLibrary(CurrentLibrary::Telling::page);
    EXPECT_EQ(view.libraries.back().state, State::none);
    EXPECT_EQ(view.libraries.back().places, std::vector<std::string>{"/home/ann/Music"});
    controller->startButtonClick();
    EXPECT_TRUE(view.has("chooseLibrary"));
    EXPECT_FALSE(view.has("showParamWindow"));
}

TEST_F(CurrentLibraryTest, TheSystemsLibraryIsNotMissing) {
    isEmbedded = false;
    restart("");
    controller->beginLibrary(CurrentLibrary::Telling::page);
    EXPECT_EQ(view.libraries.back().state, State::unknown);
    controller->startButtonClick();
    EXPECT_TRUE(view.has("showParamWindow"));
}

TEST_F(CurrentLibraryTest, TheDialogOpensWhileTheLibraryIsReadAndIsFilledThen) {
    restart("/music/Library.xml");
    controller->beginLibrary(CurrentLibrary::Telling::page);
    EXPECT_EQ(view.libraries.back().state, State::reading);
    controller->startButtonClick();
    EXPECT_EQ(view.calls, (std::vector<std::string>{"setPlaylistsPending on", "showParamWindow"}));
    controller->paramOkButtonClick({});
    EXPECT_FALSE(controller->isSearching()) << "nobody may wait for the library in the window";
    ASSERT_TRUE(waitUntilRead());
    EXPECT_EQ(view.libraries.back().state, State::read);
    EXPECT_EQ(view.libraries.back().contents.tracks, 5);
    EXPECT_EQ(view.calls.back(), "setPlaylistsPending off");
    EXPECT_TRUE(view.has("selectPlaylist 0"));
}

TEST_F(CurrentLibraryTest, AnUnreadableLibraryIsToldByAnAlertWhereTheUserOpenedIt) {
    contents = Error{Error::Code::invalid, "line 3: no end"};
    restart("/music/Library.xml");
    controller->beginLibrary(CurrentLibrary::Telling::page);
    ASSERT_TRUE(waitUntilRead());
    EXPECT_EQ(view.libraries.back().state, State::unreadable);
    EXPECT_FALSE(view.has("alertCantOpen line 3: no end"));
    controller->beginLibrary(CurrentLibrary::Telling::alert);
    ASSERT_TRUE(waitUntilRead());
    EXPECT_TRUE(view.has("alertCantOpen line 3: no end"));
}

TEST_F(CurrentLibraryTest, TheAnswerOfALibraryThatWasLeftIsNoNews) {
    restart("/music/Library.xml");
    controller->beginLibrary(CurrentLibrary::Telling::page);
    contents = LibraryContents{7, 0, 0};
    controller->beginLibrary(CurrentLibrary::Telling::page);
    const std::size_t shown = view.libraries.size();
    ASSERT_TRUE(waitUntilRead());
    EXPECT_EQ(view.libraries.size(), shown + 1);
    EXPECT_EQ(view.libraries.back().contents.tracks, 7);
}

} // namespace
} // namespace songsweep::test
