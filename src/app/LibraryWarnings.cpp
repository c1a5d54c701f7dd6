// SPDX-License-Identifier: MIT
#include "app/LibraryWarnings.h"

#include "app/MapGuess.h"
#include "library/ValueFormats.h"
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

MissingFiles allFilesMissing(const Files& files, const LibraryLocations& locations) {
    MissingFiles missing;
    PathSample sample;
    bool isOneHere = false;
    const bool looked = locations([&](std::string_view, const std::string& path) {
        ++missing.files;
        sample.add(path);
        isOneHere = files.exists(path);
        return !isOneHere;
    });
    if (!looked || isOneHere) return {};
    missing.missing = missing.files;
    missing.sample = sample.paths();
    return missing;
}

std::string allMissingWarning(const MissingFiles& missing, const std::vector<std::string>& folders) {
    const std::string begin = "none of the library's files is here; ";
    const std::string first = " (the first is " + missing.sample.front() + ")";
    if (const auto guess = guessMap(missing.sample, folders))
        return begin + "--map \"" + guess->rule.from + "=" + guess->rule.to + "\" finds " +
               std::to_string(guess->found) + " of the " +
               counted(static_cast<std::size_t>(guess->tried), "file") + " that were tried" + first;
    return begin + "if they came from another machine, --map FROM=TO tells where they are now" + first;
}

std::string interruption(const InterruptedCleanup& found) {
    const std::string what = found.kind == RecordHeading::Kind::restore ? "restore" : "deletion";
    const std::string which =
        " --library \"" + found.library + "\" --cleanup \"" + cleanupName(found.record) + "\" --dry-run";
    std::string warning = "warning: the " + what + " of " + found.date + " was interrupted, and ";
    warning += found.canBePutBack() ? found.whatCanBePutBack() + " can be put back: songsweep restore" + which
                                    : "nothing of it is left to put back";
    if (found.filesToTrash)
        warning += std::string(found.canBePutBack() ? ", or" : ";") + " it can be finished (" +
                   found.whatFinishingDoes() + "): songsweep finish" + which;
    return warning;
}

} // namespace songsweep
