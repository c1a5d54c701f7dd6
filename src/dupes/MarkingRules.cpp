// SPDX-License-Identifier: MIT
#include "dupes/MarkingRules.h"

#include "dupes/FileKind.h"
#include "library/RowParts.h"

#include <algorithm>
#include <mutex>

namespace songsweep {

void applyMarkChoice(const TrackRows& rows, const MarkChoice& choice) {
    const MarkWalks& walks = markRule(choice.markType).walks;
    inParts(rows, [&](RowGroup part) { walks.apply(rowsOf(rows, part), choice); });
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
    const MarkWalks& walks = markRule(choice.markType).walks;
    std::mutex lock;
    MarkEffect effect;
    inParts(rows, [&](RowGroup part) {
        const MarkEffect ofPart = walks.effect(rowsOf(rows, part), choice);
        const std::lock_guard guard(lock);
        effect.marked += ofPart.marked;
        effect.inForce = effect.inForce && ofPart.inForce;
    });
    return effect;
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
