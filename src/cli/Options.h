// SPDX-License-Identifier: MIT
#pragma once

#include "app/MapRule.h"
#include "library/SearchParameters.h"
#include "merge/MergeChoice.h"
#include "platform/PathMap.h"

#include <optional>
#include <string>
#include <vector>

namespace songsweep::cli {

/// What the process answers to the shell.
enum class ExitCode { done = 0, failed = 1, usage = 2, interrupted = 130 };

/// `html` is one of a search alone.
enum class OutputFormat { text, json, csv, html };

/// Which library, and how it is looked at: the options that every command and the window know.
struct LibraryOptions {
    std::string library; ///< path of the library file or of a folder of music; empty where none was given
    std::vector<std::string> unread;    ///< of a folder: a line for each file of it that could not be read
    PathMap map;                        ///< where the files of another machine are here
    std::vector<MapRule> mapRules;      ///< the same as it was given, to tell a rule that is of no use
    std::string iTunesVersion = "12.0"; ///< what the embedded iTunes says it is
    std::string log;                    ///< path of a log file; empty for none
    bool verbose = false;               ///< log lines go to standard error, too
};

/// The options of `find`, which `mark` and `delete` know too.
struct FindOptions : LibraryOptions {
    SearchParameters parameters; ///< its playlist is nothing where none was given
    bool sound = false;          ///< compare the sound of what is found
    OutputFormat format = OutputFormat::text;
    std::string output; ///< path; empty for standard output
};

/// The options of `mark`: what a rule would check.
struct MarkOptions : FindOptions {
    std::string rule;
    std::string kind;
    std::string folder;
    bool exceptOne = false;
};

/// The options of `delete`.
struct DeleteOptions : MarkOptions {
    bool files = false;
    bool dryRun = false;
    bool yes = false;
    bool sharedFiles = false;    ///< trash files that tracks that stay use too
    bool allowAllCopies = false; ///< a group may lose every copy
    MergeChoice merge = {.places = true, .history = true, .fillIns = false};
};

/// The options of `restore`: the list, or one clean-up and whether it is really taken back.
struct RestoreOptions : LibraryOptions {
    bool list = false;
    std::string cleanup; ///< its name; empty for the newest that is not restored
    bool dryRun = false;
    bool yes = false;
    bool leaveLost = false; ///< tracks whose files are gone for good stay away
    OutputFormat format = OutputFormat::text;
};

/// The options of `finish`: which interrupted deletion, and whether it is really finished.
struct FinishOptions : LibraryOptions {
    std::string cleanup; ///< its name; empty for the newest that was interrupted
    bool dryRun = false;
    bool yes = false;
    OutputFormat format = OutputFormat::text;
};

/// The options of `script`.
struct ScriptOptions : LibraryOptions {
    std::string file; ///< "-" for standard input
};

/// The options of `scan`, which has a folder and no library.
struct ScanOptions : LibraryOptions {
    std::string folder;
    std::string output; ///< path of a copy of the library; empty for none
};

} // namespace songsweep::cli
