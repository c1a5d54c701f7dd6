// SPDX-License-Identifier: MIT
#include "scripting/TextLiteral.h"

namespace songsweep {

bool canStandInText(std::string_view words) { return words.find_first_of("\"\\") == std::string_view::npos; }

} // namespace songsweep
