// SPDX-License-Identifier: MIT
#include "dupes/MarkDialog.h"

#include "dupes/MarkingRules.h"
#include "support/ThemedTest.h"
#include "support/Widgets.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace songsweep {
namespace {

using test::child;

class MarkDialogTest : public test::ThemedTest {};

struct RuleCase {
    const char* radio;
    const char* combo;
    int first;
    int other;
};

class MarkDialogRules : public test::ThemedTest, public testing::WithParamInterface<RuleCase> {};

TEST_P(MarkDialogRules, GiveOneTypeForTheFirstItemAndOneForAnyOther) {
    MarkDialog dialog;
    dialog.selectMissingItems();
    child<QRadioButton>(dialog, GetParam().radio).click();
    EXPECT_EQ(static_cast<int>(dialog.choice().markType), GetParam().first);
    auto& combo = child<QComboBox>(dialog, GetParam().combo);
    combo.setCurrentIndex(1);
    EXPECT_EQ(static_cast<int>(dialog.choice().markType), GetParam().other);
    combo.setCurrentIndex(-1);
    EXPECT_EQ(static_cast<int>(dialog.choice().markType), GetParam().other);
    EXPECT_TRUE(dialog.choice().text.empty());
}

INSTANTIATE_TEST_SUITE_P(, MarkDialogRules,
                         testing::Values(RuleCase{"markBitrateRB", "markBitrateCMB", 0, 1},
                                         RuleCase{"markTimeRB", "markTimeCMB", 2, 3},
                                         RuleCase{"markSizeRB", "markSizeCMB", 4, 5},
                                         RuleCase{"markRatingRB", "markRatingCMB", 10, 11},
                                         RuleCase{"markPlayCountRB", "markPlayCountCMB", 12, 13},
                                         RuleCase{"markDateAddedRB", "markDateAddedCMB", 6, 7},
                                         RuleCase{"markArtworkRB", "markArtworkCMB", 8, 9}));

TEST_F(MarkDialogTest, StartsWithTheHighestBitRateAndEveryCopyButOne) {
    MarkDialog dialog;
    dialog.selectMissingItems();
    EXPECT_EQ(dialog.choice(), (MarkChoice{MarkType::highestBitrate, true, ""}));
}

TEST_F(MarkDialogTest, GivesTheTextsOfTheKindAndTheFolderRule) {
    MarkDialog dialog;
    dialog.fillKinds({"MP3"});
    child<QLineEdit>(dialog, "markFolderTF").setText(QStringLiteral("/media/Old"));
    child<QRadioButton>(dialog, "markKindRB").click();
    EXPECT_EQ(dialog.choice(), (MarkChoice{MarkType::kind, true, "MP3"}));
    child<QRadioButton>(dialog, "markFolderRB").click();
    EXPECT_EQ(dialog.choice(), (MarkChoice{MarkType::folder, true, "/media/Old"}));
}

TEST_F(MarkDialogTest, PassesEmptyTextsOnAsTheyAre) {
    MarkDialog dialog;
    child<QRadioButton>(dialog, "markKindRB").click();
    EXPECT_EQ(dialog.choice(), (MarkChoice{MarkType::kind, true, ""}));
    child<QRadioButton>(dialog, "markFolderRB").click();
    EXPECT_EQ(dialog.choice(), (MarkChoice{MarkType::folder, true, ""}));
}

TEST_F(MarkDialogTest, GivesNoRuleWhereNoneIsChosen) {
    MarkDialog dialog;
    auto& radio = child<QRadioButton>(dialog, "markBitrateRB");
    radio.group()->setExclusive(false);
    radio.setChecked(false);
    EXPECT_EQ(dialog.choice().markType, MarkType::none);
}

TEST_F(MarkDialogTest, TakesAMixedExceptOneSwitchForOn) {
    MarkDialog dialog;
    auto& box = child<QCheckBox>(dialog, "markExceptOneCK");
    box.setCheckState(Qt::PartiallyChecked);
    EXPECT_TRUE(dialog.choice().exceptOne);
    box.setCheckState(Qt::Unchecked);
    EXPECT_FALSE(dialog.choice().exceptOne);
}

TEST_F(MarkDialogTest, SelectsTheFirstItemOnlyWhereNoneIsSelected) {
    MarkDialog dialog;
    auto& empty = child<QComboBox>(dialog, "markTimeCMB");
    auto& chosen = child<QComboBox>(dialog, "markSizeCMB");
    empty.setCurrentIndex(-1);
    chosen.setCurrentIndex(1);
    dialog.selectMissingItems();
    EXPECT_EQ(empty.currentIndex(), 0);
    EXPECT_EQ(chosen.currentIndex(), 1);
}

QStringList kindsIn(const MarkDialog& dialog) {
    const auto& list = child<QComboBox>(dialog, "markKindCMB");
    QStringList kinds;
    for (int index = 0; index < list.count(); ++index)
        kinds.append(list.itemText(index));
    return kinds;
}

TEST_F(MarkDialogTest, ListsKindsInTheirOrderOnceAndPrefersMp3) {
    MarkDialog dialog;
    dialog.fillKinds({"M4A", "MP3", "M4A"});
    EXPECT_EQ(kindsIn(dialog), QStringList({QStringLiteral("M4A"), QStringLiteral("MP3")}));
    EXPECT_EQ(child<QComboBox>(dialog, "markKindCMB").currentText(), QStringLiteral("MP3"));
}

TEST_F(MarkDialogTest, SelectsTheFirstKindWithoutMp3AndNoneWithoutKinds) {
    MarkDialog without;
    without.fillKinds({"WAV", "M4A"});
    EXPECT_EQ(child<QComboBox>(without, "markKindCMB").currentText(), QStringLiteral("WAV"));
    MarkDialog empty;
    empty.fillKinds({});
    EXPECT_EQ(child<QComboBox>(empty, "markKindCMB").count(), 0);
    EXPECT_EQ(child<QComboBox>(empty, "markKindCMB").currentIndex(), -1);
}

TEST_F(MarkDialogTest, TurnsATypedKindIntoUpperCaseAndChoosesItsRule) {
    MarkDialog dialog;
    test::open(dialog);
    auto& kind = child<QComboBox>(dialog, "markKindCMB");
    kind.setFocus();
    QTest::keyClicks(&kind, QStringLiteral("m4a"));
    EXPECT_EQ(kind.currentText(), QStringLiteral("M4A"));
    EXPECT_EQ(dialog.choice(), (MarkChoice{MarkType::kind, true, "M4A"}));
}

TEST_F(MarkDialogTest, ChoosesTheRuleOfAComboBoxThatIsUsed) {
    MarkDialog dialog;
    test::open(dialog);
    auto& time = child<QComboBox>(dialog, "markTimeCMB");
    EXPECT_TRUE(time.isEnabled());
    QTest::keyClick(&time, Qt::Key_Down);
    EXPECT_EQ(dialog.choice().markType, MarkType::shortest);
}

TEST_F(MarkDialogTest, ChoosesTheFolderRuleWhenAFolderIsTypedOrSet) {
    MarkDialog dialog;
    test::open(dialog);
    auto& field = child<QLineEdit>(dialog, "markFolderTF");
    QTest::keyClicks(&field, QStringLiteral("/a"));
    EXPECT_EQ(dialog.choice(), (MarkChoice{MarkType::folder, true, "/a"}));
    dialog.setFolder(QStringLiteral("/music/Ölüm"));
    EXPECT_EQ(dialog.choice().text, "/music/Ölüm");
    EXPECT_EQ(field.toolTip(), QStringLiteral("/music/Ölüm"));
}

TEST_F(MarkDialogTest, TellsEveryChangeOfTheChoice) {
    MarkDialog dialog;
    dialog.selectMissingItems();
    QSignalSpy changes(&dialog, &MarkDialog::choiceChanged);
    const auto changed = [&] {
        const bool any = !changes.isEmpty();
        changes.clear();
        return any;
    };
    child<QRadioButton>(dialog, "markSizeRB").click();
    EXPECT_TRUE(changed());
    child<QComboBox>(dialog, "markSizeCMB").setCurrentIndex(1);
    EXPECT_TRUE(changed());
    child<QCheckBox>(dialog, "markExceptOneCK").click();
    EXPECT_TRUE(changed());
    child<QComboBox>(dialog, "markKindCMB").setEditText(QStringLiteral("WAV"));
    EXPECT_TRUE(changed());
    dialog.setFolder(QStringLiteral("/x"));
    EXPECT_TRUE(changed());
}

TEST_F(MarkDialogTest, SaysWhatTheSwitchMeansForTheRule) {
    MarkDialog dialog;
    const auto& helper = child<QLabel>(dialog, "markExceptOneLabel");
    EXPECT_EQ(helper.text(), QStringLiteral("One copy of each song stays, a working one if there is one."));
    child<QCheckBox>(dialog, "markExceptOneCK").click();
    EXPECT_EQ(helper.text(), QStringLiteral("Copies that tie all stay. Missing files are marked too."));
    child<QRadioButton>(dialog, "markKindRB").click();
    EXPECT_EQ(helper.text(), QStringLiteral("A song can lose every copy. Missing files are marked too."));
    child<QRadioButton>(dialog, "markFolderRB").click();
    EXPECT_EQ(helper.text(), QStringLiteral("A song can lose every copy. Missing files are marked too."));
}

TEST_F(MarkDialogTest, SaysThatRulesGoByRecordings) {
    MarkDialog dialog;
    const auto& helper = child<QLabel>(dialog, "markExceptOneLabel");
    dialog.setPreview({.marked = 1, .total = 3, .inForce = false, .byRecordings = true});
    EXPECT_EQ(helper.text(),
              QStringLiteral("One copy of each recording stays, a working one if there is one."));
    EXPECT_EQ(child<QLabel>(dialog, "markKeepLabel").text(), QStringLiteral("Keep of each recording"));
    child<QCheckBox>(dialog, "markExceptOneCK").click();
    EXPECT_EQ(helper.text(), QStringLiteral("Copies that tie all stay. No recording loses every copy."));
    dialog.setPreview({});
    EXPECT_EQ(helper.text(), QStringLiteral("Copies that tie all stay. Missing files are marked too."));
}

TEST_F(MarkDialogTest, OffersToCompareSoundWhereThatCanBeDone) {
    MarkDialog dialog;
    QSignalSpy asked(&dialog, &MarkDialog::compareSoundRequested);
    child<QPushButton>(dialog, "markSoundButton").click();
    EXPECT_EQ(asked.size(), 1);
    dialog.setSoundAvailable(false);
    EXPECT_TRUE(child<QWidget>(dialog, "markSoundRow").isHidden());
}

TEST_F(MarkDialogTest, ShowsWhatTheChoiceWouldDo) {
    MarkDialog dialog;
    auto& line = child<QLabel>(dialog, "markLiveLabel");
    EXPECT_EQ(line.text(), QStringLiteral("No tracks to mark"));
    dialog.setPreview({.marked = 37, .total = 81, .inForce = false});
    EXPECT_EQ(line.text(), QStringLiteral("Would mark 37 of 81"));
    EXPECT_EQ(test::accessibleName(line), QStringLiteral("Would mark 37 of 81"));
    dialog.setPreview({.marked = 37, .total = 81, .inForce = false, .byHand = 7});
    EXPECT_EQ(line.text(), QStringLiteral("Would mark 37 of 81,\nreplaces 7 marks made by hand"));
    dialog.setPreview({.marked = 37, .total = 81, .inForce = false, .byHand = 1});
    EXPECT_EQ(line.text(), QStringLiteral("Would mark 37 of 81,\nreplaces 1 mark made by hand"));
    dialog.setPreview({.marked = 37, .total = 81, .inForce = true});
    EXPECT_EQ(line.text(), QStringLiteral("Marked 37 of 81"));
    dialog.setPreview({.marked = 37, .total = 81, .inForce = false, .matches = false});
    EXPECT_EQ(line.text(), QStringLiteral("No track matches. Would mark 37 of 81"));
    dialog.setPreview({});
    EXPECT_EQ(line.text(), QStringLiteral("No tracks to mark"));
}

TEST_F(MarkDialogTest, MovesTogetherWhereAScreenIsTooLow) {
    const int room = QGuiApplication::primaryScreen()->availableGeometry().height();
    setFont(1.44, 100);
    MarkDialog dialog;
    QCoreApplication::sendPostedEvents();
    dialog.ensurePolished();
    ASSERT_GT(dialog.sizeHint().height(), room - 40);
    test::open(dialog);
    EXPECT_LE(dialog.height(), room - 40);
    EXPECT_EQ(test::clippedControls(dialog), QStringList());
}

TEST_F(MarkDialogTest, PromisesNoMarksBeforeAFolderIsChosen) {
    MarkDialog dialog;
    auto& line = child<QLabel>(dialog, "markLiveLabel");
    child<QRadioButton>(dialog, "markFolderRB").click();
    dialog.setPreview({.marked = 56, .total = 104, .matches = false});
    EXPECT_EQ(line.text(), QStringLiteral("No folder chosen"));
    dialog.setPreview({.marked = 56, .total = 104, .inForce = true});
    EXPECT_EQ(line.text(), QStringLiteral("Marked 56 of 104"));
    dialog.setFolder(QStringLiteral("/music"));
    dialog.setPreview({.marked = 56, .total = 104});
    EXPECT_EQ(line.text(), QStringLiteral("Would mark 56 of 104"));
}

TEST_F(MarkDialogTest, MarksAndStaysOpenOnReturnAndClosesOnEscape) {
    MarkDialog dialog;
    QSignalSpy marks(&dialog, &MarkDialog::markRequested);
    QSignalSpy closings(&dialog, &MarkDialog::rejected);
    test::open(dialog);
    test::press(dialog, Qt::Key_Return);
    EXPECT_EQ(marks.count(), 1);
    child<QComboBox>(dialog, "markKindCMB").setFocus();
    test::press(dialog, Qt::Key_Return);
    EXPECT_EQ(marks.count(), 2);
    test::press(dialog, Qt::Key_M, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return marks.count() == 3; })); // a mnemonic shows the click first
    EXPECT_TRUE(dialog.isVisible());
    test::press(dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(closings.count(), 1);
}

