// SPDX-License-Identifier: MIT
#include "app/AboutDialog.h"

#include "support/ThemedTest.h"
#include "support/Widgets.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace songsweep {
namespace {

using test::child;

class AboutDialogTest : public test::ThemedTest {};

TEST_F(AboutDialogTest, ShowsNameVersionAndPurpose) {
    AboutDialog dialog;
    dialog.setLabel("Songsweep 1.0");
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("About Songsweep"));
    EXPECT_EQ(child<QLabel>(dialog, "aboutLabel").text(), QStringLiteral("Songsweep 1.0"));
    EXPECT_EQ(child<QLabel>(dialog, "aboutTextLabel").text(),
              QStringLiteral("Finds the songs you have twice."));
}

TEST_F(AboutDialogTest, AsksForEachOfItsLinks) {
    AboutDialog dialog;
    QSignalSpy website(&dialog, &AboutDialog::websiteRequested);
    QSignalSpy help(&dialog, &AboutDialog::helpRequested);
    QSignalSpy contact(&dialog, &AboutDialog::contactRequested);
    child<QPushButton>(dialog, "aboutWebsiteButton").click();
    EXPECT_EQ(website.count(), 1);
    child<QPushButton>(dialog, "aboutHelpButton").click();
    EXPECT_EQ(help.count(), 1);
    child<QPushButton>(dialog, "aboutContactButton").click();
    EXPECT_EQ(contact.count(), 1);
    EXPECT_EQ(website.count() + help.count() + contact.count(), 3);
}

TEST_F(AboutDialogTest, ClosesOnReturnAndOnEscapeAlsoFromAButton) {
    AboutDialog dialog;
    QSignalSpy website(&dialog, &AboutDialog::websiteRequested);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
        test::open(dialog);
        test::press(dialog, key);
        EXPECT_FALSE(dialog.isVisible());
        test::open(dialog);
        child<QPushButton>(dialog, "aboutWebsiteButton").setFocus();
        test::press(dialog, key);
        EXPECT_FALSE(dialog.isVisible());
    }
    EXPECT_EQ(website.count(), 0);
}

TEST_F(AboutDialogTest, ReachesItsButtonsByTabAndFillsNone) {
    AboutDialog dialog;
    test::open(dialog);
    EXPECT_EQ(dialog.focusWidget(), &dialog);
    test::press(dialog, Qt::Key_Tab);
    const QStringList buttons{QStringLiteral("aboutWebsiteButton"), QStringLiteral("aboutHelpButton"),
                              QStringLiteral("aboutContactButton")};
    EXPECT_EQ(test::tabOrder(dialog).first(buttons.size()), buttons);
    EXPECT_TRUE(test::filledButtons(dialog).isEmpty());
    EXPECT_EQ(test::mnemonics(dialog), QStringLiteral("CHW"));
}

} // namespace
} // namespace songsweep
