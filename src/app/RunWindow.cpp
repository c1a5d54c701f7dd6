// SPDX-License-Identifier: MIT
#include "app/RunWindow.h"

#include "app/AppController.h"
#include "app/FileOpening.h"
#include "app/WindowActions.h"
#include "app/Windows.h"
#include "platform/BufferedLog.h"
#include "platform/Languages.h"
#include "platform/LogFile.h"
#include "platform/RecentFiles.h"
#include "platform/SignalWatch.h"
#include "platform/Words.h"
#include "scan/FolderLibrary.h"
#include "sound/ListenerProgram.h"
#include "theme/SongsweepStyle.h"

#include <QApplication>
#include <QMessageBox>
#include <QSettings>

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace songsweep {

namespace {

constexpr std::uint64_t mostLogBytes = 20'000'000;
std::string libraryIsAsBefore() { return words("Alerts", "The library is as it was before."); }

void nameApplication(const std::string& version) {
    QApplication::setApplicationName(QStringLiteral("Songsweep"));
    QApplication::setApplicationVersion(QString::fromStdString(version));
    QApplication::setDesktopFileName(QStringLiteral("songsweep"));
}

/// Qt ends the process with a core dump where it reaches no display, and says much on the way there.
void endWithoutDisplay(QtMsgType type, const QMessageLogContext&, const QString&) {
    if (type != QtFatalMsg) return;
    std::fputs("songsweep: no display can be reached for the window; songsweep find, mark, delete, restore "
               "and script do without one\n",
               stderr);
    std::_Exit(EXIT_FAILURE);
}

/// Qt's file chooser would remember folders and widths in a settings file; this program keeps none.
void keepNoSettingsFile() {
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("/dev/null"));
}

/// What the windows are opened with.
struct Beginning {
    Log& log;
    std::function<bool()> redirectLog;
    Exporter exporter;
    std::string folder; ///< of music, to be read at once; empty for none
};

/// Until somebody quits; the workers have returned then.
int runController(Program& program, Windows& windows, const Beginning& beginning) {
    AppController controller(program.controllerServices(), windows.views());
    WindowActions actions(
        windows, controller, [&program](const std::string& path) { return program.openLibrary(path); },
        beginning.log, listenerProgram());
    actions.setExporter(beginning.exporter);
    controller.awakeFromNib(beginning.redirectLog);
    windows.mainWindow().openAtFirstSize();
    windows.showMainWindow();
    controller.beginLibrary(CurrentLibrary::Telling::page);
    controller.lookForInterruption();
    const FileOpening opening([&actions](const std::string& path) { actions.open(path); });
    if (!beginning.folder.empty()) actions.open(beginning.folder);
    const int exitCode = QApplication::exec();
    controller.applicationShouldTerminate();
    windows.mainWindow().hide(); // what still runs is waited for
    return exitCode;
}

/// Writes what is left, and says so where that fails: the files of those tracks may be in the Trash already.
void writeLibrary(Program& program, Windows& windows) {
    program.setWriteFailedHandler({});
    const Result<void> written = program.writeLibrary();
    if (written) return;
    const QMessageBox* const alert =
        windows.alertCantWrite(written.error().message + "\n" + libraryIsAsBefore());
    QObject::connect(alert, &QMessageBox::finished, qApp, &QCoreApplication::quit);
    QApplication::exec();
}

int runUntilQuit(ProgramOptions options, InterruptibleLog& output, Beginning beginning) {
    // Quitting lets a deletion turn the sound on again and the library be written.
    const SignalWatch signals([&output](int) {
        output.endSoon();
        QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    });
    options.recentFiles = nativeRecentFiles();
    // The window opens first, and reads a folder under a sheet.
    if (isFolder(options.library)) beginning.folder = std::exchange(options.library, {});
    Program program(std::move(options), beginning.log);
    Windows windows(beginning.log);
    program.setWriteFailedHandler([&windows](const std::string& reason) {
        windows.alertCantWrite(reason + "\n" + libraryIsAsBefore());
    });
    const int exitCode = runController(program, windows, beginning);
    writeLibrary(program, windows);
    return exitCode;
}

/// The lines come to the file from then on, and a console gets each at once.
bool redirectLog(BufferedLog& log) {
    const bool isRedirected = redirectStandardError(logFolder(documentsFolder(), statesFolder()), log);
    if (isRedirected) log.begin();
    return isRedirected;
}

} // namespace

int runWindow(ProgramOptions options, const std::string& logFile, Exporter exporter, int argumentCount,
              char** arguments) {
    const QtMessageHandler handler = qInstallMessageHandler(endWithoutDisplay);
    QApplication application(argumentCount, arguments);
    qInstallMessageHandler(handler);
    nameApplication(options.version);
    keepNoSettingsFile();
    installLanguage(application);
    applyTheme(application);
    InterruptibleLog console(STDERR_FILENO, InterruptibleLog::Descriptor::staysOpen);
    if (logFile.empty()) {
        BufferedLog log(console, mostLogBytes);
        return runUntilQuit(std::move(options), console,
                            {log, [&] { return redirectLog(log); }, std::move(exporter), {}});
    }
    const Result<std::unique_ptr<InterruptibleLog>> file = openLogFile(logFile);
    if (!file) {
        console.line("songsweep: " + file.error().message);
        return EXIT_FAILURE;
    }
    return runUntilQuit(std::move(options), *file.value(), {*file.value(), {}, std::move(exporter), {}});
}

} // namespace songsweep
