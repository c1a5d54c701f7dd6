// SPDX-License-Identifier: MIT
#include "cli/CommandLine.h"

#include "cli/Commands.h"
#include "cli/OptionChecks.h"
#include "cli/OptionValues.h"
#include "cli/Output.h"
#include "cli/VersionText.h"
#include "platform/TerminalText.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <sstream>
#include <vector>

namespace songsweep::cli {

namespace {

constexpr int longestTolerance = 10; ///< seconds

/// What the parser fills in, besides the options themselves.
struct Raw {
    std::vector<std::string> same = {"name", "artist", "time"};
    std::vector<std::string> maps;
    LibraryOptions library; ///< given before the command or after it
    std::string file;       ///< a library for the window
};

std::string checkVersion(const std::string& text) {
    const bool isVersion = !text.empty() && text.find_first_not_of("0123456789.") == std::string::npos &&
                           text.front() != '.' && text.back() != '.' && text.find("..") == std::string::npos;
    return isVersion ? std::string() : "'" + text + "' is no version, which is written 12.0";
}

void addLog(CLI::App& command, LibraryOptions& options) {
    command.add_option("--log", options.log, "Write the log to a file")->type_name("FILE");
}

/// Options that count before the command, too.
void addLibraryOptions(CLI::App& command, Raw& raw, const std::string& required = {}) {
    LibraryOptions& options = raw.library;
    command.add_option("--library", options.library, "The iTunes library XML file, or a folder of music")
        ->type_name("FILE" + required);
    command.add_option("--map", raw.maps, "Where a folder of the library's machine is here; repeatable")
        ->type_name("FROM=TO")
        ->allow_extra_args(false)
        ->check([](const std::string& text) {
            const std::size_t equals = text.find('=');
            return equals == std::string::npos || equals == 0 ? "a map is written FROM=TO" : std::string();
        });
    command.add_option("--itunes-version", options.iTunesVersion, "What the embedded iTunes says it is")
        ->check(checkVersion)
        ->type_name("V");
    addLog(command, options);
}

void addVerbose(CLI::App& command, Raw& raw) {
    command.add_flag("--verbose", raw.library.verbose, "Show the log on standard error");
}

OutputFormat formatNamed(const std::string& name) {
    if (name == "json") return OutputFormat::json;
    if (name == "html") return OutputFormat::html;
    return name == "csv" ? OutputFormat::csv : OutputFormat::text;
}

enum class Written { search, other };

/// A search can be written as a page, too.
void addFormat(CLI::App& command, OutputFormat& format, Written written = Written::other) {
    const bool isSearch = written == Written::search;
    const char* const value = isSearch ? "REPORT" : "FORMAT";
    command
        .add_option_function<std::string>(
            "--format", [&format](const std::string& name) { format = formatNamed(name); },
            isSearch ? "text, json, csv or html" : "text, json or csv")
        ->check([value](const std::string& word) { return checkValueWord(value, word); })
        ->type_name(value)
        ->default_str("text");
}

void addFindOptions(CLI::App& command, FindOptions& options, Raw& raw) {
    addLibraryOptions(command, raw, " REQUIRED");
    addVerbose(command, raw);
    command.add_option("--same", raw.same, "What duplicates have in common: name,artist,album,time, or none")
        ->delimiter(',')
        ->allow_extra_args(false)
        ->check([](const std::string& word) { return checkValueWord("FIELDS", word); })
        ->type_name("FIELDS")
        ->default_str("name,artist,time");
    command.add_flag("--sound", options.sound, "Listen to the copies, and tell recordings apart");
    auto* const similar =
        command.add_flag("--similar", options.parameters.issimilar,
                         "Compare without small differences: punctuation, accents, (Remastered), a guest");
    command
        .add_option("--within", options.parameters.toleranceSeconds,
                    "By how many seconds similar times may differ, 0 to 10")
        ->needs(similar)
        ->check(CLI::Range(0, longestTolerance))
        ->type_name("SECONDS")
        ->default_str("2");
    command
        .add_option_function<std::string>(
            "--playlist", [&options](const std::string& name) { options.parameters.playlist = name; },
            "The playlist to search (default: the library's own)")
        ->type_name("NAME");
    command.add_flag("--ignore-missing", options.parameters.isignoredead,
                     "Leave out tracks whose files are missing");
    addFormat(command, options.format, command.get_name() == "delete" ? Written::other : Written::search);
    command.add_option("--output", options.output, "Write the result to a file")->type_name("FILE");
}

void addMarkOptions(CLI::App& command, MarkOptions& options, Raw& raw) {
    addFindOptions(command, options, raw);
    command.add_option("--rule", options.rule, "The copy that is kept in each group, or kind, or folder")
        ->required()
        ->check(CLI::IsMember(valueWords("RULE")))
        ->type_name("RULE");
    command.add_flag("--except-one", options.exceptOne, "Mark every copy but one");
    command.add_option("--kind", options.kind, "The kind that the rule 'kind' marks, as in MP3")
        ->type_name("KIND");
    command.add_option("--folder", options.folder, "The folder that the rule 'folder' marks")
        ->type_name("PATH");
}

void addDeleteOptions(CLI::App& command, DeleteOptions& options, Raw& raw) {
    addMarkOptions(command, options, raw);
    command.add_flag("--files", options.files, "Move the files to the Trash too");
    auto* const dryRun =
        command.add_flag("--dry-run", options.dryRun, "Say what would happen and touch nothing");
    command.add_flag("--yes", options.yes, "Delete")->excludes(dryRun);
    command.add_flag("--shared-files", options.sharedFiles, "Trash files that tracks that stay use too");
    command.add_flag("--allow-all-copies", options.allowAllCopies, "Let a group lose every copy");
    command.add_flag("--keep-places,!--no-keep-places", options.merge.places,
                     "Give the copy that stays the others' places in playlists (default: on)");
    command.add_flag("--keep-history,!--no-keep-history", options.merge.history,
                     "Add their plays, ratings and dates to the copy that stays (default: on)");
    command.add_flag("--fill-in", options.merge.fillIns,
                     "Fill in what the copy that stays lacks: genre, year, comments, composer, numbers");
}

void addRestoreOptions(CLI::App& command, RestoreOptions& options, Raw& raw) {
    addLibraryOptions(command, raw, " REQUIRED");
    addVerbose(command, raw);
    auto* const list = command.add_flag("--list", options.list, "Print the clean-ups beside the library");
    command.add_option("--cleanup", options.cleanup, "Which one (default: the newest that is not restored)")
        ->type_name("NAME")
        ->excludes(list);
    auto* const dryRun =
        command.add_flag("--dry-run", options.dryRun, "Say what would come back and touch nothing");
    command.add_flag("--yes", options.yes, "Restore")->excludes(dryRun)->excludes(list);
    dryRun->excludes(list);
    command
        .add_flag("--leave-lost", options.leaveLost,
                  "Leave out tracks whose files are no longer in the Trash")
        ->excludes(list);
    addFormat(command, options.format);
}

void addFinishOptions(CLI::App& command, FinishOptions& options, Raw& raw) {
    addLibraryOptions(command, raw, " REQUIRED");
    addVerbose(command, raw);
    command.add_option("--cleanup", options.cleanup, "Which one (default: the newest that was interrupted)")
        ->type_name("NAME");
    auto* const dryRun =
        command.add_flag("--dry-run", options.dryRun, "Say what would happen and touch nothing");
    command.add_flag("--yes", options.yes, "Finish")->excludes(dryRun);
    addFormat(command, options.format);
}

void addScanOptions(CLI::App& command, ScanOptions& options, Raw& raw) {
    addLog(command, raw.library);
    addVerbose(command, raw);
    command.add_option("folder", options.folder, "The folder of music")->required()->type_name("FOLDER");
    command.add_option("--output", options.output, "Write the library to a file, too")->type_name("FILE");
}

void finishLibraryOptions(LibraryOptions& options, const Raw& raw) {
    options = raw.library;
    for (const std::string& map : raw.maps) {
        const std::size_t equals = map.find('=');
        options.mapRules.push_back({map.substr(0, equals), map.substr(equals + 1)});
        options.map.add(options.mapRules.back().from, options.mapRules.back().to);
    }
}

void finishOptionsOfNamedLibrary(LibraryOptions& options, const Raw& raw) {
    finishLibraryOptions(options, raw);
    if (options.library.empty()) throw CLI::RequiredError("--library");
}

void finishFindOptions(FindOptions& options, const Raw& raw) {
    finishOptionsOfNamedLibrary(options, raw);
    for (const std::string& field : raw.same) {
        options.parameters.issamename |= field == "name";
        options.parameters.issameartist |= field == "artist";
        options.parameters.issamealbum |= field == "album";
        options.parameters.issametime |= field == "time";
    }
}

void checkFields(const Raw& raw) {
    const bool none = std::find(raw.same.begin(), raw.same.end(), "none") != raw.same.end();
    if (none && raw.same.size() > 1) throw CLI::ValidationError("--same none stands alone");
}

/// An option that counts on both sides of the command is given on one of them.
void checkGivenOnce(const CLI::App& app, const CLI::App& command) {
    for (const char* name : {"--library", "--itunes-version", "--log"})
        if (app.count(name) > 0 && command.get_option_no_throw(name) != nullptr && command.count(name) > 0)
            throw CLI::ValidationError(std::string(name) + " stands before the command and after it");
}

/// A file's name alone opens the window; a command that is misspelled does not.
void checkFile(const Raw& raw) {
    if (raw.file.empty()) return;
    if (!raw.library.library.empty())
        throw CLI::ValidationError("'" + raw.file + "' is a second library, beside that of --library");
    std::error_code error;
    if (!std::filesystem::exists(raw.file, error))
        throw CLI::ValidationError("'" + raw.file + "' is neither a command nor a file");
}

/// Everything that a parse fills in; the commands share the parser's life.
struct Parser {
    explicit Parser(const std::string& version);
    Command command();

