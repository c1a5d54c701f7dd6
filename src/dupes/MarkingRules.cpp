// SPDX-License-Identifier: MIT
#include "dupes/MarkingRules.h"

#include "dupes/FileKind.h"

#include <algorithm>

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

bool matchesRow(const TrackRows& rows, const MarkChoice& choice) {
    if (choice.markType != MarkType::kind && choice.markType != MarkType::folder) return true;
    return std::any_of(rows.begin(), rows.end(), [&](const TrackRecord* row) {
        return choice.markType == MarkType::kind ? isOfKind(row->location, choice.text)
                                                 : isSubfolder(choice.text, row->location);
    });
}

bool isSubfolder(std::string_view folder, std::string_view path) {
    if (path == folder) return true;
    return !folder.empty() && path.size() > folder.size() && path.starts_with(folder) &&
           path[folder.size()] == '/';
}

} // namespace songsweep
