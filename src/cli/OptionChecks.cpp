// SPDX-License-Identifier: MIT
#include "cli/OptionChecks.h"

#include "library/RecentLibrary.h"
#include "platform/DataFolder.h"
#include "platform/Native.h"
#include "scan/FolderLibrary.h"

#include <CLI/CLI.hpp>

#include <filesystem>
#include <string>
#include <utility>

namespace songsweep::cli {

namespace {

/// The library file that the options lead to, named or not; empty where there is none.
std::string libraryOf(const LibraryOptions& options) {
    if (!options.library.empty()) return options.library;
    return recentLibrary(*nativePreferences()).path.value_or("");
}

/// Two names of one file: one path, or two that links lead to one file.
bool nameOneFile(const std::string& one, const std::string& other) {
    namespace fs = std::filesystem;
    std::error_code error;
    if (fs::equivalent(one, other, error)) return true;
    const fs::path path = fs::weakly_canonical(one, error);
    return !error && path == fs::weakly_canonical(other, error) && !error;
}

/// What is written beside the library must not take its place.
void checkTarget(const std::string& option, const std::string& path, const LibraryOptions& options) {
    if (!path.empty() && nameOneFile(path, libraryOf(options)))
        throw CLI::ValidationError(option + " names the library itself, " + path);
}

} // namespace

void checkLog(const LibraryOptions& options) { checkTarget("--log", options.log, options); }

void checkTargets(const FindOptions& options) {
    checkLog(options);
    checkTarget("--output", options.output, options);
    if (!options.log.empty() && !options.output.empty() && nameOneFile(options.log, options.output))
        throw CLI::ValidationError("--log and --output name one file, " + options.output);
}

void checkMarkOptions(const MarkOptions& options) {
    if (options.rule == "kind" && options.kind.empty())
        throw CLI::ValidationError("--rule kind needs --kind");
    if (options.rule == "folder" && options.folder.empty())
        throw CLI::ValidationError("--rule folder needs --folder");
}

void checkDeleteOptions(const DeleteOptions& options) {
    if (!options.dryRun && !options.yes)
        throw CLI::ValidationError("delete needs --dry-run, to see what would happen, or --yes");
    if (!options.files && isFolderOfMusic(options.library))
        throw CLI::ValidationError("delete needs --files here: a track of a folder is its file, and goes to "
                                   "the Trash with it");
}

void checkRestoreOptions(const RestoreOptions& options) {
    if (!options.list && !options.dryRun && !options.yes)
        throw CLI::ValidationError(
            "restore needs --list, or --dry-run, to see what would come back, or --yes");
}

void checkFinishOptions(const FinishOptions& options) {
    if (!options.dryRun && !options.yes)
        throw CLI::ValidationError("finish needs --dry-run, to see what would happen, or --yes");
}

void checkScanOptions(const ScanOptions& options) {
    if (!options.library.empty()) throw CLI::ValidationError("scan takes a folder, and no --library");
    if (!options.log.empty() && !options.output.empty() && nameOneFile(options.log, options.output))
        throw CLI::ValidationError("--log and --output name one file, " + options.output);
    const Result<FolderLibrary> place = FolderLibrary::of(options.folder, dataFolder());
    if (!place) return;
    for (const std::string& path : {place.value().library, place.value().memory})
        for (const auto& [option, target] :
             {std::pair("--log", options.log), std::pair("--output", options.output)})
            if (!target.empty() && nameOneFile(path, target))
                throw CLI::ValidationError(std::string(option) + " names the folder's own library, " +
                                           target);
}

} // namespace songsweep::cli
