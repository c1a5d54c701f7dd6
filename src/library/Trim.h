// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace songsweep {

/// The text without the white space (of all Unicode, line breaks too) at both ends. Keeps nothing.
std::string_view trimmed(std::string_view text);

} // namespace songsweep
