// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace songsweep::cli {

/// Where a command's result goes: standard output, or a file that appears whole or not at all.
///
/// Buffered, so that a million rows are neither a million writes nor one huge text. A pipe that closes ends
/// the writing quietly. What goes to a terminal is made safe for it, all else is written as it is.
class Output {
  public:
    /// Whether the user gave up the writing; asked on this thread, also while a reader is waited for.
    using Interrupted = std::function<bool()>;

    /// Standard output for an empty path. A file is written beside its name first; an error where it cannot.
    /// A path of one of the process' own descriptors, as "/dev/stdout", goes there and replaces nothing.
    /// Where a link or a file stands already, the link stays and the file keeps its owner and its mode: one
    /// whose owner cannot be given to another file gets its contents at the end, in place.
    static Result<Output> open(
        const std::string& path, Interrupted interrupted = [] { return false; });

    Output(Output&& other) noexcept;
    Output& operator=(Output&&) = delete;
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;
    ~Output(); ///< drops a file that was not finished

    /// Whether it goes to a terminal.
    bool isTerminal() const { return m_terminal; }

    /// `text` ends where a character ends.
    void write(std::string_view text);

    /// Writes what is left and gives the file its name. The first error of all the writing; `cancelled` where
    /// it was interrupted.
    Result<void> finish();

  private:
    Output(std::string path, std::string temporaryPath, int descriptor, Interrupted interrupted);
    void flush();
    void takePlace();
    bool waitUntilWritable();

    std::string m_path;
    std::string m_temporaryPath;
    int m_descriptor;
    int m_target = -1; ///< the file whose contents are replaced; -1 where the file itself is
    Interrupted m_interrupted;
    bool m_terminal;
    std::size_t m_largestPiece;
    std::string m_buffer;
    bool m_closedPipe = false;
    Error m_error; // without a message while all is well
};

} // namespace songsweep::cli
