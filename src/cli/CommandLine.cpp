// SPDX-License-Identifier: MIT
#include "cli/CommandLine.h"

#include "app/Program.h"
#include "dupes/MarkRule.h"
#include "library/RecentLibrary.h"
#include "platform/Native.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <filesystem>
#include <vector>

namespace songsweep::cli {

namespace {

/// What the parser fills in, besides the options themselves.
struct Raw {
    std::vector<std::string> same = {"name", "artist"};
    std::vector<std::string> maps;
};

void addLibraryOptions(CLI::App& command, LibraryOptions& options, Raw& raw, bool required) {
    command.add_option("--library", options.library, "The iTunes library XML file")
        ->required(required)
        ->type_name("FILE");
    command.add_option("--map", raw.maps, "Where a folder of the library's machine is here; repeatable")
        ->type_name("FROM=TO")
        ->allow_extra_args(false)
        ->check([](const std::string& text) {
            const std::size_t equals = text.find('=');
            return equals == std::string::npos || equals == 0 ? "a map is written FROM=TO" : std::string();
        });
    command.add_option("--itunes-version", options.iTunesVersion, "What the embedded iTunes says it is")
        ->type_name("V");
    command.add_option("--log", options.log, "Write the log to a file")->type_name("FILE");
}

std::string checkField(const std::string& text) {
    static const std::vector<std::string> known = {"name", "artist", "album", "time", "none"};
    if (std::find(known.begin(), known.end(), text) != known.end()) return {};
    return "'" + text + "' is none of name, artist, album, time, none";
}

OutputFormat formatNamed(const std::string& name) {
    if (name == "json") return OutputFormat::json;
    return name == "csv" ? OutputFormat::csv : OutputFormat::text;
}

std::string checkFormat(const std::string& text) {
    if (text == "text" || text == "json" || text == "csv") return {};
    return "'" + text + "' is none of text, json, csv";
}

void addFindOptions(CLI::App& command, FindOptions& options, Raw& raw) {
    addLibraryOptions(command, options, raw, true);
    command.add_option("--same", raw.same, "What duplicates have in common: name,artist,album,time, or none")
        ->delimiter(',')
        ->allow_extra_args(false)
        ->check(checkField)
        ->type_name("FIELDS")
        ->default_str("name,artist");
    command
        .add_option_function<std::string>(
            "--playlist", [&options](const std::string& name) { options.parameters.playlist = name; },
            "The playlist to search (default: the library's own)")
        ->type_name("NAME");
    command.add_flag("--ignore-missing", options.parameters.isignoredead,
                     "Leave out tracks whose files are missing");
    command
        .add_option_function<std::string>(
            "--format", [&options](const std::string& name) { options.format = formatNamed(name); },
            "text, json or csv")
        ->check(checkFormat)
        ->type_name("FORMAT")
        ->default_str("text");
    command.add_option("--output", options.output, "Write the result to a file")->type_name("FILE");
}

std::vector<std::string> ruleNames() {
    std::vector<std::string> names;
    for (const MarkRule& rule : markRules())
        names.emplace_back(rule.name);
    return names;
}

void addMarkOptions(CLI::App& command, MarkOptions& options, Raw& raw) {
    addFindOptions(command, options, raw);
    command.add_option("--rule", options.rule, "The copy that is kept in each group, or kind, or folder")
        ->required()
        ->check(CLI::IsMember(ruleNames()))
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
}

void finishLibraryOptions(LibraryOptions& options, const Raw& raw) {
    for (const std::string& map : raw.maps) {
        const std::size_t equals = map.find('=');
        options.map.add(map.substr(0, equals), map.substr(equals + 1));
    }
}

void finishFindOptions(FindOptions& options, const Raw& raw) {
    finishLibraryOptions(options, raw);
    for (const std::string& field : raw.same) {
        options.parameters.issamename |= field == "name";
        options.parameters.issameartist |= field == "artist";
        options.parameters.issamealbum |= field == "album";
        options.parameters.issametime |= field == "time";
    }
}

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

void checkTargets(const FindOptions& options) {
    checkTarget("--log", options.log, options);
    checkTarget("--output", options.output, options);
}

/// Rules that need a word more.
void checkMarkOptions(const MarkOptions& options) {
    if (options.rule == "kind" && options.kind.empty())
        throw CLI::ValidationError("--rule kind needs --kind");
    if (options.rule == "folder" && options.folder.empty())
        throw CLI::ValidationError("--rule folder needs --folder");
}

void checkFields(const Raw& raw) {
    const bool none = std::find(raw.same.begin(), raw.same.end(), "none") != raw.same.end();
    if (none && raw.same.size() > 1) throw CLI::ValidationError("--same none stands alone");
}

void checkDeleteOptions(const DeleteOptions& options) {
    if (!options.dryRun && !options.yes)
        throw CLI::ValidationError("delete needs --dry-run, to see what would happen, or --yes");
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
    ScriptOptions script;
    CLI::App* findCommand = app.add_subcommand("find", "Print the duplicate groups of a library");
    CLI::App* markCommand = app.add_subcommand("mark", "Print what a rule would mark, changing nothing");
    CLI::App* deleteCommand = app.add_subcommand("delete", "Delete what a rule marks");
    CLI::App* scriptCommand = app.add_subcommand("script", "Run an AppleScript text over a library");
};

Parser::Parser(const std::string& version) {
    app.set_version_flag("--version", "Songsweep " + version);
    app.require_subcommand(0, 1);
    app.footer("Without a command the window opens.");
    addLibraryOptions(app, window, raw, false);
    addFindOptions(*findCommand, find, raw);
    addMarkOptions(*markCommand, mark, raw);
    addDeleteOptions(*deleteCommand, remove, raw);
    addLibraryOptions(*scriptCommand, script, raw, false);
    scriptCommand->add_option("file", script.file, "The text's file, or - for standard input")
        ->required()
        ->type_name("FILE");
}

Command Parser::command() {
    checkFields(raw);
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
    if (*scriptCommand) {
        finishLibraryOptions(script, raw);
        checkTarget("--log", script.log, script);
        return script;
    }
    finishLibraryOptions(window, raw);
    checkTarget("--log", window.log, window);
    return window;
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
        return parser.app.exit(error) == 0 ? ExitCode::done : ExitCode::usage;
    }
}

} // namespace songsweep::cli
