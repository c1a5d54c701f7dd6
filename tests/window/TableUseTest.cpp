// SPDX-License-Identifier: MIT
// Searching, looking at the groups, and the actions on a track.
#include "window/WindowTest.h"

#include <QUrl>

#include <gmock/gmock.h>

#include <algorithm>
#include <map>
#include <set>

namespace songsweep::test {
namespace {

using ::testing::HasSubstr;

/// What the cell says after its title.
std::string valueOf(const std::string& cell) { return cell.substr(cell.find(": ") + 2); }

/// "Group 3 of 5" of "Group 3 of 5, copy 2 of 3".
std::string groupOf(const ScreenReader::Row& row) { return row.place.substr(0, row.place.find(',')); }

/// The keys that press a check box are the desktop's choice.
class OnEveryDesktop : public WindowTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(OnEveryDesktop, ReturnIsTheFilledButtonOfADialog) {
    m_desktop = QString::fromLatin1(GetParam());
    ASSERT_NO_FATAL_FAILURE(start());
    ASSERT_NO_FATAL_FAILURE(search());
    EXPECT_TRUE(m_screen.shows("Library: same name, artist, time"));
    ASSERT_NO_FATAL_FAILURE(markByRule());
}

INSTANTIATE_TEST_SUITE_P(Desktops, OnEveryDesktop, ::testing::Values("generic", "gnome", "kde"),
                         [](const auto& desktop) { return std::string(desktop.param); });

class TableUse : public WindowTest {
  protected:
    void SetUp() override {
        ASSERT_NO_FATAL_FAILURE(WindowTest::SetUp());
        ASSERT_NO_FATAL_FAILURE(start());
        ASSERT_NO_FATAL_FAILURE(search());
    }

    std::string locationOf(int row) const { return valueOf(m_screen.row(row)[Column::location]); }
    QColor colorAt(QPoint place) const { return m_display.picture().pixelColor(place); }
    /// Where a row shows its own colour: beside the check box.
    QPoint groundOf(int row) const {
        return m_screen.cellPlace(row, Column::checkbox).topLeft() + QPoint(3, 3);
    }
    ::testing::AssertionResult rowBecomesCurrent(int row) const {
        return comes("row " + std::to_string(row), [=, this] { return m_screen.row(row).isCurrent; });
    }
    ::testing::AssertionResult checkBoxBecomes(int row, const std::string& state) const {
        return comes(state, [&, row] { return m_screen.row(row)[Column::checkbox] == state; });
    }

