// SPDX-License-Identifier: MIT
#include "app/MainWindow.h"
#include "ui_MainWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QMimeData>

namespace songsweep {

namespace {

/// The one library file among what is dragged, or an empty text.
QString libraryPath(const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    if (urls.size() != 1 || !urls.front().isLocalFile()) return {};
    const QString path = urls.front().toLocalFile();
    return path.endsWith(QStringLiteral(".xml"), Qt::CaseInsensitive) ? path : QString();
}

} // namespace

void MainWindow::closeEvent(QCloseEvent* event) {
    event->accept();
    Q_EMIT closed();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (!libraryPath(*event->mimeData()).isEmpty() && m_mayOpenLibrary()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
    const QString path = libraryPath(*event->mimeData());
    if (path.isEmpty()) return;
    event->acceptProposedAction();
    Q_EMIT openLibrary(path);
}

void MainWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::FontChange && m_lengths) applyMetrics();
}

void MainWindow::chooseLibrary() {
    if (!m_mayOpenLibrary()) {
        QApplication::beep();
        return;
    }
    auto* dialog = new QFileDialog(this, QStringLiteral("Open library"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setNameFilter(QStringLiteral("iTunes libraries (*.xml)"));
    connect(dialog, &QFileDialog::fileSelected, this, &MainWindow::openLibrary);
    dialog->open();
}

} // namespace songsweep
