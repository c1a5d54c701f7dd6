// SPDX-License-Identifier: MIT
#include "app/LibraryWarnings.h"

#include "app/MapGuess.h"
#include "library/ValueFormats.h"
#include "libraryfile/CleanupHistory.h"
#include "platform/Files.h"
#include "platform/Words.h"
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
        warnings.push_back(
            first.empty() ? filled(words("LibraryWarnings",
                                         "--map %1=%2 changes nothing, as no path of the library begins so"),
                                   {rule.from, rule.to})
                          : filled(words("LibraryWarnings",
                                         "--map %1=%2 changes nothing, as no path of the library begins so; "
                                         "its first is %3"),
                                   {rule.from, rule.to, first}));
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
    const std::string& first = missing.sample.front();
    if (const auto guess = guessMap(missing.sample, folders))
        return filled(
            countedWords("LibraryWarnings",
                         "none of the library's files is here; --map \"%2=%3\" finds %4 of the %1 files "
                         "that were tried (the first is %5)",
                         "none of the library's files is here; --map \"%2=%3\" finds %4 of the 1 file "
                         "that were tried (the first is %5)",
                         guess->tried),
            {guess->rule.from, guess->rule.to, numberText(guess->found), first});
    return filled(
        words("LibraryWarnings",
              "none of the library's files is here; if they came from another machine, --map FROM=TO "
              "tells where they are now (the first is %1)"),
        {first});
}

std::string interruption(const InterruptedCleanup& found) {
    const std::string which =
        " --library \"" + found.library + "\" --cleanup \"" + cleanupName(found.record) + "\" --dry-run";
    std::string warning =
        filled(found.kind == RecordHeading::Kind::restore
                   ? words("LibraryWarnings", "warning: the restore of %1 was interrupted, and")
                   : words("LibraryWarnings", "warning: the deletion of %1 was interrupted, and"),
               {found.date}) +
        " ";
    warning += found.canBePutBack() ? filled(words("LibraryWarnings", "%1 can be put back: %2"),
                                             {found.whatCanBePutBack(), "songsweep restore" + which})
                                    : words("LibraryWarnings", "nothing of it is left to put back");
    if (found.filesToTrash)
        warning += filled(found.canBePutBack() ? words("LibraryWarnings", ", or it can be finished (%1): %2")
                                               : words("LibraryWarnings", "; it can be finished (%1): %2"),
                          {found.whatFinishingDoes(), "songsweep finish" + which});
    return warning;
}

} // namespace songsweep
