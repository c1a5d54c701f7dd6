// SPDX-License-Identifier: MIT
#include "ui/TrackHeaderView.h"

#include "theme/ThemeColors.h"
#include "ui/TableFixture.h"

namespace songsweep::test {

namespace {

class TrackHeaderViewTest : public TableFixture {
  protected:
    TrackHeaderViewTest() {
        view.setPalette(themePalette(ThemeKind::light));
        view.showColumn(Column::sound, true);
    }

    /// A column's title with whatever stands beside it.
    QImage title(Column column) {
        TrackHeaderView& header = view.header();
        const int section = static_cast<int>(column);
        const QRect place(header.sectionViewportPosition(section), 0, header.sectionSize(section),
                          header.height());
        return header.viewport()->grab(place).toImage();
    }
    bool isTinted(Column column) {
        return title(column).pixelColor(2, 3) == themeColors(ThemeKind::light).sortedHeader;
    }
    /// The rows of pixels in which the arrow's colour is found, and how many times in each.
    std::vector<int> arrow(Column column) {
        const QImage image = title(column);
        std::vector<int> widths;
        for (int y = 0; y < image.height(); ++y) {
            int width = 0;
            for (int x = 0; x < image.width(); ++x)
                width += image.pixelColor(x, y) == themeColors(ThemeKind::light).focusRing ? 1 : 0;
            if (width > 0) widths.push_back(width);
        }
        return widths;
    }
};

} // namespace

TEST_F(TrackHeaderViewTest, OnlyTheSortedColumnIsTinted) {
    view.header().setSortIndicator(Column::bitrate, true);
    EXPECT_TRUE(isTinted(Column::bitrate));
    EXPECT_FALSE(isTinted(Column::name));
}

TEST_F(TrackHeaderViewTest, TheIndicatorMovesToAnotherColumn) {
    view.header().setSortIndicator(Column::bitrate, true);
    view.header().setSortIndicator(Column::name, true);
    EXPECT_FALSE(isTinted(Column::bitrate));
    EXPECT_TRUE(arrow(Column::bitrate).empty());
    EXPECT_TRUE(isTinted(Column::name));
}

TEST_F(TrackHeaderViewTest, ClearingTakesTintAndTriangleAway) {
    view.header().setSortIndicator(Column::bitrate, true);
    view.header().clearSortIndicator();
    EXPECT_FALSE(isTinted(Column::bitrate));
    EXPECT_TRUE(arrow(Column::bitrate).empty());
    EXPECT_FALSE(view.header().sortedColumn());
}

TEST_F(TrackHeaderViewTest, TheTrianglePointsUpForAscendingAndDownForDescending) {
    view.header().setSortIndicator(Column::bitrate, true);
    const std::vector<int> up = arrow(Column::bitrate);
    ASSERT_GE(up.size(), 2u);
    EXPECT_LT(up.front(), up.back());
    view.header().setSortIndicator(Column::bitrate, false);
    const std::vector<int> down = arrow(Column::bitrate);
    ASSERT_GE(down.size(), 2u);
    EXPECT_GT(down.front(), down.back());
}

TEST_F(TrackHeaderViewTest, EveryColumnShowsItsDirection) {
    for (const Column column : allColumns) {
        view.header().setSortIndicator(column, true);
        const std::vector<int> up = arrow(column);
        view.header().setSortIndicator(column, false);
        const std::vector<int> down = arrow(column);
        ASSERT_GE(up.size(), 2u) << identifier(column);
        ASSERT_GE(down.size(), 2u) << identifier(column);
        EXPECT_LT(up.front(), up.back()) << identifier(column);
        EXPECT_GT(down.front(), down.back()) << identifier(column);
    }
}

TEST_F(TrackHeaderViewTest, AClickDoesNotTurnTheIndicatorByItself) {
    view.header().setSortIndicator(Column::bitrate, true);
    Q_EMIT view.header().sectionClicked(static_cast<int>(Column::bitrate));
    EXPECT_TRUE(view.header().isAscending());
}

TEST_F(TrackHeaderViewTest, EveryTitleIsWhole) {
    for (const Column column : allColumns) {
        const QString text = model.headerData(static_cast<int>(column), Qt::Horizontal).toString();
        const int width = view.header().fontMetrics().horizontalAdvance(text);
        EXPECT_LE(width, view.header().titleRoom(column)) << identifier(column);
    }
}

} // namespace songsweep::test
