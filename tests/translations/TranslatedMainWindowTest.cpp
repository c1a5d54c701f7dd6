// SPDX-License-Identifier: MIT
#include "app/MainWindow.h"
#include "support/RecordingLog.h"
#include "support/ThemedTest.h"
#include "support/Widgets.h"
#include "translations/Speaking.h"

#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>

#include <gtest/gtest.h>

namespace songsweep {
namespace {

class TranslatedMainWindow : public test::ThemedTest, public testing::WithParamInterface<const char*> {
  protected:
    const test::Speaking m_language{GetParam()};
    test::RecordingLog m_log;
    MainWindow m_window{m_log};
};

/// The letters that menus or entries side by side have twice.
QStringList sharedMnemonics(const QWidget& menu) {
    QStringList found;
    QStringList letters;
    for (const QAction* item : menu.actions()) {
        const QString letter = QKeySequence::mnemonic(item->text()).toString();
        if (!letter.isEmpty() && letters.contains(letter)) found << item->text();
        letters << letter;
    }
    return found;
}

TEST_P(TranslatedMainWindow, ClipsNothingAtItsSmallest) {
    m_window.resize(m_window.minimumSize());
    m_window.show();
    QCoreApplication::sendPostedEvents();
    EXPECT_LE(m_window.width(), 760);
    EXPECT_LE(m_window.height(), 420);
    QStringList clipped = test::clippedControls(m_window);
    clipped.removeAll(QString()); // the magnifier, which is a part of its field and has no text
    EXPECT_EQ(clipped, QStringList());
}

TEST_P(TranslatedMainWindow, HasEachMnemonicOfAMenuOnce) {
    EXPECT_EQ(sharedMnemonics(*m_window.menuBar()), QStringList());
    for (const QMenu* menu : m_window.menuBar()->findChildren<QMenu*>())
        EXPECT_EQ(sharedMnemonics(*menu), QStringList()) << menu->title().toStdString();
}

INSTANTIATE_TEST_SUITE_P(, TranslatedMainWindow, testing::Values("de", "ja"),
                         [](const testing::TestParamInfo<const char*>& each) {
                             return std::string(each.param);
                         });

} // namespace
} // namespace songsweep
