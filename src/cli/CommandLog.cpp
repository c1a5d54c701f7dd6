// SPDX-License-Identifier: MIT
#include "cli/CommandLog.h"

#include "platform/LogFile.h"

#include <unistd.h>

#include <utility>

namespace songsweep::cli {

Result<std::unique_ptr<CommandLog>> CommandLog::open(const LibraryOptions& options) {
    auto log = std::make_unique<CommandLog>();
    if (!options.log.empty()) {
        Result<std::unique_ptr<InterruptibleLog>> file = openLogFile(options.log);
        if (!file) return file.error();
        log->m_file = std::move(file).value();
    }
    if (options.verbose)
        log->m_console =
            std::make_unique<InterruptibleLog>(STDERR_FILENO, InterruptibleLog::Descriptor::staysOpen);
    return log;
}

void CommandLog::line(std::string_view text) {
    if (m_file) m_file->line(text);
    if (m_console) m_console->line(text);
}

void CommandLog::endSoon() {
    if (m_file) m_file->endSoon();
    if (m_console) m_console->endSoon();
}

} // namespace songsweep::cli
