// SPDX-License-Identifier: MIT
#include "WindowsFixture.h"
#include "libraryfile/CleanupLock.h"
#include "libraryfile/RecordedCleanup.h"
#include "libraryfile/TemporaryName.h"
#include "support/EventLoop.h"
#include "support/SampleCleanup.h"
#include "support/Widgets.h"
#include "ui/NoticeBarView.h"

#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QToolButton>
#include <QTreeWidget>

#include <gmock/gmock.h>

#include <filesystem>

namespace songsweep::test {

namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;

constexpr const char* oneId = "0000000000000001";
constexpr const char* otherId = "0000000000000003";

std::string trackXml(const std::string& id, const std::string& path) {
    return "<key>" + id + "</key><dict><key>Track ID</key><integer>" + id +
           "</integer><key>Name</key><string>Song</string><key>Artist</key><string>X</string><key>Total "
           "Time</key><integer>1000</integer><key>Persistent ID</key><string>000000000000000" +
           id + "</string><key>Track Type</key><string>File</string><key>Location</key><string>file://" +
           path + "</string></dict>\n";
}

std::string itemXml(const std::string& id) {
    return "<dict><key>Track ID</key><integer>" + id + "</integer></dict>\n";
}

/// Three copies of one song with their files.
std::string libraryIn(const TemporaryFolder& music) {
    std::string tracks;
    std::string items;
    for (const std::string id : {"1", "2", "3"}) {
        tracks += trackXml(id, music.write(id + ".mp3", "music " + id));
        items += itemXml(id);
    }
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist "
           "version=\"1.0\"><dict>\n<key>Tracks</key><dict>\n" +
           tracks +
           "</dict>\n<key>Playlists</key><array>\n<dict><key>Name</key><string>Library</string>"
           "<key>Master</key><true/><key>Playlist ID</key><integer>9</integer><key>Playlist "
           "Items</key><array>\n" +
           items + "</array></dict></array></dict></plist>\n";
}

/// A Trash of the test's own, which the process has to know before it first asks for one.
struct OwnTrash {
    TemporaryFolder home;
    OwnTrash() { qputenv("XDG_DATA_HOME", QByteArray::fromStdString(home.path())); }
};

class Restoring : public OwnTrash, public TemporaryFolder, public WindowsFixture {
  protected:
    Restoring()
        : WindowsFixture(libraryIn(*this)) {}

    std::string present() const { return folder.read("library.xml"); }
    std::string file(const std::string& id) const { return TemporaryFolder::path() + "/" + id + ".mp3"; }
    std::string deleteTwo(SampleCleanup::End end = SampleCleanup::End::complete) {
        return carryOut({library, {oneId, otherId}, program->desktop().trash(), end});
    }

    RestoreSheet& sheet() { return windows.restoreSheet(); }
    QPushButton& sheetButton(const char* name) { return child<QPushButton>(sheet(), name); }
    QTreeWidget& list() { return child<QTreeWidget>(sheet(), "restoreList"); }
    std::string lines() { return child<QLabel>(sheet(), "restoreLinesLabel").text().toStdString(); }
    std::string cell(int row, int column) { return list().topLevelItem(row)->text(column).toStdString(); }

    /// Opens the sheet and waits until it tells what would come back.
    void openSheet() {
        child<QAction>(window(), "restoreMenuitem").trigger();
        ASSERT_TRUE(sheet().isVisible());
        ASSERT_TRUE(runEventLoopUntil([this] { return !lines().ends_with("..."); })) << lines();
    }
    void closeSheet() {
        ASSERT_TRUE(runEventLoopUntil([this] { return controller->isIdle(); }));
        sheetButton("restoreCancelButton").click();
        ASSERT_FALSE(sheet().isVisible());
    }
    QAbstractButton& noticeButton(const char* label) {
        for (QToolButton* const button :
             child<NoticeBarView>(window(), "noticeBar").findChildren<QToolButton*>())
            if (button->text() == QLatin1String(label)) return *button;
        ADD_FAILURE() << "no button " << label;
        return child<QAbstractButton>(window(), "noticeCloseButton");
    }
    void waitForLines(const std::string& part) {
        ASSERT_TRUE(runEventLoopUntil([&] { return lines().find(part) != std::string::npos; })) << lines();
    }

    /// Whether nobody has locked the library; seen without a lock of its own, which others could meet.
    bool isFree() const { return !fs::exists(lockFile()); }
    /// Whether somebody holds the lock and has said who: the lock's file is there a moment before.
    bool isHeld() const {
        std::error_code none;
        const auto size = fs::file_size(lockFile(), none);
        return !none && size > 0;
    }
    std::string lockFile() const { return folder.path() + "/" + TemporaryName::ofLock("library.xml"); }
    /// Opens the confirmation and waits until the survey has locked the library.
    void askToDeleteOne() {
        search();
        controller->setObjectValue(true, Column::checkbox, 0);
        controller->setStatusLabel();
        press("deleteButton");
        ASSERT_TRUE(runEventLoopUntil([this] { return isHeld(); }));
    }

