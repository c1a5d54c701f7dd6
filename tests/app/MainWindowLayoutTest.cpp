// SPDX-License-Identifier: MIT
#include "app/MainWindowFixture.h"
#include "support/ThemedTest.h"
#include "ui/SWTableView.h"
#include "ui/TrackHeaderView.h"

#include <QApplication>
#include <QProgressBar>

namespace songsweep::test {
namespace {

using MainWindowLayoutTest = MainWindowFixture;

TEST_F(MainWindowLayoutTest, ToolbarHeaderRowsAndStripHaveTheirHeights) {
    QFont font = window.font();
    font.setPixelSize(13);
    window.setFont(font);
    showResults(list);
    QApplication::processEvents();
    const int line = 1;
    EXPECT_EQ(control<QWidget>("toolbar").height() + line, 48);
    EXPECT_EQ(control<QWidget>("strip").height() + line, 24);
    EXPECT_EQ(window.tableview().header().height(), 26);
}

TEST_F(MainWindowLayoutTest, LengthsGrowWithTheFont) {
    QFont font = window.font();
    font.setPixelSize(26);
    window.setFont(font);
    window.resize(1600, 900);
    showSearching();
    QApplication::processEvents();
    EXPECT_EQ(control<QWidget>("toolbar").height() + 1, 96);
    EXPECT_EQ(control<QProgressBar>("formprogress").width(), 2 * 364);
    const int barEnd = control<QWidget>("formprogress").geometry().right();
    EXPECT_EQ(control<QWidget>("formprogressCancelButton").geometry().left() - barEnd - 1, 2 * 8);
}

class MainWindowAtScale : public ThemedTest, public ::testing::WithParamInterface<double> {};

TEST_P(MainWindowAtScale, ClipsNoTextOnAnyPage) {
    setFont(GetParam(), 100);
    RecordingLog log;
    MainWindow window(log);
    window.show();
    window.resize(window.minimumSize());
    const auto clipped = [&] {
        QApplication::processEvents();
        return clippedControls(window).join(QLatin1Char(' ')).toStdString();
    };
    EXPECT_EQ(clipped(), "") << "empty state";
    window.setPerformLabelVisible(false);
    window.beginProgress();
    window.setProgressText("Checking missing tracks...");
    window.setProgressValue(100);
    EXPECT_EQ(clipped(), "") << "searching";
    window.endProgress();
    window.setTableVisible(true);
    window.reloadTable(sampleRows());
    window.setStatusText("123456 of 1000000 marked");
    window.setStatusVisible(true);
    window.setSearchedText("Music: same name, artist, album, time");
    window.setDeleteEnabled(true);
    EXPECT_EQ(clipped(), "") << "results";
}

INSTANTIATE_TEST_SUITE_P(, MainWindowAtScale, ::testing::Values(1.0, 1.5, 2.0));

} // namespace
} // namespace songsweep::test
