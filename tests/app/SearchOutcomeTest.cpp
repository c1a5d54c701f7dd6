// SPDX-License-Identifier: MIT
// What the window makes of the end of a search: its results in a file, or why there are none.
#include "WindowsFixture.h"
#include "libraryfile/LibraryFixture.h"
#include "support/EventLoop.h"
#include "support/TestData.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

#include <optional>
#include <thread>

namespace songsweep::test {

namespace {

using WindowActionsTest = WindowsFixture;

} // namespace

TEST_F(WindowActionsTest, ASearchWithoutAResultShowsTheEmptyTableAndTheAlert) {
    QApplication::setActiveWindow(&window());
    Q_EMIT window().openLibrary(testData("library/five-tracks.xml"));
    search();
    EXPECT_TRUE(rows().empty());
    ASSERT_NE(alert(), nullptr);
    EXPECT_EQ(alert()->text(), QStringLiteral("No duplicates found."));
    EXPECT_EQ(label("statusBottomLabel"), QString());
    EXPECT_EQ(label("searchedLabel"), QString());
    EXPECT_FALSE(button("autoMarkButton").isEnabled());
}

TEST_F(WindowActionsTest, AfterASearchWithoutAResultThePageOffersToSearchWithFewerFields) {
    Q_EMIT window().openLibrary(testData("library/five-tracks.xml"));
    search();
    ASSERT_TRUE(rows().empty());
    EXPECT_EQ(page(), QStringLiteral("noticePage"));
    EXPECT_EQ(label("noticePageTitle"), QStringLiteral("No duplicates found"));
    EXPECT_TRUE(label("noticePageText").contains(QStringLiteral("tracks were searched. ")));
    EXPECT_TRUE(label("noticePageText").contains(QStringLiteral(": same name, artist, time.")));
    for (QPushButton* each : window().findChildren<QPushButton*>())
        if (each->text() == QStringLiteral("Search with fewer fields...")) each->click();
    ASSERT_TRUE(windows.paramWindow().isVisible());
    const SearchParameters fewer = windows.paramWindow().parameters();
    EXPECT_TRUE(fewer.issamename && fewer.issameartist);
    EXPECT_FALSE(fewer.issametime);
    EXPECT_EQ(windows.paramWindow().focusWidget()->objectName(), QStringLiteral("paramSameTimeCK"));
    windows.paramWindow().reject();
    EXPECT_TRUE(windows.paramWindow().parameters().issametime) << "Cancel puts the field back";
}

TEST_F(WindowActionsTest, FilesOfAnotherMachineAreFoundAgain) {
    const std::string values =
        "<key>Name</key><string>Song</string>"
        "<key>Total Time</key><integer>1000</integer><key>Track Type</key><string>File</string>"
        "<key>Location</key><string>file:///Users/ann/Music/Can/a.mp3</string>";
    folder.write("disk/Can/a.mp3", "sound");
    Q_EMIT window().openLibrary(
        folder.write("moved/moved.xml", libraryXml({{1, "A1", values}, {2, "A2", values}},
                                                   {{"Library", "<key>Master</key><true/>", {1, 2}}})));
    search();
    ASSERT_EQ(rows().size(), 2U);
    EXPECT_TRUE(rows()[0]->isdead);
    EXPECT_EQ(label("noticeLabel"), QStringLiteral("None of the 2 files were found."));
    Q_EMIT window().filesFolderChosen(folder.path() + "/moved");
    ASSERT_TRUE(runEventLoopUntil([this] { return alert() != nullptr; }));
    EXPECT_EQ(alert()->text(), QStringLiteral("None of the files were found there."));
    alert()->close();
    Q_EMIT window().filesFolderChosen(folder.path() + "/disk");
    ASSERT_TRUE(runEventLoopUntil([this] { return alert() != nullptr && alert()->isVisible(); }));
    EXPECT_TRUE(alert()->informativeText().contains(QStringLiteral("/Users/ann/Music")));
    alert()->defaultButton()->click();
    ASSERT_TRUE(runEventLoopUntil([this] { return controller->isIdle() && !controller->isSearching(); }));
    ASSERT_EQ(rows().size(), 2U);
    EXPECT_FALSE(rows()[0]->isdead);
    EXPECT_FALSE(window().findChild<QWidget*>(QStringLiteral("noticeBar"))->isVisible());
}

TEST_F(WindowActionsTest, ResultsAreExportedWithReasonsInTheFormatOfTheName) {
    search();
    press("autoMarkButton");
    press("markMarkButton");
    std::vector<std::string> reasons;
    std::optional<ResultsExport::Format> format;
    std::thread::id thread;
    const bool wasChecked = isChecked(0);
    actions->setExporter([&](const ResultsExport& results) -> Result<void> {
        thread = std::this_thread::get_id();
        format = results.format;
        EXPECT_EQ(results.rows, rows());
        for (int row = 0; row < static_cast<int>(results.rows.size()); ++row)
            reasons.push_back(results.reason(row));
        return Error{Error::Code::inputOutput, "no room is left"};
    });
    const std::thread::id mainThread = std::this_thread::get_id();
    Q_EMIT window().exportChosen("/somewhere/Results.JSON");
    click(0, Column::checkbox);
    EXPECT_EQ(isChecked(0), wasChecked) << "the rows stand still while they are written";
    ASSERT_TRUE(runEventLoopUntil([this] { return alert() != nullptr; }));
    EXPECT_NE(thread, mainThread);
    EXPECT_EQ(format, ResultsExport::Format::json);
    ASSERT_EQ(reasons.size(), rows().size());
    EXPECT_EQ(reasons[0], controller->markReason(*rows()[0]));
    ASSERT_NE(alert(), nullptr);
    EXPECT_EQ(alert()->informativeText(), QStringLiteral("No room is left"));
}

TEST_F(WindowActionsTest, ASearchOfNothingIsExplained) {
    const std::string nameless =
        libraryXml({{1, "A1", ""}, {2, "A2", ""}}, {{"", "<key>Master</key><true/>", {1, 2}}});
    Q_EMIT window().openLibrary(folder.write("nameless.xml", nameless));
    search();
    ASSERT_NE(alert(), nullptr);
    EXPECT_EQ(alert()->text(), QStringLiteral("No duplicates found."));
    EXPECT_EQ(alert()->informativeText(),
              QStringLiteral("0 of 2 tracks were searched: the library has no name "
                             "by which it is found in its file"));
}

TEST_F(WindowActionsTest, ALibraryAllOfWhoseFilesAreMissingIsToldBesideTheResults) {
    const std::string values =
        "<key>Name</key><string>Song</string>"
        "<key>Total Time</key><integer>1000</integer><key>Track Type</key><string>File</string>"
        "<key>Location</key><string>file:///Users/ann/nowhere.mp3</string>";
    const std::string missing =
        libraryXml({{1, "A1", values}, {2, "A2", values}}, {{"Library", "<key>Master</key><true/>", {1, 2}}});
    Q_EMIT window().openLibrary(folder.write("missing.xml", missing));
    search();
    EXPECT_EQ(rows().size(), 2U);
    EXPECT_TRUE(label("searchedLabel")
                    .startsWith(QStringLiteral("Library (none of the library's files is here; if they came "
                                               "from another machine, --map FROM=TO tells where")));
}

} // namespace songsweep::test
