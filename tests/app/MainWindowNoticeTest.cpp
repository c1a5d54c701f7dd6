// SPDX-License-Identifier: MIT
#include "app/MainWindowFixture.h"
#include "support/ThemedTest.h"
#include "ui/NoticeBarView.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolButton>

namespace songsweep::test {
namespace {

class MainWindowNotice : public MainWindowFixture {
  protected:
    Notice m_notice{.title = "56 tracks deleted",
                    .rest = "36 files in the Trash (0.6 MB).",
                    .line = "56 tracks deleted, 36 files in the Trash (0.6 MB).",
                    .actions = {NoticeAction::details, NoticeAction::showTrash, NoticeAction::showBackup,
                                NoticeAction::restore}};

    NoticeBarView& bar() { return control<NoticeBarView>("noticeBar"); }
};

TEST_F(MainWindowNotice, StandsOverTheTableAsALineWithButtons) {
    showResults(list);
    EXPECT_FALSE(bar().isVisible());
    window.showNotice(m_notice);
    EXPECT_EQ(page(), QStringLiteral("tableviewContainer"));
    ASSERT_TRUE(bar().isVisible());
    EXPECT_EQ(bar().height(), 28);
    EXPECT_EQ(control<QLabel>("noticeLabel").text(), QString::fromStdString(m_notice.line));
    EXPECT_EQ(control<QToolButton>("noticeButton1").text(), QStringLiteral("Show in Trash"));
    QSignalSpy clicks(&window, &MainWindow::noticeActionClick);
    for (const char* name : {"noticeButton0", "noticeButton1", "noticeButton2", "noticeButton3"})
        control<QToolButton>(name).click();
    ASSERT_EQ(clicks.size(), 4);
    for (qsizetype i = 0; i < 4; ++i)
        EXPECT_EQ(clicks[i].at(0).value<NoticeAction>(), m_notice.actions[static_cast<std::size_t>(i)]);
}

TEST_F(MainWindowNotice, ClosesByItsCross) {
    showResults(list);
    window.showNotice(m_notice);
    const QSignalSpy closed(&window, &MainWindow::noticeClosed);
    control<QToolButton>("noticeCloseButton").click();
    EXPECT_EQ(closed.size(), 1);
    window.hideNotice();
    EXPECT_FALSE(bar().isVisible());
}

TEST_F(MainWindowNotice, HasThePageWhereNoRowIsLeft) {
    showResults({});
    window.showNotice(m_notice);
    EXPECT_EQ(page(), QStringLiteral("noticePage"));
    EXPECT_FALSE(bar().isVisible());
    EXPECT_EQ(control<QLabel>("noticePageTitle").text(), QStringLiteral("56 tracks deleted"));
    EXPECT_EQ(control<QLabel>("noticePageText").text(), QStringLiteral("36 files in the Trash (0.6 MB)."));
    EXPECT_EQ(focus(), QStringLiteral("noticePageButton4"));
    QSignalSpy clicks(&window, &MainWindow::noticeActionClick);
    control<QPushButton>("noticePageButton3").click();
    EXPECT_EQ(clicks.at(0).at(0).value<NoticeAction>(), NoticeAction::restore);
    const QSignalSpy searches(&window, &MainWindow::startButtonClick);
    control<QPushButton>("noticePageButton4").click();
    EXPECT_EQ(searches.size(), 1);
    window.hideNotice();
    EXPECT_EQ(page(), QStringLiteral("tableviewContainer"));
}

TEST_F(MainWindowNotice, AnotherTakesItsPlaceWithItsOwnButtons) {
    showResults(list);
    window.showNotice(m_notice);
    window.showNotice({.title = "a", .rest = "", .line = "a", .actions = {NoticeAction::details}});
    EXPECT_EQ(bar().message(), QStringLiteral("a"));
    EXPECT_EQ(window.findChild<QToolButton*>(QStringLiteral("noticeButton1")), nullptr);
}

TEST_F(MainWindowNotice, CutsALongLineAndTellsTheWholeInATip) {
    m_notice.line = std::string(300, 'W');
    showResults(list);
    window.showNotice(m_notice);
    QCoreApplication::sendPostedEvents();
    window.resize(800, 500);
    const auto& label = control<QLabel>("noticeLabel");
    EXPECT_LT(label.text().size(), 300);
    EXPECT_FALSE(label.toolTip().isEmpty());
    EXPECT_LE(window.width(), 800);
}

TEST_F(MainWindowNotice, ShowsAWarningByAPictureToo) {
    showResults(list);
    window.showNotice(m_notice);
    const auto pictures = [this] {
        const auto labels = bar().findChildren<QLabel*>();
        return std::count_if(labels.begin(), labels.end(), [](const QLabel* label) {
            return label->isVisible() && label->property("icon").isValid();
        });
    };
    EXPECT_EQ(pictures(), 0);
    m_notice.isWarning = true;
    window.showNotice(m_notice);
    EXPECT_EQ(pictures(), 1);
}

} // namespace
} // namespace songsweep::test