TEST_F(MarkDialogTest, OpensWithTheFocusOnTheChosenRule) {
    MarkDialog dialog;
    QSignalSpy openings(&dialog, &MarkDialog::opening);
    test::open(dialog);
    EXPECT_EQ(openings.count(), 1);
    EXPECT_EQ(dialog.focusWidget(), &child<QRadioButton>(dialog, "markBitrateRB"));
    child<QRadioButton>(dialog, "markSizeRB").click();
    child<QPushButton>(dialog, "markCancelButton").setFocus();
    test::press(dialog, Qt::Key_Escape);
    test::open(dialog);
    EXPECT_EQ(openings.count(), 2);
    EXPECT_EQ(dialog.focusWidget(), &child<QRadioButton>(dialog, "markSizeRB"));
}

TEST_F(MarkDialogTest, HasTheRulesInOneTabStopBeforeTheirComboBox) {
    MarkDialog dialog;
    test::open(dialog);
    EXPECT_EQ(dialog.focusWidget(), &child<QRadioButton>(dialog, "markBitrateRB"));
    test::press(dialog, Qt::Key_Down);
    EXPECT_EQ(dialog.choice().markType, MarkType::longest);
    test::press(dialog, Qt::Key_Tab);
    EXPECT_EQ(dialog.focusWidget(), &child<QComboBox>(dialog, "markTimeCMB"));
    child<QRadioButton>(dialog, "markBitrateRB").click();
    child<QRadioButton>(dialog, "markBitrateRB").setFocus();
    const QStringList expected{
        QStringLiteral("markBitrateRB"),    QStringLiteral("markBitrateCMB"),
        QStringLiteral("markTimeCMB"),      QStringLiteral("markSizeCMB"),
        QStringLiteral("markRatingCMB"),    QStringLiteral("markPlayCountCMB"),
        QStringLiteral("markDateAddedCMB"), QStringLiteral("markArtworkCMB"),
        QStringLiteral("markKindCMB"),      QStringLiteral("markFolderTF"),
        QStringLiteral("markFolderButton"), QStringLiteral("markExceptOneCK"),
        QStringLiteral("markSoundButton"),  QStringLiteral("markCancelButton"),
        QStringLiteral("markMarkButton"),
    };
    EXPECT_EQ(test::tabOrder(dialog), expected);
}

