// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"
#include "scripting/interpreter/Applications.h"
#include "scripting/interpreter/Program.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace songsweep::interpreter {

/// A program, and what its texts in quotes hold in the source that it was asked for.
struct BoundProgram {
    const Program* program = nullptr; ///< lives until the next one is asked for
    std::vector<std::string> texts;
};

/// What stands between the quotes of a source, without its escapes.
std::vector<std::string> unescapedTexts(const std::vector<std::string_view>& texts);

/// Reads sources, and keeps the last few programs for sources that differ from theirs in nothing but values
/// in quotes: a search asks the same question of a hundred thousand persistent IDs.
///
/// The bytes before such a value are the same, so that the reading comes to its quote in the same way; behind
/// the value the same goes on. A name of an application and a date are read with the source and have to be
/// the same. Places in a kept program are those of the source that it was read from. One thread at a time; a
/// source that is known costs its comparison.
class ProgramCache {
  public:
    static constexpr std::size_t mostPrograms = 16;
    /// A longer source is read each time.
    static constexpr std::size_t longestSource = std::size_t{64} << 10;

    /// The applications must outlive it.
    explicit ProgramCache(const Applications& applications)
        : m_applications(applications) {}

    Result<BoundProgram> program(std::string_view source);

  private:
    struct Entry {
        std::string source;
        Program program;
    };

    Result<BoundProgram> read(std::string_view source);

    const Applications& m_applications;
    std::vector<std::unique_ptr<const Entry>> m_entries; // the one used last first
};

} // namespace songsweep::interpreter
