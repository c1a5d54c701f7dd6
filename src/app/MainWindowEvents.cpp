// SPDX-License-Identifier: MIT
#include "app/MainWindow.h"
#include "library/LocationUrl.h"
#include "ui/CopiedRows.h"
#include "ui/SWTableView.h"
#include "ui/TrackTableModel.h"
#include "ui_MainWindow.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QDropEvent>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMimeData>
#include <QUrl>

namespace songsweep {

namespace {

/// By its bytes, since a name need not be one that Qt's texts can hold; empty where it is no file.
std::string localPath(const QUrl& url) {
    if (!url.isLocalFile()) return {};
    return pathOfUrl(url.toEncoded(QUrl::FullyEncoded).toStdString()).value_or(std::string());
}

/// What people take for a library: its file, what iTunes and Music keep beside it, an archive of it, or the
/// folder in which it lies. A wrong one is told by its name, which beats a drag that nothing answers.
bool mayBeLibrary(const QFileInfo& file) {
    static const QStringList endings = {QStringLiteral("xml"), QStringLiteral("itl"),
                                        QStringLiteral("musicdb"), QStringLiteral("musiclibrary"),
                                        QStringLiteral("zip")};
    return file.isDir() || endings.contains(file.suffix(), Qt::CaseInsensitive);
}

/// The one library among what is dragged, or an empty text.
std::string libraryPath(const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    if (urls.size() != 1) return {};
    const std::string path = localPath(urls.front());
    return mayBeLibrary(QFileInfo(QFile::decodeName(path.c_str()))) ? path : std::string();
}

} // namespace

bool MainWindow::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate) keepOnScreen();
    return QMainWindow::event(event);
}

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

/// As tables take them: a row to a line, its cells between tabs.
void MainWindow::copyRows() const {
    const QString text = tabSeparated(*m_model, m_ui->tableview->selectedRows());
    if (!text.isEmpty()) QGuiApplication::clipboard()->setText(text);
}

void MainWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::FontChange && m_lengths) applyMetrics();
}

} // namespace songsweep
