// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace songsweep {

/// Puts a text in the place of each "@WORD@". Pure; any thread.
inline void replacePlaceholder(std::string& text, std::string_view placeholder,
                               const std::string& replacement) {
    for (std::size_t at = 0; (at = text.find(placeholder, at)) != std::string::npos; at += replacement.size())
        text.replace(at, placeholder.size(), replacement);
}

} // namespace songsweep
