// SPDX-License-Identifier: MIT
#include "dupes/MarkingRules.h"

#include "dupes/MarkRuleWalk.h"

#include <array>

namespace songsweep {

namespace {

struct RuleName {
    const char* name;
    std::int32_t markType;
};

constexpr std::array ruleNames = {
    RuleName{"highest-bitrate", markType::highestBitrate},
    RuleName{"lowest-bitrate", markType::lowestBitrate},
    RuleName{"longest", markType::longest},
    RuleName{"shortest", markType::shortest},
    RuleName{"largest", markType::largest},
    RuleName{"smallest", markType::smallest},
    RuleName{"earliest-added", markType::earliestAdded},
    RuleName{"latest-added", markType::latestAdded},
    RuleName{"with-artwork", markType::withArtwork},
    RuleName{"without-artwork", markType::withoutArtwork},
    RuleName{"highest-rating", markType::highestRating},
    RuleName{"lowest-rating", markType::lowestRating},
    RuleName{"most-played", markType::mostPlayed},
    RuleName{"least-played", markType::leastPlayed},
    RuleName{"kind", markType::kind},
    RuleName{"folder", markType::folder},
};

} // namespace

void applyMarkChoice(const TrackRows& rows, const MarkChoice& choice) {
    withRule(choice, [&](auto rule) {
        walkGroups(rows, choice.exceptOne, rule,
                   [](TrackRecord& record, bool checked) { record.checkbox = checked; });
    });
}

void markItems(const TrackRows& rows, std::int32_t markType, bool exceptOne) {
    const bool valueRule = markType <= markType::leastPlayed;
    applyMarkChoice(rows, {valueRule ? markType : markType::none, exceptOne, {}});
}

void markItemsByKind(const TrackRows& rows, std::string_view kind, bool exceptOne) {
    applyMarkChoice(rows, {markType::kind, exceptOne, std::string(kind)});
}

void markItemsByFolder(const TrackRows& rows, std::string_view folder, bool exceptOne) {
    applyMarkChoice(rows, {markType::folder, exceptOne, std::string(folder)});
}

MarkEffect markEffect(const TrackRows& rows, const MarkChoice& choice) {
    MarkEffect effect;
    withRule(choice, [&](auto rule) {
        walkGroups(rows, choice.exceptOne, rule, [&](const TrackRecord& record, bool checked) {
            effect.marked += checked ? 1 : 0;
            effect.inForce = effect.inForce && record.checkbox == checked;
        });
    });
    return effect;
}

bool isSubfolder(std::string_view folder, std::string_view path) {
    if (path == folder) return true;
    return !folder.empty() && path.size() > folder.size() && path.starts_with(folder) &&
           path[folder.size()] == '/';
}

std::vector<std::string> markRuleNames() {
    std::vector<std::string> names;
    names.reserve(ruleNames.size());
    for (const RuleName& rule : ruleNames)
        names.emplace_back(rule.name);
    return names;
}

std::optional<std::int32_t> markTypeOfRule(std::string_view name) {
    for (const RuleName& rule : ruleNames)
        if (name == rule.name) return rule.markType;
    return std::nullopt;
}

} // namespace songsweep
