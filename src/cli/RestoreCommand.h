// SPDX-License-Identifier: MIT
#pragma once

#include "cli/CommandLog.h"
#include "cli/InterruptWatch.h"
#include "cli/Options.h"
#include "libraryfile/CleanupHistory.h"
#include "platform/Desktop.h"
#include "platform/ReasonWithPath.h"

#include <memory>
#include <string>
#include <vector>

namespace songsweep::cli {

class Output;
struct NamedRestore;

/// One run of `restore`: lists the clean-ups of a library, or takes one back.
///
/// Ctrl-C stops it before the library is written, or after the file in hand; the report says what is left,
/// and the next run brings that back. Main thread, under a QCoreApplication.
class RestoreCommand {
  public:
    RestoreCommand(const RestoreOptions& options, const std::string& version);

    ExitCode run();

  private:
    ExitCode list(Output& output, const std::vector<CleanupSummary>& cleanups);
    ExitCode restore(Output& output, const CleanupSummary& cleanup);
    ExitCode tellOutcome(Output& output, const NamedRestore& restore);
    Result<CleanupSummary> chosen(const std::vector<CleanupSummary>& cleanups) const;
    std::string withPath(const std::string& message) const {
        return reasonWithPath(m_options.library, message);
    }

    RestoreOptions m_options;
    std::string m_version;
    std::unique_ptr<Desktop> m_desktop;
    std::unique_ptr<CommandLog> m_log;
    InterruptWatch m_interrupts;
};

} // namespace songsweep::cli
