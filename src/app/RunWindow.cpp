// SPDX-License-Identifier: MIT
#include "app/RunWindow.h"

#include "app/AppController.h"
#include "app/WindowActions.h"
#include "app/Windows.h"
#include "platform/LogFile.h"
#include "platform/SignalWatch.h"
#include "theme/SongsweepStyle.h"

#include <QApplication>
#include <QMessageBox>
#include <QSettings>

#include <cstdlib>

namespace songsweep {

namespace {

constexpr const char* libraryIsAsBefore = "The library is as it was before.";
constexpr const char* willTryAgain = "Songsweep tries again every 30 seconds.";

void nameApplication(const std::string& version) {
    QApplication::setApplicationName(QStringLiteral("Songsweep"));
    QApplication::setApplicationVersion(QString::fromStdString(version));
    QApplication::setDesktopFileName(QStringLiteral("songsweep"));
}

/// Qt's file chooser would remember folders and widths in a settings file; this program keeps none.
void keepNoSettingsFile() {
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("/dev/null"));
}

/// Until somebody quits; the workers have returned then.
int runController(Program& program, Windows& windows, const std::function<bool()>& redirectLog) {
    AppController controller(program.controllerServices(), windows.views());
    const WindowActions actions(windows, controller,
                                [&program](const std::string& path) { return program.openLibrary(path); });
    controller.awakeFromNib(redirectLog);
    windows.mainWindow().openAtFirstSize();
    windows.showMainWindow();
    const int exitCode = QApplication::exec();
    controller.applicationShouldTerminate();
    return exitCode;
}

/// Writes what is left, and says so where that fails: the files of those tracks may be in the Trash already.
void writeLibrary(Program& program, Windows& windows) {
    program.setWriteFailedHandler({});
    const Result<void> written = program.writeLibrary();
    if (written) return;
    const QMessageBox* const alert =
        windows.alertCantWrite(written.error().message + "\n" + libraryIsAsBefore);
    QObject::connect(alert, &QMessageBox::finished, qApp, &QCoreApplication::quit);
    QApplication::exec();
}

int runWithLog(ProgramOptions options, Log& log, const std::function<bool()>& redirectLog) {
    Program program(std::move(options), log);
    Windows windows(log);
    program.setWriteFailedHandler([&windows](const std::string& reason) {
        windows.alertCantWrite(reason + "\n" + libraryIsAsBefore + " " + willTryAgain);
    });
    const int exitCode = runController(program, windows, redirectLog);
    writeLibrary(program, windows);
    return exitCode;
}

} // namespace

int runWindow(ProgramOptions options, const std::string& logFile, int argumentCount, char** arguments) {
    QApplication application(argumentCount, arguments);
    nameApplication(options.version);
    keepNoSettingsFile();
    applyTheme(application);
    // Quitting lets a deletion turn the sound on again and the library be written.
    const SignalWatch signals(
        [](int) { QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection); });
    DescriptorLog console;
    if (logFile.empty())
        return runWithLog(std::move(options), console,
                          [&console] { return redirectStandardError(documentsFolder(), console); });
    const Result<std::unique_ptr<Log>> file = openLogFile(logFile);
    if (!file) {
        console.line(logFile + ": " + file.error().message);
        return EXIT_FAILURE;
    }
    return runWithLog(std::move(options), *file.value(), {});
}

} // namespace songsweep
