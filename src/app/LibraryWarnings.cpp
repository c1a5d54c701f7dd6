// SPDX-License-Identifier: MIT
#include "app/LibraryWarnings.h"

#include "libraryfile/CleanupHistory.h"
#include "platform/Files.h"
#include "restore/InterruptedCleanup.h"

#include <algorithm>

namespace songsweep {

namespace {

bool covers(const MapRule& rule, const std::string& path) {
    // A place that no library names, so that a covered path always changes.
    constexpr const char* elsewhere = "/\x01";
    PathMap map;
    map.add(rule.from, elsewhere);
    return map.map(path) != path;
}

} // namespace

std::vector<std::string> uselessMaps(const std::vector<MapRule>& rules, const LibraryLocations& locations) {
    std::vector<MapRule> left = rules;
    std::string first;
    const auto strikeOut = [&](std::string_view, const std::string& path) {
        if (first.empty()) first = path;
        std::erase_if(left, [&](const MapRule& rule) { return covers(rule, path); });
        return !left.empty();
    };
    if (rules.empty() || !locations(strikeOut)) return {};
    std::vector<std::string> warnings;
    warnings.reserve(left.size());
    for (const MapRule& rule : left)
        warnings.push_back("--map " + rule.from + "=" + rule.to +
                           " changes nothing, as no path of the library begins so" +
                           (first.empty() ? std::string() : "; its first is " + first));
    return warnings;
}

std::optional<std::string> allFilesMissing(const Files& files, const LibraryLocations& locations) {
    std::string first;
    bool isOneHere = false;
    const bool looked = locations([&](std::string_view, const std::string& path) {
        if (first.empty()) first = path;
        isOneHere = files.exists(path);
        return !isOneHere;
    });
    if (!looked || isOneHere || first.empty()) return std::nullopt;
    return "none of the library's files is here; if they came from another machine, --map FROM=TO tells "
           "where they are now (the first is " +
           first + ")";
}

std::string interruption(const InterruptedCleanup& found) {
    const std::string what = found.kind == RecordHeading::Kind::restore ? "restore" : "deletion";
    const std::string which =
        " --library \"" + found.library + "\" --cleanup \"" + cleanupName(found.record) + "\" --dry-run";
    std::string warning = "warning: the " + what + " of " + found.date + " was interrupted, and " +
                          found.whatCanBePutBack() + " can be put back: songsweep restore" + which;
    if (found.filesToTrash)
        warning += ", or it can be finished (" + found.whatFinishingDoes() + "): songsweep finish" + which;
    return warning;
}

} // namespace songsweep