TEST_F(MarkDialogTest, HasOneFilledButtonAndNoMnemonicTwice) {
    MarkDialog dialog;
    test::open(dialog);
    EXPECT_EQ(test::filledButtons(dialog), QStringList(QStringLiteral("&Mark")));
    EXPECT_EQ(test::mnemonics(dialog), QStringLiteral("ABCDEFHKMPRSTW"));
    EXPECT_EQ(child<QPushButton>(dialog, "markMarkButton").toolTip(),
              QStringLiteral("Replaces all present marks"));
    EXPECT_FALSE(dialog.isModal());
}

TEST_F(MarkDialogTest, NamesEveryControlForAssistiveTechnology) {
    MarkDialog dialog;
    EXPECT_EQ(test::accessibleName(child<QWidget>(dialog, "markBitrateRB")),
              QStringLiteral("Keep by bit rate"));
    // A combo box is named by its text.
    EXPECT_EQ(test::accessibleDescription(child<QWidget>(dialog, "markBitrateCMB")),
              QStringLiteral("Bit rate to keep"));
    EXPECT_EQ(test::accessibleDescription(child<QWidget>(dialog, "markKindCMB")),
              QStringLiteral("Kind to mark"));
    EXPECT_EQ(test::accessibleName(child<QWidget>(dialog, "markFolderTF")), QStringLiteral("Folder to mark"));
    EXPECT_EQ(test::accessibleName(child<QWidget>(dialog, "markFolderButton")),
              QStringLiteral("Choose a folder"));
    EXPECT_EQ(test::accessibleName(child<QWidget>(dialog, "markMarkButton")), QStringLiteral("Mark"));
}

