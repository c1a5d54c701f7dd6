// SPDX-License-Identifier: MIT
#include "app/WindowActions.h"

#include "app/AppController.h"
#include "app/Windows.h"
#include "scan/FolderLibrary.h"
#include "ui/SWTableView.h"
#include "ui/TrackTableModel.h"

#include <QApplication>
#include <QFile>

#include <algorithm>

namespace songsweep {

WindowActions::WindowActions(Windows& windows, AppController& controller, OpenLibrary openLibrary, Log& log,
                             const std::string& listener)
    : m_windows(windows)
    , m_controller(controller)
    , m_openLibrary(std::move(openLibrary))
    , m_folder(windows, log,
               [&controller](const std::string& title, std::vector<std::string> lines) {
                   controller.tellUnreadFiles(title, std::move(lines));
               })
    , m_sound(windows, controller, log, listener)
    , m_export(windows, controller)
    , m_copies(
          windows.mainWindow(),
          [&controller](const std::vector<std::string>& ids) { return controller.playlistsOfTracks(ids); },
          controller.files(), log) {
    connectToolbarAndMenus();
    connectLinks();
    connectTable();
    connectParametersDialog();
    connectMarkDialog();
    connectDeletion();
    connectRestoring();
    connectNotices();
    connectApplication();
}

void WindowActions::connectToolbarAndMenus() {
    MainWindow* window = &m_windows.mainWindow();
    AppController* controller = &m_controller;
    connect(window, &MainWindow::startButtonClick, this, [=] { controller->startButtonClick(); });
    connect(window, &MainWindow::markButtonClick, this, [=] { controller->markButtonClick(); });
    connect(window, &MainWindow::deleteButtonClick, this, [=] { controller->deleteButtonClick(); });
    connect(window, &MainWindow::deleteMarkedMenuClick, this, [=] { controller->deleteMarkedMenuClick(); });
    connect(window, &MainWindow::restoreMenuClick, this, [=] { controller->restoreMenuClick(); });
    connect(window, &MainWindow::cancelformButtonClick, this, [=] { controller->cancelformButtonClick(); });
    connect(window, &MainWindow::markMenuClick, this,
            [=](std::int32_t tag) { controller->markMenuClick(tag); });
    connect(window, &MainWindow::undoMarksClick, this, [=] { controller->undoMarks(); });
    connect(window, &MainWindow::redoMarksClick, this, [=] { controller->redoMarks(); });
    connect(window, &MainWindow::playMenuClick, this, [=] { controller->playMenuClick(); });
    connect(window, &MainWindow::showinFinderMenuClick, this, [=] { controller->showinFinderMenuClick(); });
    connect(window, &MainWindow::mainWindowMenuClick, this, [=] { controller->mainWindowMenuClick(); });
    connect(window, &MainWindow::exportChosen, this,
            [=, this](const std::string& path) { m_export.begin(path); });
    connect(window, &MainWindow::openLibrary, this, &WindowActions::chooseLibrary);
    window->setOpenLibraryGuard([=] { return controller->mayOpenLibrary(); });
}

void WindowActions::connectLinks() {
    MainWindow* window = &m_windows.mainWindow();
    AboutDialog* about = &m_windows.aboutWindow();
    AppController* controller = &m_controller;
    connect(window, &MainWindow::aboutButtonClick, this, [=] { controller->aboutButtonClick(); });
    connect(window, &MainWindow::websiteButtonClick, this, [=] { controller->websiteButtonClick(); });
    connect(window, &MainWindow::guideMenuClick, this, [=] { controller->guideMenuClick(); });
    connect(window, &MainWindow::helpButtonClick, this, [=] { controller->helpButtonClick(); });
    connect(window, &MainWindow::contactButtonClick, this, [=] { controller->contactButtonClick(); });
    connect(window, &MainWindow::keyboardMenuClick, this, [this](const std::vector<std::string>& lines) {
        m_windows.showDetails(WindowActions::tr("Keyboard"), lines);
    });
    connect(about, &AboutDialog::websiteRequested, this, [=] { controller->websiteButtonClick(); });
    connect(about, &AboutDialog::helpRequested, this, [=] { controller->helpButtonClick(); });
    connect(about, &AboutDialog::contactRequested, this, [=] { controller->contactButtonClick(); });
    m_windows.setCantAccessHandler([=](int returnCode) { controller->alertCantAccessDidEnd(returnCode); });
}

void WindowActions::connectTable() {
    MainWindow* window = &m_windows.mainWindow();
    AppController* controller = &m_controller;
    connect(window, &MainWindow::tableviewSpacebar, this, [=] { controller->tableviewSpacebar(); });
    connect(window, &MainWindow::tableviewDoubleClick, this, [=] { controller->tableviewDoubleClick(); });
    connect(window, &MainWindow::didClickTableColumn, this,
            [=](Column column) { controller->didClickTableColumn(column); });
    connect(window, &MainWindow::setObjectValue, this,
            [=](bool value, Column column, int row) { controller->setObjectValue(value, column, row); });
    window->setCopyReason(
        [=](const TrackRecord& record) { return QString::fromStdString(controller->markReason(record)); });
    window->setCopyDifferences([=](const std::vector<TrackRecord*>& copies) {
        QStringList differences;
        for (const std::string& each : controller->differences(copies))
            differences << QString::fromStdString(each);
        return differences;
    });
    window->tableModel().setMarkReason([this](int row) { return markReason(row); });
}

/// Why the row is marked; empty where no rule marked any.
QString WindowActions::markReason(int row) const {
    const TrackRecord& record = *m_windows.mainWindow().tableModel().rows().at(static_cast<std::size_t>(row));
    return record.checkbox ? QString::fromStdString(m_controller.markReason(record)) : QString();
}

void WindowActions::connectParametersDialog() {
    ParametersDialog* dialog = &m_windows.paramWindow();
    connect(dialog, &ParametersDialog::searchRequested, this, [this](const SearchParameters& parameters) {
        m_folder.update([this, parameters] { m_controller.paramOkButtonClick(parameters); });
    });
    connect(dialog, &QDialog::rejected, this, [this] { m_controller.paramCancelButtonClick(); });
}

void WindowActions::connectMarkDialog() {
    MarkDialog* dialog = &m_windows.markWindow();
    connect(dialog, &MarkDialog::markRequested, this,
            [this, dialog] { m_controller.markOkButtonClick(dialog->choice()); });
    connect(dialog, &MarkDialog::choiceChanged, this, &WindowActions::updateMarkPreview);
    connect(dialog, &MarkDialog::folderRequested, this, [this] { m_controller.markFolderButtonClick(); });
    connect(dialog, &MarkDialog::folderChosen, this, [this, dialog](const QString& folder) {
        const std::string spelled = m_controller.folderInLibrary(QFile::encodeName(folder).toStdString());
        dialog->setFolder(QString::fromStdString(spelled));
    });
    connect(dialog, &QDialog::rejected, this, [this] { m_controller.markCancelButtonClick(); });
    connect(dialog, &MarkDialog::opening, this, &WindowActions::previewMarks);
    connect(&m_windows.mainWindow(), &MainWindow::tableReloaded, this, &WindowActions::previewMarks);
    m_previewing.setSingleShot(true);
    connect(&m_previewing, &QTimer::timeout, this, &WindowActions::updateMarkPreview);
}

/// Of a million rows once what was done is on the screen.
void WindowActions::previewMarks() {
    constexpr std::size_t manyRows = 20'000;
    if (m_controller.tableDataSource().rows.size() < manyRows) return updateMarkPreview();
    m_previewing.start(0);
}

/// A walk over all rows, which nobody waits for while the dialog is hidden.
void WindowActions::updateMarkPreview() {
    MarkDialog& dialog = m_windows.markWindow();
    if (!dialog.isVisible()) return;
    if (m_controller.isDeletingRows()) return; // the table's reload at its end brings it up to date
    const std::vector<TrackRecord*>& rows = m_controller.tableDataSource().rows;
    const MarkChoice choice = dialog.choice();
    const MarkEffect effect = m_controller.markEffect(choice);
    dialog.setPreview({.marked = effect.marked,
                       .total = static_cast<int>(rows.size()),
                       .inForce = effect.inForce,
                       .byHand = m_controller.marksByHand(),
                       .matches = matchesRow(rows, choice),
                       .byRecordings = m_controller.soundsCompared()});
}

void WindowActions::connectDeletion() {
    DeleteConfirmation* confirmation = &m_windows.deleteConfirmation();
    connect(confirmation, &DeleteConfirmation::deleteRequested, this,
            [this](bool deleteFiles, bool leaveSharedFiles, MergeChoice merge) {
                m_controller.delConfOkButtonClick(deleteFiles, leaveSharedFiles, merge);
            });
    connect(confirmation, &DeleteConfirmation::lostSongsRequested, this,
            [this, confirmation](FilesToTrash files) {
                std::unordered_set<std::int32_t> songs = m_controller.songsLost(files);
                confirmation->reject();
                m_windows.mainWindow().showSongsLosingEveryCopy(std::move(songs));
            });
    connect(confirmation, &QDialog::rejected, this, [this] { m_controller.delConfCancelButtonClick(); });
    ProgressSheet* progress = &m_windows.progressWindow();
    connect(progress, &QDialog::rejected, this, [this] { m_controller.cancelButtonClick(); });
    // Whoever deleted from the toolbar goes on in the table, at the nearest row that is left.
    connect(progress, &ProgressSheet::ended, this,
            [this] { m_windows.mainWindow().tableview().setFocus(Qt::OtherFocusReason); });
}

void WindowActions::connectRestoring() {
    RestoreSheet* sheet = &m_windows.restoreSheet();
    connect(sheet, &RestoreDialog::chosen, this,
            [this](int index, LostFiles lostFiles) { m_controller.restoreCleanupChosen(index, lostFiles); });
    connect(sheet, &RestoreDialog::restoreRequested, this, [this] { m_controller.restoreOkButtonClick(); });
    connect(sheet, &RestoreDialog::cancelRequested, this,
            [this] { m_controller.restoreCancelButtonClick(); });
    connect(sheet, &RestoreDialog::detailsRequested, this, [this](const std::vector<std::string>& lines) {
        m_windows.showDetails(WindowActions::tr("Restored tracks"), lines);
    });
}

void WindowActions::connectNotices() {
    MainWindow* window = &m_windows.mainWindow();
    connect(window, &MainWindow::noticeActionClick, this,
            [this](NoticeAction action) { takeNoticeAction(action); });
    connect(window, &MainWindow::filesFolderChosen, this, &WindowActions::guessMap);
    connect(window, &MainWindow::noticeClosed, this, [this] { m_controller.noticeCloseButtonClick(); });
    connect(window, &MainWindow::noticeDetails, this, [this](const std::vector<std::string>& lines) {
        m_windows.showDetails(WindowActions::tr("Details"), lines);
    });
}

void WindowActions::takeNoticeAction(NoticeAction action) {
    if (action == NoticeAction::searchWithFewer) {
        m_windows.paramWindow().dropField();
        m_controller.startButtonClick();
    } else if (action == NoticeAction::chooseFilesFolder) {
        m_windows.mainWindow().chooseFilesFolder();
    } else {
        m_controller.noticeActionClick(action);
    }
}

/// The folder may lie on a disk that sleeps.
void WindowActions::guessMap(const std::string& folder) {
    if (m_guess.isOn()) return m_windows.beep();
    QGuiApplication::setOverrideCursor(Qt::BusyCursor);
    m_guess.begin(
        [paths = m_controller.missingPaths(), folder] { return songsweep::guessMap(paths, {folder}); },
        [this, folder](const std::optional<MapGuess>& guess) {
            QGuiApplication::restoreOverrideCursor();
            offerMap(folder, guess);
        });
}

void WindowActions::offerMap(const std::string& folder, const std::optional<MapGuess>& guess) {
    if (!guess) return m_windows.alertNoFilesIn(folder);
    m_windows.askToSearchWithMap(*guess, [this, rule = guess->rule] {
        m_copies.withoutFiles([&] { m_controller.searchWithMap(rule); });
    });
}

void WindowActions::connectApplication() {
    MainWindow* window = &m_windows.mainWindow();
    connect(window, &MainWindow::quit, this, &WindowActions::quit);
    m_windows.deleteConfirmation().addAction(&window->quitMenuitem());
    m_windows.progressWindow().addAction(&window->quitMenuitem());
    m_windows.restoreSheet().addAction(&window->quitMenuitem());
    // Qt's own rule would quit with the last window on macOS, too, from where it can be reopened.
    QApplication::setQuitOnLastWindowClosed(false);
#ifndef Q_OS_MACOS
    connect(window, &MainWindow::closed, this, &WindowActions::quit);
#endif
    connect(qApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state != Qt::ApplicationActive) return;
        const QWidgetList windows = QApplication::topLevelWidgets();
        const bool visible = std::any_of(windows.begin(), windows.end(),
                                         [](const QWidget* each) { return each->isVisible(); });
        m_controller.applicationShouldHandleReopen(visible);
    });
}

