// SPDX-License-Identifier: MIT
#include "app/MainWindow.h"
#include "app/TableFilter.h"
#include "ui/NoticeBarView.h"
#include "ui/NoticePageView.h"
#include "ui/TrackTableModel.h"
#include "ui_MainWindow.h"

#include <QPushButton>

namespace songsweep {

namespace {

QString labelOf(NoticeAction action) {
    switch (action) {
    case NoticeAction::details:
        return QStringLiteral("Details");
    case NoticeAction::showTrash:
        return QStringLiteral("Show Trash");
    case NoticeAction::showBackup:
        return QStringLiteral("Show backup");
    case NoticeAction::finish:
        return QStringLiteral("Finish");
    case NoticeAction::restore:
        return QStringLiteral("Restore...");
    }
    return {};
}

} // namespace

void MainWindow::setUpNotice() {
    m_ui->noticeBar->hide();
    const auto click = [this](int index) {
        Q_EMIT noticeActionClick(m_notice->actions.at(static_cast<std::size_t>(index)));
    };
    connect(m_ui->noticeBar, &NoticeBarView::actionClicked, this, click);
    connect(m_ui->noticePage, &NoticePageView::actionClicked, this, click);
    connect(m_ui->noticeBar, &NoticeBarView::closed, this, &MainWindow::noticeClosed);
    connect(&m_ui->noticePage->searchButton(), &QPushButton::clicked, this, &MainWindow::startButtonClick);
}

void MainWindow::showNotice(const Notice& notice) {
    m_notice = notice;
    QStringList labels;
    for (const NoticeAction action : notice.actions)
        labels << labelOf(action);
    m_ui->noticeBar->setMessage(QString::fromStdString(notice.line), notice.isWarning);
    m_ui->noticeBar->setActions(labels);
    m_ui->noticePage->setMessage(QString::fromStdString(notice.title), QString::fromStdString(notice.rest));
    m_ui->noticePage->setActions(labels);
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
