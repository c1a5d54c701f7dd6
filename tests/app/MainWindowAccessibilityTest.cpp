// SPDX-License-Identifier: MIT
#include "app/MainWindowFixture.h"

#include <QAccessible>
#include <QTest>

#include <utility>
#include <vector>

namespace songsweep::test {
namespace {

using MainWindowAccessibilityTest = MainWindowFixture;

TEST_F(MainWindowAccessibilityTest, ControlsSpeakInVerbAndObject) {
    const std::vector<std::pair<const char*, const char*>> names = {
        {"searchButton", "Find duplicates"},          {"autoMarkButton", "Mark copies by a rule"},
        {"deleteButton", "Delete the marked tracks"}, {"formprogressCancelButton", "Cancel search"},
        {"formprogress", "Search progress"},          {"tableview", "Duplicate tracks"},
        {"emptyButton0", "Find duplicates"},
    };
    for (const auto& [name, spoken] : names) {
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&control<QWidget>(name));
        ASSERT_NE(accessible, nullptr) << name;
        EXPECT_EQ(accessible->text(QAccessible::Name), QString::fromLatin1(spoken)) << name;
    }
}

TEST_F(MainWindowAccessibilityTest, ControlsHaveTheirRoles) {
    const std::vector<std::pair<const char*, QAccessible::Role>> roles = {
        {"searchButton", QAccessible::Button},
        {"autoMarkButton", QAccessible::Button},
        {"deleteButton", QAccessible::Button},
        {"formprogressCancelButton", QAccessible::Button},
        {"emptyButton0", QAccessible::Button},
        {"formprogress", QAccessible::ProgressBar},
        {"tableview", QAccessible::Table},
        {"progressInfoLabel", QAccessible::StaticText},
        {"progressValueLabel", QAccessible::StaticText},
        {"statusBottomLabel", QAccessible::StaticText},
        {"searchedLabel", QAccessible::StaticText},
        {"mainMenu", QAccessible::MenuBar},
    };
    for (const auto& [name, role] : roles)
        EXPECT_EQ(QAccessible::queryAccessibleInterface(&control<QWidget>(name))->role(), role) << name;
}

TEST_F(MainWindowAccessibilityTest, ToolTipsNameTheKeys) {
    EXPECT_EQ(control<QWidget>("searchButton").toolTip(), QStringLiteral("Find duplicates (Ctrl+F)"));
    EXPECT_EQ(control<QWidget>("autoMarkButton").toolTip(), QStringLiteral("Mark copies by a rule (Ctrl+R)"));
    EXPECT_EQ(control<QWidget>("deleteButton").toolTip(),
              QStringLiteral("Delete the marked tracks (Ctrl+Del)"));
    EXPECT_EQ(control<QWidget>("formprogressCancelButton").toolTip(), QStringLiteral("Cancel search (Esc)"));
}

TEST_F(MainWindowAccessibilityTest, TabGoesThroughToolbarAndContentAndAround) {
    showResults(list);
    window.setDeleteEnabled(true);
    QStringList order = {focus()};
    for (int i = 0; i < 5; ++i) {
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
        order.append(focus());
    }
    EXPECT_EQ(order.join(QLatin1Char(' ')),
              QStringLiteral("tableview searchButton autoMarkButton deleteButton filterField tableview"));
}

} // namespace
} // namespace songsweep::test
