// SPDX-License-Identifier: MIT
#include "app/RunWindow.h"

#include "app/WindowActions.h"
#include "app/WindowedView.h"
#include "platform/LogFile.h"
#include "ui/theme/SongsweepStyle.h"

#include <QApplication>

#include <cstdlib>

namespace songsweep {

namespace {

void nameApplication(const std::string& version) {
    QApplication::setApplicationName(QStringLiteral("Songsweep"));
    QApplication::setApplicationVersion(QString::fromStdString(version));
    QApplication::setDesktopFileName(QStringLiteral("songsweep"));
}

int runWithLog(ProgramOptions options, Log& log, const std::function<bool()>& redirectLog) {
    Program program(std::move(options), log);
    WindowedView view(log);
    AppController controller(program.controllerServices(), view);
    const WindowActions actions(view, controller,
                                [&program](const std::string& path) { return program.openLibrary(path); });
    controller.awakeFromNib(redirectLog);
    view.mainWindow().openAtFirstSize();
    view.showMainWindow();
    const int exitCode = QApplication::exec();
    controller.applicationShouldTerminate();
    return exitCode;
}

} // namespace

int runWindow(ProgramOptions options, const std::string& logFile, int argumentCount, char** arguments) {
    QApplication application(argumentCount, arguments);
    nameApplication(options.version);
    applyTheme(application);
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
