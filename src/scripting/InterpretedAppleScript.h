// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/AppleScript.h"
#include "scripting/interpreter/Interpreter.h"

#include <vector>

namespace songsweep {

/// Runs AppleScript texts in this process, against application objects that it is given: the way on every
/// system but macOS, and with a library file of the user's choice on macOS too.
class InterpretedAppleScript final : public AppleScript {
  public:
    explicit InterpretedAppleScript(std::vector<interpreter::NamedApplication> applications)
        : m_interpreter(std::move(applications)) {}

    /// Errors say line and column of what they are about.
    Result<Descriptor> executeAndReturnError(std::string_view source) override;

    /// As above, but tells a script without a result (nothing) from one whose result is the missing value.
    using Places = interpreter::Interpreter::Places;
    Result<std::optional<Descriptor>> run(std::string_view source, Places places = Places::told) {
        return m_interpreter.run(source, places);
    }

  private:
    interpreter::Interpreter m_interpreter;
};

} // namespace songsweep