    std::string m_whole = present();
};

} // namespace

TEST_F(Restoring, BringsBackWhatTheSheetSaidItWould) {
    deleteTwo();
    ASSERT_NE(present(), m_whole);
    ASSERT_NO_FATAL_FAILURE(openSheet());
    EXPECT_EQ(list().topLevelItemCount(), 1);
    EXPECT_EQ(cell(0, 1), "");
    EXPECT_EQ(cell(0, 2), "2");
    EXPECT_EQ(cell(0, 3), "2");
    EXPECT_EQ(cell(0, 4), "0.1 MB");
    EXPECT_EQ(lines(),
              "2 tracks come back to the library and their playlists.\n2 files (0.1 MB) come back from "
              "the Trash.");
    ASSERT_TRUE(sheetButton("restoreOkButton").isEnabled());
    EXPECT_NE(present(), m_whole) << "nothing is done yet";
    sheetButton("restoreOkButton").click();
    EXPECT_FALSE(list().isEnabled());
    waitForLines("back in");
    EXPECT_EQ(lines(), "2 tracks are back in the library.\n2 files (0.1 MB) are back in their places.");
    EXPECT_EQ(present(), m_whole);
    EXPECT_TRUE(fs::exists(file("1")) && fs::exists(file("3")));
    EXPECT_FALSE(sheetButton("restoreOkButton").isEnabled());
    EXPECT_EQ(sheetButton("restoreCancelButton").text(), QStringLiteral("&Close"));
    sheetButton("restoreCancelButton").click();
    EXPECT_FALSE(sheet().isVisible());
}

TEST_F(Restoring, ChoosesTheNewestCleanUpThatIsNotRestored) {
    carryOut({library, {oneId}, program->desktop().trash()});
    carryOut({library, {otherId}, program->desktop().trash()});
    ASSERT_NO_FATAL_FAILURE(openSheet());
    EXPECT_EQ(list().indexOfTopLevelItem(list().currentItem()), 0);
    sheetButton("restoreOkButton").click();
    waitForLines("is back in the library");
    closeSheet();
    ASSERT_NO_FATAL_FAILURE(openSheet());
    ASSERT_EQ(list().topLevelItemCount(), 2);
    EXPECT_EQ(cell(0, 1), "Restored");
    EXPECT_EQ(list().indexOfTopLevelItem(list().currentItem()), 1);
    list().setCurrentItem(list().topLevelItem(0));
    waitForLines("All of it is there already.");
    EXPECT_FALSE(sheetButton("restoreOkButton").isEnabled());
}

TEST_F(Restoring, NamesLostFilesAndLeavesTheirTracksOutWhereTheUserSaysSo) {
    const std::string record = deleteTwo();
    const auto cleanup = RecordedCleanup::read(record);
    ASSERT_TRUE(cleanup);
    fs::remove(cleanup.value().tracks.at(0).trash->path());
    ASSERT_NO_FATAL_FAILURE(openSheet());
    EXPECT_THAT(lines(), HasSubstr("1 file is no longer in the Trash; its track is missing it."));
    auto& box = child<QCheckBox>(sheet(), "restoreLeaveLostCK");
    ASSERT_TRUE(box.isVisible());
    box.click();
    waitForLines("1 track is left out, since its file is lost.");
    EXPECT_TRUE(box.isVisible());
    sheetButton("restoreOkButton").click();
    waitForLines("1 track is back in the library.");
    EXPECT_THAT(present(), ::testing::Not(HasSubstr(oneId)));
    EXPECT_THAT(present(), HasSubstr(otherId));
}

TEST_F(Restoring, ListsWhatBecameOfEachTrackForCopying) {
    deleteTwo();
    TemporaryFolder::write("3.mp3", "another");
    ASSERT_NO_FATAL_FAILURE(openSheet());
    EXPECT_THAT(lines(), HasSubstr("1 file stays in the Trash, since another file has its place."));
    sheetButton("restoreDetailsButton").click();
    auto& details = child<QPlainTextEdit>(sheet(), "detailsList");
    const std::string text = details.toPlainText().toStdString();
    EXPECT_THAT(text,
                ::testing::StartsWith("Song – X: track restored, file in the Trash (another file has its "
                                      "file's place; its own stays in the Trash), " +
                                      file("3") + "\n"));
    EXPECT_THAT(text, HasSubstr("Song – X: track restored, file put back, " + file("1")));
    child<QPushButton>(sheet(), "detailsCopyButton").click();
    EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(), text);
}

