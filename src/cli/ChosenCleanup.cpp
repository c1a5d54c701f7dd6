// SPDX-License-Identifier: MIT
#include "cli/ChosenCleanup.h"

#include "platform/Words.h"

#include <algorithm>
#include <filesystem>

namespace songsweep::cli {

namespace {

/// A user may copy the name from the list, or give the file of the record or of the backup.
bool isCalled(const CleanupSummary& cleanup, const std::string& name) {
    const std::filesystem::path file = std::filesystem::path(name).filename();
    return cleanup.name() == name || std::filesystem::path(cleanup.path).filename() == file ||
           std::filesystem::path(cleanup.heading.backup).filename() == file;
}

} // namespace

Result<std::vector<CleanupSummary>> deletionsOf(const std::string& library) {
    auto cleanups = cleanupsOf(library);
    if (cleanups)
        std::erase_if(cleanups.value(), [](const CleanupSummary& cleanup) { return !cleanup.isCleanup(); });
    return cleanups;
}

Result<CleanupSummary> chosenCleanup(const std::vector<CleanupSummary>& cleanups,
                                     const CleanupChoice& choice) {
    const auto found = std::find_if(cleanups.begin(), cleanups.end(), [&](const CleanupSummary& cleanup) {
        return choice.name.empty() ? choice.isWanted(cleanup) : isCalled(cleanup, choice.name);
    });
    if (found != cleanups.end()) return *found;
    if (choice.name.empty()) return Error{Error::Code::notFound, choice.none};
    return Error{Error::Code::notFound,
                 filled(words("RestoreCommand",
                              "there is no clean-up '%1'; restore --list shows those that are there"),
                        {choice.name})};
}

} // namespace songsweep::cli
