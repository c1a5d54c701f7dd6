// SPDX-License-Identifier: MIT
#include "dupes/MarkingRules.h"

namespace songsweep {

void applyMarkChoice(const TrackRows& rows, const MarkChoice& choice) {
    markRule(choice.markType).walks.apply(rows, choice);
}

void markItems(const TrackRows& rows, MarkType markType, bool exceptOne) {
    const bool valueRule = markType <= MarkType::leastPlayed;
    applyMarkChoice(rows, {valueRule ? markType : MarkType::none, exceptOne, {}});
}

void markItemsByKind(const TrackRows& rows, std::string_view kind, bool exceptOne) {
    applyMarkChoice(rows, {MarkType::kind, exceptOne, std::string(kind)});
}

void markItemsByFolder(const TrackRows& rows, std::string_view folder, bool exceptOne) {
    applyMarkChoice(rows, {MarkType::folder, exceptOne, std::string(folder)});
}

MarkEffect markEffect(const TrackRows& rows, const MarkChoice& choice) {
    return markRule(choice.markType).walks.effect(rows, choice);
}

bool isSubfolder(std::string_view folder, std::string_view path) {
    if (path == folder) return true;
    return !folder.empty() && path.size() > folder.size() && path.starts_with(folder) &&
           path[folder.size()] == '/';
}

} // namespace songsweep