    static inline const QColor tinted{0xED, 0xF3, 0xFE};
    static inline const QColor white{0xFF, 0xFF, 0xFF};
    static inline const QColor accent{0x2B, 0x64, 0xC8};
};

TEST_F(TableUse, ASearchShowsTheGroupsAndSaysWhatItSearched) {
    const auto rows = m_screen.rows();
    EXPECT_TRUE(m_screen.shows(std::to_string(rows.size()) + " songs"));
    EXPECT_TRUE(m_screen.shows("Library: same name, artist, time"));
    EXPECT_THAT(rows.back().place, HasSubstr("Group 48 of 48, copy 2 of"));
    EXPECT_TRUE(logHas("Handler : buildFinish"));
    EXPECT_TRUE(rows.front().isCurrent);
    EXPECT_FALSE(std::any_of(rows.begin(), rows.end(), [](const auto& row) { return row.isSelected; }));
}

TEST_F(TableUse, GroupsStandInBandsAndASelectedRowInOneColour) {
    ASSERT_EQ(groupOf(m_screen.row(1)), "Group 1 of 48");
    ASSERT_EQ(groupOf(m_screen.row(2)), "Group 2 of 48");
    EXPECT_EQ(colorAt(groundOf(1)), tinted);
    EXPECT_EQ(colorAt(groundOf(2)), white);
    m_input.press("Down");
    ASSERT_TRUE(comes("the selection", [this] { return colorAt(groundOf(1)) == accent; }));
    EXPECT_TRUE(m_screen.row(1).isSelected);
}

TEST_F(TableUse, ArrowsSelectAndSpaceTogglesTheSelectedRows) {
    m_input.press("Down");
    ASSERT_TRUE(rowBecomesCurrent(1));
    m_input.press("shift+Down");
    ASSERT_TRUE(rowBecomesCurrent(2));
    m_input.press("space");
    ASSERT_TRUE(checkBoxBecomes(2, "Marked"));
    EXPECT_EQ(m_screen.row(1)[Column::checkbox], "Marked");
    EXPECT_EQ(m_screen.row(0)[Column::checkbox], "Not marked");
    m_input.press("space");
    ASSERT_TRUE(checkBoxBecomes(2, "Not marked"));
    EXPECT_EQ(m_screen.row(1)[Column::checkbox], "Not marked");
}

TEST_F(TableUse, AClickInACheckBoxMarksItsTrack) {
    m_input.click(m_screen.cellPlace(4, Column::checkbox).center());
    ASSERT_TRUE(appears("1 of " + std::to_string(m_screen.rowCount()) + " marked"));
    EXPECT_EQ(m_screen.row(4)[Column::checkbox], "Marked");
}

TEST_F(TableUse, TheKeyboardPlaysTheSelectedTrack) {
    m_input.press("Down");
    ASSERT_TRUE(rowBecomesCurrent(1));
    m_input.press("ctrl+p");
    const auto played = [this] { return m_player.callsOf(QStringLiteral("OpenUri")); };
    ASSERT_TRUE(comes("a call to the player", [&] { return !played().empty(); }));
    EXPECT_EQ(played().front().value(0).toUrl().toLocalFile().toStdString(), locationOf(1));
}

TEST_F(TableUse, ADoubleClickPlaysTheTrackUnderIt) {
    m_input.doubleClick(m_screen.cellPlace(3, Column::name).center());
    const auto played = [this] { return m_player.callsOf(QStringLiteral("OpenUri")); };
    ASSERT_TRUE(comes("a call to the player", [&] { return !played().empty(); }));
    EXPECT_EQ(played().front().value(0).toUrl().toLocalFile().toStdString(), locationOf(3));
}

TEST_F(TableUse, TheKeyboardShowsTheSelectedTrackInTheFileManager) {
    m_input.press("Down");
    ASSERT_TRUE(rowBecomesCurrent(1));
    m_input.press("ctrl+shift+r");
    const auto shown = [this] { return m_fileManager.callsOf(QStringLiteral("ShowItems")); };
    ASSERT_TRUE(comes("a call to the file manager", [&] { return !shown().empty(); }));
    const QStringList urls = shown().front().value(0).toStringList();
    ASSERT_EQ(urls.size(), 1);
    EXPECT_EQ(QUrl(urls.front()).toLocalFile().toStdString(), locationOf(1));
}

TEST_F(TableUse, AClickOnATitleSortsInsideTheGroups) {
    const auto before = m_screen.rows();
    m_input.click(m_screen.headerPlace(Column::playcount).center());
    const auto ascends = [](const ScreenReader::Row& one, const ScreenReader::Row& next) {
        return groupOf(one) != groupOf(next) ||
               std::stoi(valueOf(one[Column::playcount])) <= std::stoi(valueOf(next[Column::playcount]));
    };
    const auto isSorted = [&](const std::vector<ScreenReader::Row>& rows) {
        return std::adjacent_find(rows.begin(), rows.end(), [&](const auto& one, const auto& next) {
                   return !ascends(one, next);
               }) == rows.end();
    };
    ASSERT_FALSE(isSorted(before));
    ASSERT_TRUE(comes("the order", [&] { return isSorted(m_screen.rows()); }));
    const auto groupsOf = [](const std::vector<ScreenReader::Row>& rows) {
        std::map<std::string, std::multiset<std::string>> groups;
        for (const auto& row : rows)
            groups[groupOf(row)].insert(row[Column::name] + row[Column::location] + row[Column::playcount]);
        return groups;
    };
    EXPECT_EQ(groupsOf(m_screen.rows()), groupsOf(before));
}

} // namespace
} // namespace songsweep::test
