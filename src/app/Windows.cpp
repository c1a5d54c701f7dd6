// SPDX-License-Identifier: MIT
#include "app/Windows.h"

#include "app/Alerts.h"
#include "app/BringToFront.h"
#include "app/DetailsDialog.h"
#include "platform/Words.h"

#include <QApplication>
#include <QFile>

namespace songsweep {

namespace {

/// "Part of a message" for "part of a message".
QString asSentence(const QString& text) { return text.left(1).toUpper() + text.mid(1); }

} // namespace

Windows::Windows(Log& log)
    : m_mainWindow(log)
    , m_paramWindow(&m_mainWindow)
    , m_markWindow(&m_mainWindow)
    , m_deleteConfirmation(&m_mainWindow)
    , m_restoreSheet(&m_mainWindow)
    , m_progressWindow(&m_mainWindow)
    , m_aboutWindow(&m_mainWindow) {}

Windows::~Windows() = default;

ControllerViews Windows::views() {
    return {.application = *this,
            .library = m_mainWindow,
            .search = m_paramWindow,
            .results = m_mainWindow,
            .mark = m_markWindow,
            .deletion = m_deleteConfirmation,
            .restore = m_restoreSheet,
            .notice = m_mainWindow,
            .progress = m_progressWindow,
            .formprogress = m_mainWindow};
}

void Windows::showMainWindow() { m_mainWindow.present(); }
void Windows::showAboutWindow() { bringToFront(m_aboutWindow); }
void Windows::setAboutLabel(const std::string& text) { m_aboutWindow.setLabel(text); }
void Windows::beep() { QApplication::beep(); }

void Windows::alertCantAccess(const std::string& message, const std::string& reason) {
    alerts::openCantAccess(&m_mainWindow, QString::fromStdString(message), QString::fromStdString(reason),
                           m_cantAccessEnded);
}

void Windows::alertNoDuplicates(const std::vector<std::string>& notes) {
    QStringList paragraphs;
    for (const std::string& note : notes)
        paragraphs += asSentence(QString::fromStdString(note));
    alerts::openNoDuplicates(&m_mainWindow, paragraphs.join(QLatin1Char('\n')));
}

void Windows::alertCantOpen(const std::string& reason) {
    alerts::openCantOpenLibrary(&m_mainWindow, QString::fromStdString(reason));
}

void Windows::askBeforeMarksAreLost(int marks, std::function<void()> proceed) {
    alerts::openMarksAreLost(&m_mainWindow, marks, std::move(proceed));
}

void Windows::askToSearchWithMap(const MapGuess& guess, std::function<void()> proceed) {
    alerts::openSearchWithMap(&m_mainWindow, guess, std::move(proceed));
}

void Windows::alertCantExport(const std::string& reason) {
    alerts::openCantExport(&m_mainWindow, asSentence(QString::fromStdString(reason)));
}

void Windows::alertNoFilesIn(const std::string& folder) {
    alerts::openNoFilesIn(&m_mainWindow, QFile::decodeName(folder.c_str()));
}

void Windows::alertCantBeginDelete(const std::string& reason) {
    alertCantWrite(reason + "\n" + words("Alerts", "Nothing was deleted."));
}

void Windows::showDetails(const QString& title, const std::vector<std::string>& lines) {
    QWidget* const parent =
        m_restoreSheet.isVisible() ? static_cast<QWidget*>(&m_restoreSheet) : &m_mainWindow;
    (new DetailsDialog(title, lines, parent))->open();
}

void Windows::alertCantGoOnDeleting(const std::string& reason) {
    alertCantWrite(reason + "\n" + words("Alerts", "Tracks that the library still has keep their files."));
}

QMessageBox* Windows::alertCantWrite(const std::string& reason) {
    return alerts::openCantWriteLibrary(m_mainWindow.isVisible() ? &m_mainWindow : nullptr,
                                        QString::fromStdString(reason));
}

} // namespace songsweep