void WindowActions::chooseLibrary(const std::string& path) {
    if (!m_controller.mayOpenLibrary()) {
        m_windows.beep();
        return;
    }
    const int marks = m_controller.getCheckedCount();
    if (marks == 0) return openLibrary(path);
    m_windows.askBeforeMarksAreLost(marks, [this, path] { openLibrary(path); });
}

/// A folder that has a library stands for that; of any other its music is the library.
void WindowActions::openLibrary(const std::string& path) {
    if (!m_controller.mayOpenLibrary() || m_folder.isReading()) return; // what was asked for meanwhile
    if (isFolderOfMusic(path)) {
        openFolder(path);
    } else {
        openFile(path);
    }
}

void WindowActions::openFolder(const std::string& path) {
    m_folder.open(path, [this, path](FolderActions::Outcome outcome, const std::string& library) {
        if (outcome == FolderActions::Outcome::read) openFile(library);
        if (outcome == FolderActions::Outcome::empty) openFile(path); // which says what is missing
    });
}

void WindowActions::openFile(const std::string& path) {
    const OpenedLibrary opened = m_openLibrary(path);
    if (!opened.turned) return m_windows.alertCantOpen(opened.problem);
    m_folder.noteLibrary(path);
    if (!m_controller.resetForLibrary()) return;
    m_controller.beginLibrary(CurrentLibrary::Telling::alert);
    m_controller.lookForInterruption();
}

void WindowActions::quit() {
    if (m_controller.applicationShouldTerminate()) QCoreApplication::quit();
}

} // namespace songsweep
