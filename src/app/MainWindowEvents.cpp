// SPDX-License-Identifier: MIT
#include "app/MainWindow.h"
#include "library/LocationUrl.h"
#include "ui_MainWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QMimeData>

namespace songsweep {

namespace {

/// By its bytes, since a name need not be one that Qt's texts can hold; empty where it is no file.
std::string localPath(const QUrl& url) {
    if (!url.isLocalFile()) return {};
    return pathOfUrl(url.toEncoded(QUrl::FullyEncoded).toStdString()).value_or(std::string());
}

/// The one library file among what is dragged, or an empty text.
std::string libraryPath(const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    if (urls.size() != 1) return {};
    const bool isLibrary = urls.front().fileName().endsWith(QStringLiteral(".xml"), Qt::CaseInsensitive);
    return isLibrary ? localPath(urls.front()) : std::string();
}

} // namespace

void MainWindow::closeEvent(QCloseEvent* event) {
    event->accept();
    Q_EMIT closed();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (!libraryPath(*event->mimeData()).empty() && m_mayOpenLibrary()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
    const std::string path = libraryPath(*event->mimeData());
    if (path.empty()) return;
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
    connect(dialog, &QFileDialog::urlSelected, this,
            [this](const QUrl& url) { Q_EMIT openLibrary(localPath(url)); });
    dialog->open();
}

} // namespace songsweep
