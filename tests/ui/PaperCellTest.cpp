// SPDX-License-Identifier: MIT
#include "theme/RowColors.h"
#include "theme/ThemeColors.h"
#include "ui/MakeCell.h"
#include "ui/SWImageCell.h"
#include "ui/SWLevelIndicatorCell.h"
#include "ui/TableFixture.h"

#include <QApplication>
#include <QPainter>

#include <stdexcept>

namespace songsweep::test {

namespace {

class PaperCellTest : public TableFixture {
  protected:
    PaperCellTest() { view.showColumn(Column::sound, true); }
};

/// A cell whose making fails, as one does that gets no memory.
template <typename Cell>
struct FailingCell : Cell {
    FailingCell() { throw std::runtime_error("no cell"); }
};

} // namespace

TEST_F(PaperCellTest, BandsAlternateFromGroupToGroupUnderEveryColumn) {
    for (const Column column : allColumns) {
        EXPECT_EQ(background(0, column), QColor(237, 243, 254)) << identifier(column);
        EXPECT_EQ(background(2, column), QColor(255, 255, 255)) << identifier(column);
        EXPECT_EQ(background(4, column), QColor(237, 243, 254)) << identifier(column);
    }
}

TEST_F(PaperCellTest, BandsReachFromEdgeToEdgeWithoutAGap) {
    const QImage rows = picture();
    const int height = view.rowHeight(0);
    for (int x = 0; x < rows.width(); ++x) {
        ASSERT_EQ(rows.pixelColor(x, 0), tintedBand) << x;
        ASSERT_EQ(rows.pixelColor(x, 2 * height - 1), tintedBand) << x;
        ASSERT_EQ(rows.pixelColor(x, 2 * height), whiteBand) << x;
    }
}

TEST_F(PaperCellTest, ASelectedRowHasOneColourOverItsWholeWidth) {
    select(4, 4);
    for (const Column column : allColumns)
        EXPECT_EQ(background(4, column), selectedBand) << identifier(column);
    select(2, 2);
    EXPECT_EQ(background(2, Column::rating), selectedBand);
    EXPECT_EQ(background(4, Column::rating), tintedBand);
}

TEST_F(PaperCellTest, TheSelectionTurnsGreyWhenTheWindowIsNotTheKeyWindow) {
    select(4, 4);
    QWidget other;
    other.show();
    QApplication::setActiveWindow(&other);
    for (const Column column : allColumns)
        EXPECT_EQ(background(4, column), selectedInactiveBand) << identifier(column);
    QApplication::setActiveWindow(&view);
    EXPECT_EQ(background(4, Column::name), selectedBand);
}

TEST_F(PaperCellTest, RowsKeepTheirColoursInADarkTheme) {
    const QImage light = picture();
    view.setPalette(themePalette(ThemeKind::dark));
    const QImage dark = picture();
    const int rowsEnd = 12 * view.rowHeight(0);
    EXPECT_EQ(light.copy(0, 0, light.width(), rowsEnd), dark.copy(0, 0, dark.width(), rowsEnd));
    EXPECT_EQ(dark.pixelColor(5, rowsEnd + 5), themeColors(ThemeKind::dark).content);
}

TEST_F(PaperCellTest, TextsOfATrackWithoutItsFileAreSecondary) {
    const auto hasPixel = [this](int row, Column column, const QColor& color) {
        const QImage text = picture().copy(view.visualRect(cell(row, column)));
        for (int y = 0; y < text.height(); ++y)
            for (int x = 0; x < text.width(); ++x)
                if (text.pixelColor(x, y) == color) return true;
        return false;
    };
    list.rows[6]->name = list.rows[5]->name = "\xE2\x96\x88\xE2\x96\x88";
    reload();
    if (!hasPixel(5, Column::name, rowColors(RowState::plain).text))
        GTEST_SKIP() << "no font draws full blocks";
    EXPECT_TRUE(hasPixel(6, Column::name, rowColors(RowState::plain).secondaryText));
    EXPECT_FALSE(hasPixel(6, Column::name, rowColors(RowState::plain).text));
}

TEST_F(PaperCellTest, StarsStandForTheRatingAndDotsForWhatItLacks) {
    const auto colorAt = [this](int row, int place) {
        const QRect frame = view.visualRect(cell(row, Column::rating));
        const QPoint middle(frame.left() + 8 + 14 * place + 6, frame.top() + 12);
        return picture().pixelColor(middle);
    };
    const RowColors& colors = rowColors(RowState::plain);
    EXPECT_EQ(colorAt(2, 0), colors.stars);
    EXPECT_EQ(colorAt(2, 2), colors.stars);
    EXPECT_EQ(colorAt(2, 3), colors.starDots);
    EXPECT_EQ(colorAt(1, 0), tintedBand) << "a track that is not rated shows nothing";
}

TEST_F(PaperCellTest, TheCurrentRowHasAnOutlineWhileTheTableHasTheFocus) {
    view.selectionModel()->setCurrentIndex(cell(2, Column::name), QItemSelectionModel::NoUpdate);
    const int top = 2 * view.rowHeight(0);
    EXPECT_EQ(picture().pixelColor(300, top), rowColors(RowState::plain).currentOutline);
    EXPECT_EQ(picture().pixelColor(0, top + 5), rowColors(RowState::plain).currentOutline);
    select(2, 2);
    EXPECT_EQ(picture().pixelColor(300, top), rowColors(RowState::selected).currentOutline);
    view.clearFocus();
    EXPECT_EQ(picture().pixelColor(300, top), selectedBand);
}

TEST_F(PaperCellTest, AnImageCellWhoseMakingFailsLogsOnceAndIsNotMade) {
    EXPECT_EQ(makeCell<FailingCell<SWImageCell>>(log), nullptr);
    EXPECT_EQ(log.lines(), std::vector<std::string>{"Could not initalize!"});
}

TEST_F(PaperCellTest, ALevelIndicatorCellWhoseMakingFailsLogsOnceAndIsNotMade) {
    EXPECT_EQ(makeCell<FailingCell<SWLevelIndicatorCell>>(log), nullptr);
    EXPECT_EQ(log.lines(), std::vector<std::string>{"Could not initalize!"});
}

TEST_F(PaperCellTest, ACellThatIsMadeLogsNothing) {
    EXPECT_NE(makeCell<SWImageCell>(log), nullptr);
    EXPECT_TRUE(log.lines().empty());
}

} // namespace songsweep::test
