// SPDX-License-Identifier: MIT
#include "cli/RunCommand.h"

#include "cli/Commands.h"
#include "platform/Languages.h"

#include <QCoreApplication>
#include <QLocale>

#include <type_traits>

namespace songsweep::cli {

namespace {

/// One call operator a command.
struct Runner {
    const std::string& version;

    ExitCode operator()(const FindOptions& options) const { return runFind(options, version); }
    ExitCode operator()(const MarkOptions& options) const { return runMark(options, version); }
    ExitCode operator()(const DeleteOptions& options) const { return runDelete(options, version); }
    ExitCode operator()(const RestoreOptions& options) const { return runRestore(options, version); }
    ExitCode operator()(const FinishOptions& options) const { return runFinish(options, version); }
    ExitCode operator()(const ScriptOptions& options) const { return runScript(options, version); }
    ExitCode operator()(const ScanOptions& options) const { return runScan(options, version); }
    ExitCode operator()(const LibraryOptions&) const { return ExitCode::usage; } // the window is no command
};

/// Programs read JSON and CSV, and what the interpreter says is AppleScript's; all else is in the user's
/// language.
struct IsForPeople {
    template <class Options>
    bool operator()(const Options& options) const {
        if constexpr (requires { options.format; })
            return options.format == OutputFormat::text || options.format == OutputFormat::html;
        return !std::is_same_v<Options, ScriptOptions>;
    }
};

} // namespace

int runCommand(const Command& command, int argumentCount, char** arguments, const std::string& version) {
    QCoreApplication application(argumentCount, arguments);
    if (std::visit(IsForPeople(), command))
        installLanguage(application);
    else
        QLocale::setDefault(QLocale::c());
    return static_cast<int>(std::visit(Runner{version}, command));
}

} // namespace songsweep::cli
