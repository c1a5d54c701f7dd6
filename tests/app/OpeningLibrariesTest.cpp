// SPDX-License-Identifier: MIT
#include "WindowsFixture.h"
#include "support/EventLoop.h"
#include "support/TestData.h"

#include <QMessageBox>
#include <QPushButton>

namespace songsweep::test {
namespace {

class OpeningLibrariesTest : public WindowsFixture {
  protected:
    OpeningLibrariesTest() { qputenv("XDG_DATA_HOME", QByteArray::fromStdString(folder.path() + "/data")); }
    ~OpeningLibrariesTest() override { qunsetenv("XDG_DATA_HOME"); }

    void answer(const char* label) {
        for (QAbstractButton* button : alert()->buttons())
            if (button->text().remove(QLatin1Char('&')) == QLatin1String(label)) return button->click();
        FAIL() << label;
    }
};

TEST_F(OpeningLibrariesTest, AnOpenedLibraryIsNamedAndCounted) {
    openLibrary(testData("library/five-tracks.xml"));
    EXPECT_EQ(window().windowTitle(), QStringLiteral("Songsweep – five-tracks.xml"));
    EXPECT_EQ(controller->library().contents.tracks, 5);
    EXPECT_TRUE(label("emptyText").startsWith(QStringLiteral("five-tracks.xml – 5 tracks, ")));
}

TEST_F(OpeningLibrariesTest, MarksAreLostOnlyOnceTheUserSaysSo) {
    search();
    click(0, Column::checkbox);
    Q_EMIT window().openLibrary(testData("library/five-tracks.xml"));
    ASSERT_NE(alert(), nullptr);
    EXPECT_EQ(alert()->informativeText(), QStringLiteral("The mark in these results is lost then."));
    answer("Cancel");
    EXPECT_EQ(checkedRows(), 1);
    handleWaitingEvents();
    Q_EMIT window().openLibrary(testData("library/five-tracks.xml"));
    answer("Open");
    EXPECT_TRUE(rows().empty());
    EXPECT_EQ(window().windowTitle(), QStringLiteral("Songsweep – five-tracks.xml"));
}

TEST_F(OpeningLibrariesTest, AForeignFileIsToldAndThePresentLibraryStays) {
    search();
    const std::vector<TrackRecord*> before = rows();
    Q_EMIT window().openLibrary(folder.write("iTunes Library.itl", "hdfm1234"));
    ASSERT_NE(alert(), nullptr);
    EXPECT_TRUE(alert()->informativeText().startsWith(
        QStringLiteral("“iTunes Library.itl” is the database of iTunes")));
    EXPECT_EQ(rows(), before);
    EXPECT_EQ(program->scripting().libraryPath(), library);
}

TEST_F(OpeningLibrariesTest, AFolderOpensTheLibraryInIt) {
    const std::string inside = folder.write("Music/iTunes/iTunes Library.xml", folder.read("library.xml"));
    openLibrary(folder.path() + "/Music");
    EXPECT_EQ(controller->library().path, inside);
    Q_EMIT window().openLibrary(folder.path() + "/Music/iTunes/..");
    EXPECT_EQ(alert(), nullptr);
}

TEST_F(OpeningLibrariesTest, AFolderWithoutALibraryIsTold) {
    folder.write("Pictures/cat.png", "");
    Q_EMIT window().openLibrary(folder.path() + "/Pictures");
    ASSERT_TRUE(runEventLoopUntil([this] { return alert() != nullptr; }));
    EXPECT_TRUE(alert()->informativeText().contains(QStringLiteral("/Pictures holds no library file.")));
}

TEST_F(OpeningLibrariesTest, ABrokenLibraryIsToldWithItsNameAndTheWayToAnother) {
    openLibrary(folder.write("broken.xml", "<plist><dict>"));
    ASSERT_NE(alert(), nullptr);
    EXPECT_TRUE(alert()->informativeText().contains(QStringLiteral("/broken.xml: ")));
    EXPECT_TRUE(alert()->informativeText().contains(QStringLiteral("File > Library > Export Library...")));
}

} // namespace
} // namespace songsweep::test
