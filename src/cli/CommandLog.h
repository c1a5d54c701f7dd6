// SPDX-License-Identifier: MIT
#pragma once

#include "cli/Options.h"
#include "platform/InterruptibleLog.h"
#include "platform/Result.h"

#include <memory>

namespace songsweep::cli {

/// The log that a command's options ask for: a file, standard error, both or none. Any thread.
class CommandLog final : public Log {
  public:
    static Result<std::unique_ptr<CommandLog>> open(const LibraryOptions& options);

    void line(std::string_view text) override;

    /// The process was asked to end, so that nobody who reads the log is waited for any longer.
    void endSoon();

  private:
    std::unique_ptr<InterruptibleLog> m_file;    // null for none
    std::unique_ptr<InterruptibleLog> m_console; // null for none
};

} // namespace songsweep::cli