    CLI::App app{"Finds the songs that an iTunes library holds twice, and removes the copies that you mark.",
                 "songsweep"};
    Raw raw;
    LibraryOptions window;
    FindOptions find;
    MarkOptions mark;
    DeleteOptions remove;
    RestoreOptions restore;
    FinishOptions finish;
    ScriptOptions script;
    ScanOptions scan;
    CLI::App* findCommand = app.add_subcommand("find", "Print the duplicate groups of a library");
    CLI::App* markCommand = app.add_subcommand("mark", "Print what a rule would mark, changing nothing");
    CLI::App* deleteCommand = app.add_subcommand("delete", "Delete what a rule marks");
    CLI::App* restoreCommand = app.add_subcommand("restore", "Bring back what was deleted");
    CLI::App* finishCommand =
        app.add_subcommand("finish", "Move the files to the Trash that an interrupted deletion left");
    CLI::App* scriptCommand = app.add_subcommand("script", "Run an AppleScript text over a library");
    CLI::App* scanCommand = app.add_subcommand("scan", "Make a library of a folder of music");
};

Parser::Parser(const std::string& version) {
    app.set_version_flag("--version", [version] { return versionText(version); });
    app.require_subcommand(0, 1);
    app.footer("Without a command the window opens. Options of the library count before a command, too.");
    addLibraryOptions(app, raw);
    app.add_option("file", raw.file, "A library file for the window, as by --library")->type_name("FILE");
    addFindOptions(*findCommand, find, raw);
    addMarkOptions(*markCommand, mark, raw);
    addDeleteOptions(*deleteCommand, remove, raw);
    addRestoreOptions(*restoreCommand, restore, raw);
    addFinishOptions(*finishCommand, finish, raw);
    addLibraryOptions(*scriptCommand, raw);
    addVerbose(*scriptCommand, raw);
    addScanOptions(*scanCommand, scan, raw);
    scriptCommand->add_option("file", script.file, "The text's file, or - for standard input")
        ->required()
        ->type_name("FILE");
}

Command Parser::command() {
    checkFields(raw);
    for (const CLI::App* const command : app.get_subcommands()) {
        if (!raw.file.empty()) throw CLI::ExtrasError(std::vector<std::string>{raw.file});
        checkGivenOnce(app, *command);
    }
    if (*findCommand) {
        finishFindOptions(find, raw);
        checkTargets(find);
        return find;
    }
    if (*markCommand) {
        finishFindOptions(mark, raw);
        checkTargets(mark);
        checkMarkOptions(mark);
        return mark;
    }
    if (*deleteCommand) {
        finishFindOptions(remove, raw);
        checkTargets(remove);
        checkMarkOptions(remove);
        checkDeleteOptions(remove);
        return remove;
    }
    if (*restoreCommand) {
        finishOptionsOfNamedLibrary(restore, raw);
        checkLog(restore);
        checkRestoreOptions(restore);
        return restore;
    }
    if (*finishCommand) {
        finishOptionsOfNamedLibrary(finish, raw);
        checkLog(finish);
        checkFinishOptions(finish);
        return finish;
    }
    if (*scriptCommand) {
        finishLibraryOptions(script, raw);
        checkLog(script);
        return script;
    }
    if (*scanCommand) {
        finishLibraryOptions(scan, raw);
        checkScanOptions(scan);
        return scan;
    }
    checkFile(raw);
    finishLibraryOptions(window, raw);
    if (!raw.file.empty()) window.library = raw.file;
    checkLog(window);
    return window;
}

/// The help or the version.
ExitCode print(const std::string& text) {
    Result<Output> output = Output::open({});
    if (!output) return failToWrite(output.error());
    output.value().write(text);
    const Result<void> written = output.value().finish();
    return written ? ExitCode::done : failToWrite(written.error());
}

} // namespace

std::variant<Command, ExitCode> parseCommandLine(int argumentCount, const char* const* arguments,
                                                 const std::string& version) {
    Parser parser(version);
    try {
        parser.app.parse(argumentCount, arguments);
        return parser.command();
    } catch (const CLI::ParseError& error) {
        // Help and version are no errors; all else is one of usage.
        std::ostringstream output;
        std::ostringstream errors;
        const int code = parser.app.exit(error, output, errors);
        std::cerr << terminalText(errors.str());
        return code == 0 ? print(output.str()) : ExitCode::usage;
    }
}

CommandDescription describeCommandLine() {
    const Parser parser({});
    return described(parser.app);
}

} // namespace songsweep::cli
