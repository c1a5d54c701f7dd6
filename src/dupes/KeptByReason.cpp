// SPDX-License-Identifier: MIT
#include "dupes/KeptByReason.h"

#include "dupes/MarkVerdicts.h"

#include <string_view>

namespace songsweep {

const TrackRecord* keptByReason(const TrackRows& copies, const MarkChoice& choice) {
    constexpr std::string_view name = "the kept copy";
    MarkVerdicts verdicts(copies, choice);
    for (std::size_t row = 0; row < copies.size(); ++row) {
        if (!copies[row]->checkbox) continue;
        const MarkVerdict verdict = verdicts.of(row);
        if (!verdict.checked || verdict.reason.find(name) == std::string::npos) return nullptr;
    }
    const TrackRecord* const kept = verdicts.keptOf(0);
    return kept && !kept->checkbox ? kept : nullptr;
}

} // namespace songsweep
