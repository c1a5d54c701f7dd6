// SPDX-License-Identifier: MIT
#include "app/WindowedView.h"

#include "app/Alerts.h"
#include "ui/SWTableView.h"

#include <QApplication>

namespace songsweep {

namespace {

void present(QWidget& window) {
    window.show();
    window.raise();
    window.activateWindow();
}

} // namespace

WindowedView::WindowedView(Log& log)
    : m_mainWindow(log)
    , m_paramWindow(&m_mainWindow)
    , m_markWindow(&m_mainWindow)
    , m_deleteConfirmation(&m_mainWindow)
    , m_progressWindow(&m_mainWindow)
    , m_aboutWindow(&m_mainWindow) {}

WindowedView::~WindowedView() = default;

// The windows.

void WindowedView::showMainWindow() { m_mainWindow.present(); }
void WindowedView::showAboutWindow() { present(m_aboutWindow); }
void WindowedView::setAboutLabel(const std::string& text) { m_aboutWindow.setLabel(text); }

// The parameters dialog.

void WindowedView::showParamWindow() { present(m_paramWindow); }
void WindowedView::closeParamWindow() { m_paramWindow.hide(); }
void WindowedView::clearPlaylists() { m_paramWindow.clearPlaylists(); }
void WindowedView::addPlaylist(const std::string& name) { m_paramWindow.addPlaylist(name); }
void WindowedView::selectPlaylist(int index) { m_paramWindow.selectPlaylist(index); }

// The results table.

void WindowedView::reloadTable() {
    if (m_tableDataSource != nullptr) m_mainWindow.reloadTable(*m_tableDataSource);
    if (m_reloaded) m_reloaded();
}

void WindowedView::setTableVisible(bool visible) { m_mainWindow.setTableVisible(visible); }
void WindowedView::setPerformLabelVisible(bool visible) { m_mainWindow.setPerformLabelVisible(visible); }
void WindowedView::setHorizontalScroller(bool shown) { m_mainWindow.setHorizontalScroller(shown); }

void WindowedView::setSortIndicator(Column column, bool ascending) {
    m_mainWindow.setSortIndicator(column, ascending);
}

void WindowedView::clearSortIndicator() { m_mainWindow.clearSortIndicator(); }
std::vector<int> WindowedView::selectedRows() const { return m_mainWindow.selectedRows(); }
int WindowedView::selectedRow() const { return m_mainWindow.selectedRow(); }

// The progress display.

void WindowedView::beginProgress(ProgressBar bar) {
    if (bar == ProgressBar::formprogress)
        m_mainWindow.beginProgress();
    else
        m_progressWindow.open();
}

void WindowedView::endProgress(ProgressBar bar) {
    if (bar == ProgressBar::formprogress)
        m_mainWindow.endProgress();
    else
        endDeletion();
}

/// Whoever deleted from the toolbar goes on in the table, at the nearest row that is left.
void WindowedView::endDeletion() {
    m_progressWindow.hide();
    m_mainWindow.tableview().setFocus(Qt::OtherFocusReason);
}

void WindowedView::setProgressValue(double percent) {
    m_mainWindow.setProgressValue(percent);
    m_progressWindow.setValue(percent);
}

void WindowedView::setProgressInfo(const std::string& phase) { m_mainWindow.setProgressInfo(phase); }
void WindowedView::setProgressTitle(const std::string& title) { m_progressWindow.setTitle(title); }

// The status line and the buttons.

void WindowedView::setStatusText(const std::string& text) { m_mainWindow.setStatusText(text); }
void WindowedView::setSearchedText(const std::string& text) { m_mainWindow.setSearchedText(text); }
void WindowedView::setStatusVisible(bool visible) { m_mainWindow.setStatusVisible(visible); }
void WindowedView::setSearchEnabled(bool enabled) { m_mainWindow.setSearchEnabled(enabled); }
void WindowedView::setMarkEnabled(bool enabled) { m_mainWindow.setMarkEnabled(enabled); }
void WindowedView::setDeleteEnabled(bool enabled) { m_mainWindow.setDeleteEnabled(enabled); }
void WindowedView::beep() { QApplication::beep(); }

// Alerts.

void WindowedView::alertCantAccess(const std::string& message, const std::string& reason) {
    alerts::openCantAccess(&m_mainWindow, QString::fromStdString(message), QString::fromStdString(reason),
                           m_cantAccessEnded);
}

void WindowedView::alertNoDuplicates() { alerts::openNoDuplicates(&m_mainWindow); }

void WindowedView::alertCantOpen(const std::string& reason) {
    alerts::openCantOpenLibrary(&m_mainWindow, QString::fromStdString(reason));
}

void WindowedView::alertCantBeginDelete(const std::string& reason) {
    alertCantWrite(reason + "\nNothing was deleted.");
}

QMessageBox* WindowedView::alertCantWrite(const std::string& reason) {
    return alerts::openCantWriteLibrary(m_mainWindow.isVisible() ? &m_mainWindow : nullptr,
                                        QString::fromStdString(reason));
}

// The mark dialog.

void WindowedView::fillKinds(const std::vector<std::string>& kinds) { m_markWindow.fillKinds(kinds); }

void WindowedView::showMarkWindow() {
    m_markWindow.selectMissingItems();
    present(m_markWindow);
}

void WindowedView::closeMarkWindow() { m_markWindow.hide(); }
void WindowedView::chooseMarkFolder() { m_markWindow.openFolderChooser(); }

// The delete confirmation.

void WindowedView::beginDeleteConfirmation(const DeleteConfirmationFacts& facts) {
    m_deleteConfirmation.setFacts(facts);
    m_deleteConfirmation.open();
}

void WindowedView::updateDeleteConfirmation(const DeleteConfirmationFacts& facts) {
    m_deleteConfirmation.updateFacts(facts);
}

void WindowedView::endDeleteConfirmation() { m_deleteConfirmation.hide(); }

} // namespace songsweep
