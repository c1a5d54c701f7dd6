// SPDX-License-Identifier: MIT
#include "app/ParametersDialog.h"

#include "support/ThemedTest.h"
#include "support/Widgets.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace songsweep {
namespace {

using test::child;

class ParametersDialogTest : public test::ThemedTest {};

void clearFields(const ParametersDialog& dialog) {
    for (const char* name : {"paramSameNameCK", "paramSameArtistCK", "paramSameAlbumCK", "paramSameTimeCK"})
        child<QCheckBox>(dialog, name).setChecked(false);
}

TEST_F(ParametersDialogTest, CancelPutsTheFieldsBack) {
    ParametersDialog dialog;
    dialog.addPlaylist("Library");
    dialog.addPlaylist("Party");
    dialog.selectPlaylist(1);
    dialog.showParamWindow();
    const SearchParameters before = dialog.parameters();
    for (const char* name : {"paramSameNameCK", "paramSameArtistCK", "paramSameAlbumCK", "paramSameTimeCK",
                             "paramSimilarCK", "paramIgnoreDeadCK"})
        dialog.findChild<QCheckBox*>(QLatin1String(name))->toggle();
    dialog.selectPlaylist(0);
    dialog.findChild<QPushButton*>(QStringLiteral("paramCancelButton"))->click();
    EXPECT_EQ(dialog.parameters(), before);
}

TEST_F(ParametersDialogTest, ItsPlaylistsMayBeYetToCome) {
    ParametersDialog dialog;
    const auto* search = dialog.findChild<QPushButton*>(QStringLiteral("paramSearchButton"));
    dialog.setPlaylistsPending(true);
    EXPECT_FALSE(search->isEnabled());
    dialog.setPlaylistsPending(false);
    EXPECT_TRUE(search->isEnabled());
}

TEST_F(ParametersDialogTest, StartsWithEveryFieldButAlbumAndNoPlaylist) {
    const ParametersDialog dialog;
    SearchParameters expected;
    expected.issamename = expected.issameartist = expected.issametime = true;
    EXPECT_EQ(dialog.parameters(), expected);
}

struct FieldCase {
    const char* control;
    bool SearchParameters::*field;
};

class ParametersDialogFields : public test::ThemedTest, public testing::WithParamInterface<FieldCase> {};

TEST_P(ParametersDialogFields, GoIntoTheirParameter) {
    const ParametersDialog dialog;
    auto& box = child<QCheckBox>(dialog, GetParam().control);
    const bool before = dialog.parameters().*GetParam().field;
    box.click();
    SearchParameters expected = ParametersDialog().parameters();
    expected.*GetParam().field = !before;
    EXPECT_EQ(dialog.parameters(), expected);
}

INSTANTIATE_TEST_SUITE_P(, ParametersDialogFields,
                         testing::Values(FieldCase{"paramSameNameCK", &SearchParameters::issamename},
                                         FieldCase{"paramSameArtistCK", &SearchParameters::issameartist},
                                         FieldCase{"paramSameAlbumCK", &SearchParameters::issamealbum},
                                         FieldCase{"paramSameTimeCK", &SearchParameters::issametime},
                                         FieldCase{"paramSimilarCK", &SearchParameters::issimilar},
                                         FieldCase{"paramIgnoreDeadCK", &SearchParameters::isignoredead}));

TEST_F(ParametersDialogTest, SelectsNoPlaylistUntilItIsTold) {
    ParametersDialog dialog;
    dialog.addPlaylist("Music");
    dialog.addPlaylist("Süd");
    EXPECT_EQ(dialog.parameters().playlist, std::nullopt);
    dialog.selectPlaylist(1);
    EXPECT_EQ(dialog.parameters().playlist, "Süd");
    dialog.addPlaylist("Süd");
    EXPECT_EQ(child<QComboBox>(dialog, "paramLocationCB").currentIndex(), 1);
    dialog.clearPlaylists();
    EXPECT_EQ(dialog.parameters().playlist, std::nullopt);
}

TEST_F(ParametersDialogTest, WarnsWithoutAnyFieldAndSearchesAllTheSame) {
    ParametersDialog dialog;
    test::open(dialog);
    const auto& warning = child<QLabel>(dialog, "paramWarningLabel");
    EXPECT_FALSE(warning.isVisible());
    const QSize before = dialog.size();
    clearFields(dialog);
    EXPECT_TRUE(warning.isVisible());
    EXPECT_EQ(warning.text(), QStringLiteral("All tracks will form one group."));
    EXPECT_TRUE(child<QPushButton>(dialog, "paramSearchButton").isEnabled());
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(dialog.size(), before);
    child<QCheckBox>(dialog, "paramSameAlbumCK").setChecked(true);
    EXPECT_FALSE(warning.isVisible());
}

TEST_F(ParametersDialogTest, SearchesOnReturnFromAnywhereAndLeavesClosingToOthers) {
    ParametersDialog dialog;
    dialog.addPlaylist("Music");
    dialog.selectPlaylist(0);
    QSignalSpy searches(&dialog, &ParametersDialog::searchRequested);
    test::open(dialog);
    test::press(dialog, Qt::Key_Return);
    child<QComboBox>(dialog, "paramLocationCB").setFocus();
    test::press(dialog, Qt::Key_Return);
    ASSERT_EQ(searches.count(), 2);
    EXPECT_EQ(searches[0][0].value<SearchParameters>(), dialog.parameters());
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(ParametersDialogTest, CancelsOnEscapeAndKeepsTheSettingsOfASearch) {
    ParametersDialog dialog;
    QSignalSpy cancels(&dialog, &ParametersDialog::rejected);
    test::open(dialog);
    test::press(dialog, Qt::Key_Space);
    test::press(dialog, Qt::Key_Escape);
    EXPECT_EQ(cancels.count(), 1);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_TRUE(dialog.parameters().issamename) << "as before";
    test::open(dialog);
    test::press(dialog, Qt::Key_Space);
    dialog.closeParamWindow();
    test::open(dialog);
    test::press(dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.parameters().issamename) << "a search was begun with it";
}

TEST_F(ParametersDialogTest, BeginsAtNameAtEveryOpeningAndVisitsEveryControl) {
    ParametersDialog dialog;
    const QStringList expected{
        QStringLiteral("paramSameNameCK"),   QStringLiteral("paramSameArtistCK"),
        QStringLiteral("paramSameAlbumCK"),  QStringLiteral("paramSameTimeCK"),
        QStringLiteral("paramSimilarCK"),    QStringLiteral("paramLocationCB"),
        QStringLiteral("paramIgnoreDeadCK"), QStringLiteral("paramCancelButton"),
        QStringLiteral("paramSearchButton"),
    };
    test::open(dialog);
    EXPECT_EQ(test::tabOrder(dialog), expected);
    test::press(dialog, Qt::Key_Tab);
    dialog.hide();
    test::open(dialog);
    EXPECT_EQ(dialog.focusWidget(), &child<QCheckBox>(dialog, "paramSameNameCK"));
}

TEST_F(ParametersDialogTest, HasOneFilledButtonAndNoMnemonicTwice) {
    ParametersDialog dialog;
    test::open(dialog);
    EXPECT_EQ(test::filledButtons(dialog), QStringList(QStringLiteral("&Search")));
    EXPECT_EQ(test::mnemonics(dialog), QStringLiteral("ACDILNOST"));
}

TEST_F(ParametersDialogTest, NamesItsControlsForAssistiveTechnology) {
    const ParametersDialog dialog;
    EXPECT_EQ(test::accessibleName(child<QWidget>(dialog, "paramSameNameCK")), QStringLiteral("Same name"));
    EXPECT_EQ(child<QLabel>(dialog, "paramLocationLabel").buddy(),
              &child<QWidget>(dialog, "paramLocationCB"));
}

TEST_F(ParametersDialogTest, TellsALongPlaylistWholeInAToolTip) {
    ParametersDialog dialog;
    dialog.addPlaylist("Library");
    dialog.addPlaylist("Everything for the long night drive home");
    dialog.selectPlaylist(1);
    const auto& list = child<QComboBox>(dialog, "paramLocationCB");
    EXPECT_EQ(list.toolTip(), QStringLiteral("Everything for the long night drive home"));
    EXPECT_EQ(list.itemData(1, Qt::ToolTipRole).toString(), list.toolTip());
    dialog.selectPlaylist(0);
    EXPECT_EQ(list.toolTip(), QStringLiteral("Library"));
}

} // namespace
} // namespace songsweep
