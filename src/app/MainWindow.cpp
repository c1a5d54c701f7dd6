// SPDX-License-Identifier: MIT
#include "app/MainWindow.h"

#include "app/BringToFront.h"
#include "app/Progress.h"
#include "app/ProgressTexts.h"
#include "app/SlicedGain.h"
#include "app/TableFilter.h"
#include "library/ValueFormats.h"
#include "theme/Announcement.h"
#include "theme/CountedText.h"
#include "ui/MessagePageView.h"
#include "ui/NoticeBarView.h"
#include "ui/SWTableView.h"
#include "ui/TrackHeaderView.h"
#include "ui/TrackTableModel.h"
#include "ui_MainWindow.h"

#include <QGuiApplication>
#include <QPushButton>
#include <QScreen>

#include <algorithm>
#include <utility>

namespace songsweep {

namespace {

QString countedSongs(int count) { return countedText("MainWindow", "%1 songs", "1 song", count); }

/// "· 104 copies of 48 songs · 56 marked, 412.0 MB"
QString gainText(const ListGain& gain) {
    QString held = QStringLiteral("· ") +
                   MainWindow::tr("%L1 copies of %2").arg(gain.copies).arg(countedSongs(gain.songs));
    if (gain.marked == 0) return held;
    return held + QStringLiteral(" · ") +
           MainWindow::tr("%L1 marked, %2")
               .arg(gain.marked)
               .arg(QString::fromStdString(megabytes(gain.markedBytes)));
}

} // namespace

MainWindow::MainWindow(Log& log, QWidget* parent)
    : QMainWindow(parent)
    , m_ui(std::make_unique<Ui::MainWindow>())
    , m_model(new TrackTableModel(this))
    , m_filter(new TableFilter(this))
    , m_gain(new SlicedGain(this)) {
    m_ui->setupUi(this);
    connect(m_gain, &SlicedGain::counted, this, &MainWindow::showGain);
    m_lengths.emplace(*this);
    m_ui->contentStack->setBackgroundRole(QPalette::Base);
    setUpToolbar();
    setUpToolTips();
    setUpEmptyPage();
    setUpPageKeys();
    setUpTable(log);
    setUpContextMenu();
    setUpFilter();
    setUpDetails();
    setUpNotice();
    connectFileMenu();
    connectMarkAndTrackMenu();
    connectWindowAndHelpMenu();
    applyMetrics();
    setUndoNames({}, {});
    setSoundsCompared(false);
    setMarkEnabled(false);
    setDeleteEnabled(false);
    m_ui->emptyPage->setFocus(Qt::OtherFocusReason);
}

MainWindow::~MainWindow() = default;

SWTableView& MainWindow::tableview() const { return *m_ui->tableview; }

QAction& MainWindow::quitMenuitem() const { return *m_ui->quitMenuitem; }

void MainWindow::reloadTable(const DisplayedList& tableDataSource) {
    const bool firstResults = m_model->rows().empty();
    m_filter->setList(tableDataSource);
    m_ui->tableview->reloadData(m_filter->shown());
    m_ui->filterField->setEnabled(!tableDataSource.rows.empty());
    if (firstResults && !m_model->rows().empty())
        m_ui->tableview->selectionModel()->setCurrentIndex(m_model->index(0, static_cast<int>(Column::name)),
                                                           QItemSelectionModel::NoUpdate);
    updateSearchedLabel();
    updateGainLabel();
    updateDetails();
    Q_EMIT tableReloaded();
}

void MainWindow::setTableVisible(bool visible) {
    m_tableVisible = visible;
    showPage();
}

void MainWindow::setPerformLabelVisible(bool visible) {
    m_performLabelVisible = visible;
    showPage();
}

void MainWindow::showPage() {
    QWidget* page = m_ui->blankPage;
    QWidget* focus = nullptr;
    if (isNoticePage()) {
        page = m_ui->noticePage;
        focus = &m_ui->noticePage->leadingButton();
    } else if (m_tableVisible) {
        page = m_ui->tableviewContainer;
        focus = m_ui->tableview;
    } else if (m_progressVisible) {
        page = m_ui->progressPage;
        focus = m_ui->formprogressCancelButton;
    } else if (m_performLabelVisible) {
        page = m_ui->emptyPage;
        focus = m_ui->emptyPage;
    }
    m_ui->noticeBar->setVisible(m_notice && page != m_ui->noticePage);
    updateSearchedLabel();
    const bool changes = page != m_ui->contentStack->currentWidget();
    m_ui->contentStack->setCurrentWidget(page);
    if (focus && changes) focus->setFocus(Qt::OtherFocusReason);
}

void MainWindow::setHorizontalScroller(bool shown) {
    m_ui->tableview->setHorizontalScrollBarPolicy(shown ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
}

void MainWindow::setSortIndicator(Column column, bool ascending) {
    m_ui->tableview->header().setSortIndicator(column, ascending);
}

void MainWindow::clearSortIndicator() { m_ui->tableview->header().clearSortIndicator(); }

void MainWindow::setSoundsCompared(bool compared) {
    m_ui->tableview->showColumn(Column::sound, compared);
    m_sortBySound->setVisible(compared);
}

void MainWindow::setSoundAvailable(bool available) { m_ui->compareSoundMenuitem->setVisible(available); }

std::vector<int> MainWindow::selectedRows() const {
    std::vector<int> rows = m_ui->tableview->selectedRows();
    for (int& row : rows)
        row = m_filter->rowOf(row);
    return rows;
}

int MainWindow::selectedRow() const { return m_filter->rowOf(m_ui->tableview->selectedRow()); }

void MainWindow::beginProgress() {
    m_progressVisible = true;
    showPage();
    setSearchEnabled(false);
}

void MainWindow::endProgress() {
    m_progressVisible = false;
    showPage();
    setSearchEnabled(true);
}

void MainWindow::setProgressValue(double percent) {
    const int value = wholePercent(percent);
    m_ui->formprogress->setValue(value);
    m_ui->progressValueLabel->setText(QStringLiteral("%1 %").arg(value));
}

void MainWindow::setProgressCounts(const ProgressCounts& counts) {
    m_ui->progressCountLabel->setText(progressText(counts));
}

void MainWindow::setProgressText(const std::string& phase) {
    showLive(*m_ui->progressInfoLabel, QString::fromStdString(phase));
}

void MainWindow::setStatusText(const std::string& text) {
    showLive(*m_ui->statusBottomLabel, QString::fromStdString(text));
}

void MainWindow::setStatusVisible(bool visible) { m_ui->statusBottomLabel->setVisible(visible); }

void MainWindow::setSearchedText(const std::string& text) {
    m_searchedText = QString::fromStdString(text);
    updateSearchedLabel();
}

void MainWindow::updateSearchedLabel() {
    const bool results = m_tableVisible && !m_filter->all().rows.empty();
    m_ui->searchedLabel->setText(results ? m_searchedText : QString());
    m_ui->gainLabel->setVisible(results);
}

/// At every reload, which also follows the space bar, so that its user sees what is marked by now.
void MainWindow::updateGainLabel() { m_gain->count(m_filter->all().rows); }

void MainWindow::showGain(const ListGain& gain) {
    const auto shown = static_cast<int>(m_filter->shown().rows.size());
    const QString filtered =
        shown == gain.copies
            ? QString()
            : QStringLiteral("· %1 ").arg(tr("%L1 of %L2 shown").arg(shown).arg(gain.copies));
    m_ui->gainLabel->setText(gain.copies == 0 ? QString() : filtered + gainText(gain));
}

void MainWindow::setSearchEnabled(bool enabled) {
    m_ui->searchButton->setEnabled(enabled);
    m_ui->emptyPage->leadingButton().setEnabled(enabled);
    validateMenuItems();
}

void MainWindow::setUndoNames(const std::string& undo, const std::string& redo) {
    const auto name = [](QAction& item, const QString& verb, const std::string& what) {
        item.setText(what.empty() ? verb : tr("%1 “%2”").arg(verb, QString::fromStdString(what)));
        item.setEnabled(!what.empty());
    };
    name(*m_ui->undoMenuitem, MainWindow::tr("&Undo"), undo);
    name(*m_ui->redoMenuitem, MainWindow::tr("&Redo"), redo);
}

void MainWindow::setMarkEnabled(bool enabled) {
    m_ui->autoMarkButton->setEnabled(enabled);
    validateMenuItems();
}

void MainWindow::setDeleteEnabled(bool enabled) { m_ui->deleteButton->setEnabled(enabled); }

bool MainWindow::validateMenuItem(const QAction& item) const {
    if (&item == m_ui->autoMarkMenuitem) return m_ui->autoMarkButton->isEnabled();
    if (&item == m_ui->searchMenuitem) return m_ui->searchButton->isEnabled();
    return true;
}

void MainWindow::validateMenuItems() {
    for (QAction* item : {m_ui->autoMarkMenuitem, m_ui->searchMenuitem})
        item->setEnabled(validateMenuItem(*item));
}

void MainWindow::openAtFirstSize() {
    constexpr QSize wanted(1280, 760);
    resize(wanted.boundedTo(screen()->availableSize()));
    m_fitsIntoScreen = false;
}

/// The frame is the window manager's, and known only once the window is on the screen.
void MainWindow::keepOnScreen() {
    if (std::exchange(m_fitsIntoScreen, true)) return;
    const QRect free = screen()->availableGeometry();
    const QRect frame = frameGeometry();
    if (free.contains(frame)) return;
    const QSize extents = frame.size() - size();
    const QSize fitted = size().boundedTo(free.size() - extents);
    resize(fitted);
    const auto inside = [](int begin, int length, int freeBegin, int freeLength) {
        return std::max(freeBegin, std::min(begin, freeBegin + freeLength - length));
    };
    move(inside(frame.left(), fitted.width() + extents.width(), free.left(), free.width()),
         inside(frame.top(), fitted.height() + extents.height(), free.top(), free.height()));
}

void MainWindow::present() {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    bringToFront(*this);
}

} // namespace songsweep
