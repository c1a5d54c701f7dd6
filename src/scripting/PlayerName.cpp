// SPDX-License-Identifier: MIT
#include "scripting/PlayerName.h"

namespace songsweep {

std::string addressedTo(std::string_view player, std::string_view source) {
    // Inside a text in quotes this cannot stand: its quotes would have backslashes.
    constexpr std::string_view address = "application \"iTunes\"";
    std::string result;
    for (std::size_t at = source.find(address); at != std::string_view::npos; at = source.find(address)) {
        result.append(source.substr(0, at)).append("application \"").append(player).append("\"");
        source.remove_prefix(at + address.size());
    }
    return result.append(source);
}

} // namespace songsweep
