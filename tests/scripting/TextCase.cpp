// SPDX-License-Identifier: MIT
#include "scripting/TextCase.h"

#include "scripting/InterpretedAppleScript.h"
#include "scripting/SourceNotation.h"

namespace songsweep::test {

std::string outcomeOf(const std::string& source) {
    InterpretedAppleScript script({});
    const Result<std::optional<Descriptor>> result = script.run(source);
    if (!result) return "error: " + result.error().message;
    return result.value() ? sourceNotation(*result.value()) : "";
}

} // namespace songsweep::test
