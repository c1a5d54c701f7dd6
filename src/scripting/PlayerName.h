// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace songsweep {

/// A text that is addressed to iTunes, addressed to another player that understands the same words: each
/// `application "iTunes"` names that one instead. Other mentions of iTunes, as in a song's name, stay. Pure;
/// any thread.
std::string addressedTo(std::string_view player, std::string_view source);

} // namespace songsweep