TEST_F(Restoring, TellsWhoHoldsTheLibrary) {
    deleteTwo();
    ASSERT_NO_FATAL_FAILURE(openSheet());
    const std::string before = present();
    const auto lock = CleanupLock::acquire(library, {"the command delete"});
    ASSERT_TRUE(lock);
    sheetButton("restoreOkButton").click();
    waitForLines("Nothing can be restored: another Songsweep (the command delete, process ");
    EXPECT_EQ(present(), before);
}

TEST_F(Restoring, WhatACancelLeftIsBroughtBackByTheNext) {
    deleteTwo();
    ASSERT_NO_FATAL_FAILURE(openSheet());
    sheetButton("restoreOkButton").click();
    sheetButton("restoreCancelButton").click();
    EXPECT_TRUE(sheet().isVisible()) << "until the step in hand is done";
    ASSERT_TRUE(runEventLoopUntil([this] { return lines() != "Restoring..."; }));
    const bool wasStopped =
        lines().starts_with("The restore was stopped; restore again to bring back the rest.");
    EXPECT_TRUE(wasStopped || present() == m_whole) << lines();
    closeSheet();
    ASSERT_NO_FATAL_FAILURE(openSheet());
    if (sheetButton("restoreOkButton").isEnabled()) {
        sheetButton("restoreOkButton").click();
        waitForLines("back in");
    }
    EXPECT_EQ(present(), m_whole);
    EXPECT_TRUE(fs::exists(file("1")) && fs::exists(file("3")));
}

TEST_F(Restoring, TheWindowTellsWhatCameBack) {
    deleteTwo();
    ASSERT_NO_FATAL_FAILURE(openSheet());
    sheetButton("restoreOkButton").click();
    waitForLines("back in");
    closeSheet();
    auto& bar = child<NoticeBarView>(window(), "noticeBar");
    EXPECT_TRUE(bar.isVisible());
    EXPECT_EQ(bar.message(),
              QStringLiteral("2 tracks restored, 2 files (0.1 MB) put back. A new search shows them."));
}

TEST_F(Restoring, ADeletionThatWasKilledIsToldAndPutBack) {
    deleteTwo(SampleCleanup::End::killed);
    ASSERT_NE(present(), m_whole);
    controller->lookForInterruption();
    auto& bar = child<NoticeBarView>(window(), "noticeBar");
    ASSERT_TRUE(runEventLoopUntil([&] { return bar.isVisible(); }));
    EXPECT_THAT(
        bar.message().toStdString(),
        ::testing::EndsWith(" was interrupted. 2 tracks and 1 file can be put back. If you finish it, "
                            "1 file goes to the Trash."));
    noticeButton("Restore...").click();
    ASSERT_TRUE(sheet().isVisible());
    ASSERT_TRUE(runEventLoopUntil([this] { return sheetButton("restoreOkButton").isEnabled(); }));
    EXPECT_EQ(cell(0, 1), "Interrupted");
    sheetButton("restoreOkButton").click();
    waitForLines("back in");
    EXPECT_EQ(present(), m_whole);
    EXPECT_TRUE(fs::exists(file("1")) && fs::exists(file("3")));
}

TEST_F(Restoring, ADeletionThatWasKilledIsFinished) {
    deleteTwo(SampleCleanup::End::killed);
    ASSERT_TRUE(fs::exists(file("3")));
    controller->lookForInterruption();
    auto& bar = child<NoticeBarView>(window(), "noticeBar");
    ASSERT_TRUE(runEventLoopUntil([&] { return bar.isVisible(); }));
    noticeButton("Finish").click();
    EXPECT_EQ(bar.message(), QStringLiteral("Finishing the deletion"));
    ASSERT_TRUE(runEventLoopUntil([&] {
        return bar.message().startsWith(QStringLiteral("2 tracks deleted, "));
    })) << bar.message().toStdString();
    EXPECT_EQ(bar.message(), QStringLiteral("2 tracks deleted, 2 files in the Trash (0.1 MB)."));
    EXPECT_FALSE(fs::exists(file("3")));
    ASSERT_TRUE(runEventLoopUntil([this] { return controller->isIdle(); }));
    noticeButton("Restore...").click();
    ASSERT_TRUE(runEventLoopUntil([this] { return sheetButton("restoreOkButton").isEnabled(); }));
    EXPECT_EQ(cell(0, 1), "") << "it came to its end";
    sheetButton("restoreOkButton").click();
    waitForLines("back in");
    EXPECT_EQ(present(), m_whole);
    EXPECT_TRUE(fs::exists(file("1")) && fs::exists(file("3")));
}

