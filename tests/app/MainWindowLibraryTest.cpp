// SPDX-License-Identifier: MIT
#include "app/MainWindowFixture.h"
#include "support/EventLoop.h"

#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

namespace songsweep::test {
namespace {

using State = LibraryOverview::State;

class MainWindowLibraryTest : public MainWindowFixture {
  protected:
    QString text(const char* name) {
        const auto& label = control<QLabel>(name);
        return label.isVisible() ? label.text() : QString();
    }
};

TEST_F(MainWindowLibraryTest, TheOpenLibraryStandsInTitleAndPage) {
    window.showLibrary({.state = State::read,
                        .path = "/home/ann/Music/iTunes Library.xml",
                        .contents = {.tracks = 104, .playlists = 1, .savedSeconds = 0}});
    EXPECT_EQ(window.windowTitle(), QStringLiteral("Songsweep – iTunes Library.xml"));
    EXPECT_TRUE(
        text("emptyText").startsWith(QStringLiteral("iTunes Library.xml – 104 tracks, 1 playlist, saved ")));
    EXPECT_EQ(text("emptyPromise"), QStringLiteral("Nothing is deleted until you say so."));
    EXPECT_EQ(text("emptyHint"),
              QStringLiteral("Without iTunes Songsweep edits the library file; iTunes elsewhere "
                             "keeps a database of its own."));
    EXPECT_EQ(control<QPushButton>("emptyButton0").text(), QStringLiteral("&Search..."));
    EXPECT_EQ(window.findChild<QPushButton*>(QStringLiteral("emptyButton1")), nullptr);
}

TEST_F(MainWindowLibraryTest, WithoutALibraryThePageTellsWhereOneWasLookedForAndOpensTheChooser) {
    window.showLibrary({.state = State::none,
                        .path = "",
                        .places = {"/media/music", QDir::homePath().toStdString() + "/Music"}});
    EXPECT_EQ(window.windowTitle(), QStringLiteral("Songsweep"));
    EXPECT_EQ(text("performLabel"), QStringLiteral("No iTunes library was found"));
    EXPECT_EQ(text("emptyHint"), QStringLiteral("Looked in /media/music, ~/Music"));
    EXPECT_EQ(control<QPushButton>("emptyButton0").text(), QStringLiteral("&Open library..."));
    EXPECT_TRUE(control<QPushButton>("emptyButton0").isDefault());
    EXPECT_EQ(focus(), QStringLiteral("emptyPage"));
    QTest::keyClick(window.focusWidget(), Qt::Key_Return);
    auto* chooser = window.findChild<QFileDialog*>();
    ASSERT_NE(chooser, nullptr);
    EXPECT_EQ(chooser->nameFilters().last(), QStringLiteral("All files (*)"));
}

TEST_F(MainWindowLibraryTest, AChosenFileIsOpened) {
    window.chooseLibrary();
    QSignalSpy opened(&window, &MainWindow::openLibrary);
    Q_EMIT window.findChild<QFileDialog*>()->urlSelected(QUrl(QStringLiteral("file:///music/caf%E9.xml")));
    ASSERT_EQ(opened.size(), 1);
    EXPECT_EQ(opened[0][0].value<std::string>(), "/music/caf\xe9.xml");
}

TEST_F(MainWindowLibraryTest, AnUnreadableLibraryIsToldWithAWayOut) {
    window.showLibrary({.state = State::unreadable, .path = "/m/Library.xml", .problem = "line 3: no end"});
    EXPECT_EQ(text("emptyText"), QStringLiteral("line 3: no end"));
    EXPECT_EQ(control<QPushButton>("emptyButton0").text(), QStringLiteral("&Open library..."));
}

TEST_F(MainWindowLibraryTest, WithoutALibraryAFolderOfMusicCanBeChosen) {
    window.showLibrary({.state = State::none, .path = ""});
    EXPECT_EQ(control<QPushButton>("emptyButton1").text(), QStringLiteral("Choose m&usic folder..."));
    EXPECT_FALSE(control<QPushButton>("emptyButton1").isDefault());
    control<QPushButton>("emptyButton1").click();
    auto* chooser = window.findChild<QFileDialog*>();
    ASSERT_NE(chooser, nullptr);
    EXPECT_EQ(chooser->fileMode(), QFileDialog::Directory);
}

TEST_F(MainWindowLibraryTest, OtherLibrariesAreAChoice) {
    QSignalSpy opened(&window, &MainWindow::openLibrary);
    window.showLibrary({.state = State::reading, .path = "/m/A.xml", .others = {"/m/B.xml", "/m/old/A.xml"}});
    auto& second = control<QToolButton>("emptyChoice1");
    EXPECT_EQ(second.text(), QStringLiteral("A.xml in /m/old"));
    second.click();
    ASSERT_EQ(opened.size(), 1);
    EXPECT_EQ(opened[0][0].value<std::string>(), "/m/old/A.xml");
    control<QMenu>("openRecentMenu").actions().at(0)->trigger();
    ASSERT_EQ(opened.size(), 2);
    EXPECT_EQ(opened[1][0].value<std::string>(), "/m/B.xml");
    window.showLibrary({.state = State::reading, .path = "/m/A.xml"});
    EXPECT_FALSE(control<QMenu>("openRecentMenu").isEnabled());
    EXPECT_EQ(window.findChild<QToolButton*>(QStringLiteral("emptyChoice0")), nullptr);
}

TEST_F(MainWindowLibraryTest, NothingBelowTheButtonTakesNoRoom) {
    const int before = control<QPushButton>("emptyButton0").y();
    window.showLibrary({.state = State::read, .path = "/m/A.xml", .others = {"/m/B.xml"}});
    handleWaitingEvents();
    EXPECT_NE(control<QPushButton>("emptyButton0").y(), before);
    window.showLibrary({.state = State::reading, .path = "/m/A.xml"});
    handleWaitingEvents();
    EXPECT_EQ(control<QPushButton>("emptyButton0").y(), before);
}

} // namespace
} // namespace songsweep::test
