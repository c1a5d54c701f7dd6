// SPDX-License-Identifier: MIT
#include "scripting/InterpretedAppleScript.h"

namespace songsweep {

Result<Descriptor> InterpretedAppleScript::executeAndReturnError(std::string_view source) {
    Result<std::optional<Descriptor>> result = run(source);
    if (!result) return result.error();
    return std::move(result).value().value_or(Descriptor());
}

} // namespace songsweep