TEST_F(Restoring, WhyADeletionCannotBeFinishedIsTold) {
    deleteTwo(SampleCleanup::End::killed);
    controller->lookForInterruption();
    auto& bar = child<NoticeBarView>(window(), "noticeBar");
    ASSERT_TRUE(runEventLoopUntil([&] { return bar.isVisible(); }));
    const auto lock = CleanupLock::acquire(library, {"the command delete"});
    ASSERT_TRUE(lock);
    noticeButton("Finish").click();
    ASSERT_TRUE(
        runEventLoopUntil([&] { return bar.message().contains(QStringLiteral("another Songsweep")); }));
    EXPECT_THAT(bar.message().toStdString(),
                ::testing::StartsWith("The deletion could not be finished: another Songsweep (the command "));
    EXPECT_TRUE(fs::exists(file("3")));
    EXPECT_TRUE(runEventLoopUntil([&] { return noticeButton("Finish").isVisible(); })) << "to try it again";
}

TEST_F(Restoring, ADeletionThatCameToItsEndIsNotTold) {
    deleteTwo();
    controller->lookForInterruption();
    ASSERT_NO_FATAL_FAILURE(openSheet()); // the workers run one after the other
    EXPECT_FALSE(child<NoticeBarView>(window(), "noticeBar").isVisible());
}

TEST_F(Restoring, ALibraryThatIsOpenedIsLookedAt) {
    deleteTwo(SampleCleanup::End::killed);
    Q_EMIT window().openLibrary(library);
    auto& bar = child<NoticeBarView>(window(), "noticeBar");
    ASSERT_TRUE(runEventLoopUntil([&] { return bar.isVisible(); }));
}

TEST_F(Restoring, TheLibraryIsLockedWhileADeletionIsConfirmed) {
    ASSERT_NO_FATAL_FAILURE(askToDeleteOne());
    const auto other = CleanupLock::acquire(library, {"the command delete"});
    ASSERT_FALSE(other);
    EXPECT_THAT(other.error().message, HasSubstr("another Songsweep (the window, process "));
    press("delConfCancelButton");
    EXPECT_TRUE(runEventLoopUntil([this] { return isFree(); }));
}

TEST_F(Restoring, TheLibraryIsFreeWhereADeletionIsGivenUpBeforeItBegins) {
    ASSERT_NO_FATAL_FAILURE(askToDeleteOne());
    press("delConfOkButton");
    EXPECT_FALSE(isFree());
    controller->cancelButtonClick();
    EXPECT_TRUE(runEventLoopUntil([this] { return isFree(); }));
    EXPECT_EQ(present(), m_whole);
}

TEST_F(Restoring, TheLibraryIsFreeWhereADeletionCouldNotBegin) {
    ASSERT_NO_FATAL_FAILURE(askToDeleteOne());
    folder.write("library.xml", m_whole.substr(0, m_whole.size() - 20)); // not well-formed any more
    press("delConfOkButton");
    EXPECT_TRUE(runEventLoopUntil([this] { return isFree(); }));
}

TEST_F(Restoring, TheLibraryIsLockedFromTheConfirmationToTheEndOfTheDeletion) {
    ASSERT_NO_FATAL_FAILURE(askToDeleteOne());
    press("delConfOkButton");
    bool wasFree = false;
    EXPECT_TRUE(runEventLoopUntil([&] {
        wasFree |= present() == m_whole && isFree();
        return present() != m_whole;
    }));
    EXPECT_FALSE(wasFree);
    EXPECT_TRUE(runEventLoopUntil([this] { return isFree(); }));
}

TEST_F(Restoring, SaysWhereThereIsNothing) {
    child<QAction>(window(), "restoreMenuitem").trigger();
    waitForLines("Nothing was deleted from this library by Songsweep");
    EXPECT_FALSE(sheetButton("restoreOkButton").isEnabled());
    QTest::keyClick(&sheet(), Qt::Key_Escape);
    EXPECT_FALSE(sheet().isVisible());
}

TEST_F(Restoring, ASheetThatWasClosedHearsNoMoreOfItsWorkers) {
    deleteTwo();
    child<QAction>(window(), "restoreMenuitem").trigger();
    sheetButton("restoreCancelButton").click();
    EXPECT_FALSE(sheet().isVisible());
    ASSERT_NO_FATAL_FAILURE(openSheet());
    EXPECT_EQ(list().topLevelItemCount(), 1) << "listed once";
}

TEST_F(Restoring, ASearchFindsWhatCameBack) {
    search();
    EXPECT_EQ(rows().size(), 3U);
    deleteTwo();
    ASSERT_NO_FATAL_FAILURE(openSheet());
    sheetButton("restoreOkButton").click();
    waitForLines("2 tracks are back in the library.");
    closeSheet();
    search();
    EXPECT_EQ(rows().size(), 3U);
}

} // namespace songsweep::test
