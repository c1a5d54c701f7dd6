// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

namespace songsweep {

/// What a search looks for; fixed when it starts. A value.
struct SearchParameters {
    bool issamename = false;
    bool issameartist = false;
    bool issamealbum = false;
    bool issametime = false;
    bool isignoredead = false;             ///< leave out tracks whose file is missing
    bool issimilar = false;                ///< small differences of texts and times do not count
    int toleranceSeconds = 2;              ///< by which times of similar tracks may differ
    std::optional<std::string> playlist{}; ///< name as chosen; nothing where no playlist was selected

    bool operator==(const SearchParameters&) const = default;
};

} // namespace songsweep
