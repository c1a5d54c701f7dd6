// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"

#include <string>
#include <string_view>

namespace songsweep::cli {

/// Where a command's result goes: standard output, or a file that appears whole or not at all.
///
/// Buffered, so that a million rows are neither a million writes nor one huge text. A pipe that closes ends
/// the writing quietly.
class Output {
  public:
    /// Standard output for an empty path. A file is written beside its name first; an error where it cannot.
    static Result<Output> open(const std::string& path);

    Output(Output&& other) noexcept;
    Output& operator=(Output&&) = delete;
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;
    ~Output(); ///< drops a file that was not finished

    void write(std::string_view text);

    /// Writes what is left and gives the file its name. The first error of all the writing.
    Result<void> finish();

  private:
    Output(std::string path, std::string temporaryPath, int descriptor);
    void flush();

    std::string m_path;
    std::string m_temporaryPath;
    int m_descriptor;
    std::string m_buffer;
    bool m_closedPipe = false;
    std::string m_error;
};

} // namespace songsweep::cli
