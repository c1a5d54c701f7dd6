// SPDX-License-Identifier: MIT
#include "WindowsFixture.h"
#include "app/DetailsDialog.h"
#include "sample-library/SoundSample.h"
#include "support/EventLoop.h"
#include "ui/NoticeBarView.h"

#include <QCheckBox>
#include <QLabel>
#include <QMessageBox>
#include <QToolButton>

#include <algorithm>
#include <filesystem>

namespace songsweep::test {
namespace {

namespace fs = std::filesystem;
using sample::SoundKind;

/// A folder in which one song is there twice, and a user whose data lie in a folder of their own.
class FolderActionsTest : public WindowsFixture {
  protected:
    FolderActionsTest() {
        qputenv("XDG_DATA_HOME", QByteArray::fromStdString(folder.path() + "/data"));
        write("a/Song.mp3", SoundKind::mp3, "Song");
        write("b/Song.m4a", SoundKind::aac, "Song");
        write("Other.mp3", SoundKind::mp3, "Other");
    }
    ~FolderActionsTest() override { qunsetenv("XDG_DATA_HOME"); }

    std::string music(const std::string& name = {}) const { return folder.path() + "/Tunes/" + name; }
    void write(const std::string& name, SoundKind kind, const std::string& title) const {
        fs::create_directories(fs::path(music(name)).parent_path());
        ASSERT_TRUE(sample::writeSound(
            music(name), {.kind = kind, .seconds = 200, .tags = {{"TITLE", title}, {"ARTIST", "Artist"}}}));
    }
    void openMusic() {
        Q_EMIT window().openLibrary(music());
        ASSERT_TRUE(runEventLoopUntil([this] { return controller->library().contents.tracks == 3; }));
        ASSERT_TRUE(runEventLoopUntil([this] { return controller->mayOpenLibrary(); }));
    }
    DeleteConfirmation& confirmation() { return windows.deleteConfirmation(); }
    bool mayChooseFiles() {
        return confirmation()
            .findChild<QCheckBox*>(QStringLiteral("delConfFileCK"))
            ->isVisibleTo(&confirmation());
    }
    QString confirmationText() {
        return confirmation().findChild<QLabel*>(QStringLiteral("delConfTextLabel"))->text();
    }
};

TEST_F(FolderActionsTest, AFolderOfMusicBecomesTheLibrary) {
    openMusic();
    EXPECT_EQ(alert(), nullptr);
    search();
    EXPECT_EQ(rows().size(), 2U);
}

TEST_F(FolderActionsTest, EachSearchSeesTheFolderAsItIs) {
    openMusic();
    write("c/Other.flac", SoundKind::flac, "Other");
    search();
    EXPECT_EQ(rows().size(), 4U);
}

TEST_F(FolderActionsTest, FilesOfAFolderGoToTheTrashWithoutAChoice) {
    openMusic();
    search();
    click(0, Column::checkbox);
    press("deleteButton");
    EXPECT_FALSE(mayChooseFiles());
    EXPECT_TRUE(confirmation().deletesFiles());
    EXPECT_TRUE(confirmationText().endsWith(QStringLiteral("Its file goes to the Trash.")));
}

TEST_F(FolderActionsTest, FilesOfALibraryAreTheUsersChoiceAgain) {
    openMusic();
    openLibrary(library);
    search();
    click(0, Column::checkbox);
    press("deleteButton");
    EXPECT_TRUE(mayChooseFiles());
    EXPECT_FALSE(confirmation().deletesFiles());
}

TEST_F(FolderActionsTest, TheFolderStandsInTitleAndPage) {
    openMusic();
    EXPECT_TRUE(window().windowTitle().startsWith(QStringLiteral("Songsweep – ")));
    EXPECT_TRUE(window().windowTitle().endsWith(QStringLiteral("/Tunes")));
    const QString facts = window().findChild<QLabel*>(QStringLiteral("emptyText"))->text();
    EXPECT_TRUE(facts.contains(QStringLiteral("/Tunes – 3 tracks, "))) << facts.toStdString();
}

TEST_F(FolderActionsTest, FilesThatCannotBeReadAreToldOverTheTableAndInTheLog) {
    folder.write("Tunes/broken.mp3", "no sound");
    openMusic();
    auto& bar = *window().findChild<NoticeBarView*>(QStringLiteral("noticeBar"));
    ASSERT_TRUE(runEventLoopUntil([&] { return bar.isVisible(); }));
    EXPECT_EQ(bar.message(), QStringLiteral("1 file could not be read"));
    search();
    ASSERT_TRUE(bar.isVisible()) << "a search looks at the folder again";
    bar.findChild<QToolButton*>(QStringLiteral("noticeButton0"))->click();
    auto* const details = windows.mainWindow().findChild<DetailsDialog*>();
    ASSERT_NE(details, nullptr);
    EXPECT_TRUE(details->text().startsWith(QStringLiteral("broken.mp3: no sound was found in")));
    const auto lines = log.lines();
    EXPECT_TRUE(std::any_of(lines.begin(), lines.end(), [](const std::string& line) {
        return line.starts_with("broken.mp3: no sound was found in");
    }));
}

} // namespace
} // namespace songsweep::test