TEST_F(MarkDialogTest, OpensAChooserForOneFolderAndTellsItsAnswer) {
    MarkDialog dialog;
    QSignalSpy requests(&dialog, &MarkDialog::folderRequested);
    test::open(dialog);
    child<QPushButton>(dialog, "markFolderButton").click();
    EXPECT_EQ(requests.count(), 1);
    QSignalSpy answers(&dialog, &MarkDialog::folderChosen);
    dialog.openFolderChooser();
    auto* chooser = dialog.findChild<QFileDialog*>();
    ASSERT_NE(chooser, nullptr);
    EXPECT_EQ(chooser->windowTitle(), QStringLiteral("Select a folder"));
    EXPECT_EQ(chooser->labelText(QFileDialog::Accept), QStringLiteral("Select"));
    EXPECT_EQ(chooser->fileMode(), QFileDialog::Directory);
    Q_EMIT chooser->fileSelected(QStringLiteral("/media/Old"));
    chooser->close();
    ASSERT_EQ(answers.count(), 1);
    EXPECT_EQ(answers.front().front().toString(), QStringLiteral("/media/Old"));
}

TEST_F(MarkDialogTest, ChangesNothingWhenTheChooserIsCancelled) {
    MarkDialog dialog;
    dialog.selectMissingItems();
    test::open(dialog);
    dialog.openFolderChooser();
    auto* chooser = dialog.findChild<QFileDialog*>();
    ASSERT_NE(chooser, nullptr);
    chooser->reject();
    EXPECT_EQ(dialog.choice().markType, MarkType::highestBitrate);
    EXPECT_TRUE(child<QLineEdit>(dialog, "markFolderTF").text().isEmpty());
}

} // namespace
} // namespace songsweep
