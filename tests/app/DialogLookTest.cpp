// SPDX-License-Identifier: MIT
#include "app/DialogOpeners.h"
#include "support/ThemedTest.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

#include <gtest/gtest.h>

namespace songsweep {
namespace {

using test::Opener;

class DialogLook : public test::ThemedTest, public testing::WithParamInterface<Opener> {};

TEST_P(DialogLook, IsAsWideAsDesigned) {
    const auto dialog = GetParam().make();
    dialog->show();
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(dialog->width(), GetParam().width);
}

TEST_P(DialogLook, CannotBeMinimised) {
    const Qt::WindowFlags flags = GetParam().make()->windowFlags();
    EXPECT_TRUE(flags.testFlag(Qt::CustomizeWindowHint)) << "the window manager would add its own";
    EXPECT_TRUE(flags.testFlag(Qt::WindowCloseButtonHint));
    EXPECT_FALSE(flags.testFlag(Qt::WindowMinimizeButtonHint));
}

TEST_P(DialogLook, ClipsNothingAtTwiceTheFontSize) {
    setFont(2, 100);
    const auto dialog = GetParam().make();
    dialog->show();
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(test::clippedControls(*dialog), QStringList());
    EXPECT_GE(dialog->width(), 2 * GetParam().width);
}

TEST_P(DialogLook, ClipsNothingInAWiderFont) {
    setFont(1, 120);
    const auto dialog = GetParam().make();
    dialog->show();
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(test::clippedControls(*dialog), QStringList());
}

/// As other languages have them: half as long again.
void lengthenTexts(const QWidget& window) {
    const auto longer = [](const QString& text) {
        return text.isEmpty() ? text : text + QString((text.size() + 1) / 2, QLatin1Char('o'));
    };
    for (QLabel* label : window.findChildren<QLabel*>())
        if (label->pixmap().isNull()) label->setText(longer(label->text()));
    for (QAbstractButton* button : window.findChildren<QAbstractButton*>())
        button->setText(longer(button->text()));
}

TEST_P(DialogLook, ClipsNothingInLongerTexts) {
    const auto dialog = GetParam().make();
    lengthenTexts(*dialog);
    dialog->show();
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(test::clippedControls(*dialog), QStringList());
}

TEST_P(DialogLook, GrowsWhenTheFontChangesWhileItIsOpen) {
    const auto dialog = GetParam().make();
    dialog->show();
    setFont(2, 100);
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(test::clippedControls(*dialog), QStringList());
    EXPECT_GE(dialog->width(), 2 * GetParam().width);
}

INSTANTIATE_TEST_SUITE_P(, DialogLook, testing::ValuesIn(test::allDialogs),
                         [](const testing::TestParamInfo<Opener>& each) {
                             return std::string(each.param.name);
                         });

} // namespace
} // namespace songsweep
