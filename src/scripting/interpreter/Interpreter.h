// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"
#include "scripting/Descriptor.h"
#include "scripting/interpreter/ProgramCache.h"
#include "scripting/interpreter/Services.h"

#include <mutex>
#include <optional>
#include <string_view>
#include <vector>

namespace songsweep::interpreter {

/// Runs texts of the AppleScript subset that docs/applescript.md describes.
///
///     Interpreter interpreter({{"iTunes", iTunes}, {"Finder", finder}});
///     interpreter.run("tell application \"iTunes\" to get version");
///
/// A text is parsed as a whole before any of it runs. It is bounded in depth, steps, and sizes of texts and
/// lists (Limits.h): every text ends, and a hostile one with an error within a second.
///
/// A program's own texts mostly differ in what stands in quotes. Such a text is read once, and bound to what
/// the next one has there; where places are told every text is read, since they depend on it.
///
/// Thread-safe: one text runs at a time, a second caller waits.
class Interpreter {
  public:
    /// Whether the reason why a text stopped running begins with the place, "line 2, column 5: …". Who did
    /// not write the text has no use for it.
    enum class Places { told, leftOut };

    explicit Interpreter(std::vector<NamedApplication> applications, std::function<Date()> now = systemDate);

    /// The value of the last statement, nothing where it has none; or why the text could not be read, with
    /// the place in any case, or stopped running.
    Result<std::optional<Descriptor>> run(std::string_view source, Places places = Places::told);

  private:
    const Services m_services;
    ProgramCache m_programs;
    std::mutex m_lock;
};

} // namespace songsweep::interpreter
