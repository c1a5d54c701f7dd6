// SPDX-License-Identifier: MIT
#include "app/Alerts.h"

#include "support/ThemedTest.h"
#include "support/Widgets.h"

#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <optional>

namespace songsweep {
namespace {

const QString cantAccess =
    QStringLiteral("Can't access iTunes. If there is a dialog window (eg. update notification, song info, "
                   "preferences) showing on iTunes, please close it first.");

class Alerts : public test::ThemedTest {
  protected:
    Alerts() { m_window.show(); }

    QMessageBox& openCantAccess(const QString& reason = {}) {
        QMessageBox* box =
            alerts::openCantAccess(&m_window, cantAccess, reason, [this](int code) { m_returnCode = code; });
        EXPECT_TRUE(box->isVisible());
        return *box;
    }

    static QPushButton* button(const QMessageBox& box, const QString& text) {
        for (auto* each : box.findChildren<QPushButton*>()) {
            if (each->text() == text) return each;
        }
        return nullptr;
    }

    QWidget m_window;
    std::optional<int> m_returnCode;
};

TEST_F(Alerts, SayThatNothingWasFoundWithOneButtonAndNoIcon) {
    const QPointer<QMessageBox> box = alerts::openNoDuplicates(&m_window);
    EXPECT_EQ(box->text(), QStringLiteral("No duplicates found."));
    EXPECT_EQ(box->icon(), QMessageBox::NoIcon);
    EXPECT_EQ(box->buttons().count(), 1);
    EXPECT_EQ(test::filledButtons(*box), QStringList(QStringLiteral("OK")));
    EXPECT_NE(box->windowModality(), Qt::NonModal);
    test::press(*box, Qt::Key_Return);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(box.isNull());
}

TEST_F(Alerts, ExplainBelowThatNothingWasSearched) {
    QMessageBox& box = *alerts::openNoDuplicates(
        &m_window, QStringLiteral("0 of 12000 tracks were searched: the library file "
                                  "has no playlist named “Music”"));
    EXPECT_EQ(box.text(), QStringLiteral("No duplicates found."));
    EXPECT_TRUE(box.informativeText().startsWith(QStringLiteral("0 of 12000 tracks were searched")));
    EXPECT_TRUE(test::clippedControls(box).isEmpty()) << test::clippedControls(box).join(u' ').toStdString();
    box.close();
}

TEST_F(Alerts, TellThatITunesDoesNotAnswer) {
    QMessageBox& box = openCantAccess();
    EXPECT_EQ(box.text(), cantAccess);
    EXPECT_EQ(box.icon(), QMessageBox::Warning);
    EXPECT_EQ(test::filledButtons(box), QStringList(QStringLiteral("OK")));
    EXPECT_EQ(box.windowType(), Qt::Sheet);
    EXPECT_TRUE(box.informativeText().isEmpty());
    EXPECT_FALSE(m_returnCode.has_value());
    box.close();
}

TEST_F(Alerts, AnswerWithTheFirstButtonForOkReturnAndEscape) {
    button(openCantAccess(), QStringLiteral("OK"))->click();
    EXPECT_EQ(m_returnCode, alerts::firstButton);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        m_returnCode.reset();
        test::press(openCantAccess(), key);
        EXPECT_EQ(m_returnCode, alerts::firstButton);
    }
}

TEST_F(Alerts, AnswerWith1001ForHelp) {
    button(openCantAccess(), QStringLiteral("&Help"))->click();
    EXPECT_EQ(m_returnCode, 1001);
}

TEST_F(Alerts, TellThatTheLibraryCannotBeWritten) {
    QMessageBox& box =
        *alerts::openCantWriteLibrary(nullptr, QStringLiteral("/music/Library.xml: no space left"));
    EXPECT_EQ(box.text(), QStringLiteral("Can't write the library."));
    EXPECT_EQ(box.informativeText(), QStringLiteral("/music/Library.xml: no space left"));
    EXPECT_EQ(test::filledButtons(box), QStringList(QStringLiteral("OK")));
    EXPECT_TRUE(test::clippedControls(box).isEmpty()) << test::clippedControls(box).join(u' ').toStdString();
    box.close();
}

TEST_F(Alerts, StandWhereAnyDialogOfTheirSizeStands) {
    m_window.setGeometry(100, 100, 600, 500);
    for (QMessageBox* box : {alerts::openNoDuplicates(&m_window),
                             &openCantAccess(QStringLiteral("The library file cannot be read"))}) {
        QDialog other(&m_window);
        other.setFixedSize(box->size());
        other.open();
        EXPECT_EQ(box->pos(), other.pos());
        box->close();
    }
}

TEST_F(Alerts, GiveTheReasonWhereThereIsOne) {
    QMessageBox& box = openCantAccess(QStringLiteral("The library file cannot be read"));
    EXPECT_EQ(box.informativeText(), QStringLiteral("The library file cannot be read"));
    EXPECT_TRUE(test::clippedControls(box).isEmpty()) << test::clippedControls(box).join(u' ').toStdString();
    box.close();
}

TEST_F(Alerts, ShowMarkupAsItIs) {
    QMessageBox& box = openCantAccess(QStringLiteral("<a href=\"https://songsweep.example\">x</a>"));
    const auto labels = box.findChildren<QLabel*>();
    ASSERT_GE(labels.size(), 2);
    for (const QLabel* label : labels)
        EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->text().toStdString();
    box.close();
}

} // namespace
} // namespace songsweep
