// SPDX-License-Identifier: MIT
#include "app/MainWindow.h"
#include "app/TableFilter.h"
#include "ui/MessagePageView.h"
#include "ui/NoticeBarView.h"
#include "ui/TrackTableModel.h"
#include "ui_MainWindow.h"

#include <QPushButton>

namespace songsweep {

namespace {

QString labelOf(NoticeAction action) {
    switch (action) {
    case NoticeAction::details:
        return MainWindow::tr("Details");
    case NoticeAction::showTrash:
        return MainWindow::tr("Show in Trash");
    case NoticeAction::showBackup:
        return MainWindow::tr("Show backup");
    case NoticeAction::finish:
        return MainWindow::tr("Finish");
    case NoticeAction::restore:
        return MainWindow::tr("Restore...");
    case NoticeAction::chooseFilesFolder:
        return MainWindow::tr("Choose the music folder...");
    case NoticeAction::searchWithFewer:
        return MainWindow::tr("Search with fewer fields...");
    }
    return {};
}

} // namespace

void MainWindow::setUpNotice() {
    m_ui->noticeBar->hide();
    m_ui->noticePage->nameParts(QStringLiteral("noticePage"));
    const auto click = [this](int index) {
        const auto number = static_cast<std::size_t>(index);
        if (number == m_notice->actions.size()) return Q_EMIT startButtonClick(); // the page's last
        Q_EMIT noticeActionClick(m_notice->actions.at(number));
    };
    connect(m_ui->noticeBar, &NoticeBarView::actionClicked, this, click);
    connect(m_ui->noticePage, &MessagePageView::buttonClicked, this, click);
    connect(m_ui->noticeBar, &NoticeBarView::closed, this, &MainWindow::noticeClosed);
}

void MainWindow::showNotice(const Notice& notice) {
    m_notice = notice;
    QStringList labels;
    for (const NoticeAction action : notice.actions)
        labels << labelOf(action);
    m_ui->noticeBar->setMessage(QString::fromStdString(notice.line), notice.isWarning);
    m_ui->noticeBar->setActions(labels);
    m_ui->noticePage->setWords({QString::fromStdString(notice.title), QString::fromStdString(notice.rest)});
    std::vector<MessagePageView::Button> buttons;
    for (const QString& label : labels)
        buttons.push_back({label});
    buttons.push_back({MainWindow::tr("&Search..."), MainWindow::tr("Find duplicates")});
    m_ui->noticePage->setButtons(buttons, static_cast<int>(labels.size()));
    showPage();
}

void MainWindow::hideNotice() {
    m_notice.reset();
    showPage();
}

void MainWindow::showNoticeDetails(const std::vector<std::string>& lines) { Q_EMIT noticeDetails(lines); }

/// Whether the message has the page for itself: what happened left nothing else to show.
bool MainWindow::isNoticePage() const { return m_notice && m_tableVisible && m_filter->all().rows.empty(); }

} // namespace songsweep
