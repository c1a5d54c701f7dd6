// SPDX-License-Identifier: MIT
#include "cli/OptionValues.h"
#include "package-texts/Completion.h"

namespace songsweep {

namespace {

/// In the brackets of an argument's description.
std::string escaped(const std::string& text) {
    std::string result;
    for (const char character : text) {
        if (character == '[' || character == ']' || character == ':' || character == '\\') result += '\\';
        result += character;
    }
    return result;
}

std::string valueAction(const cli::OptionDescription& option) {
    const std::string list = spaced(cli::valueWords(option.value));
    switch (valueKind(option)) {
    case ValueKind::file:
        return "_files";
    case ValueKind::folder:
        return "_files -/";
    case ValueKind::word:
        return "(" + list + ")";
    case ValueKind::wordList:
        return "_sequence -s , compadd - " + list;
    case ValueKind::playlist:
        return "_songsweep_complete_playlists";
    case ValueKind::none:
    case ValueKind::anyText:
        break;
    }
    return " ";
}

std::string optionEntry(const cli::OptionDescription& option) {
    const std::string value = option.value.empty() ? "" : ":" + option.value + ":" + valueAction(option);
    if (option.name.empty()) return shellQuoted("1" + value);
    // A map may be given several times; the others once.
    const std::string name = option.name + (option.value.empty() ? "" : "=");
    const std::string times = option.name == "--map" ? "*" : "";
    return shellQuoted(times + name + "[" + escaped(option.text) + "]" + value);
}

std::string optionEntries(const cli::CommandDescription& command, const std::string& indent) {
    std::string lines;
    for (const cli::OptionDescription& option : command.options)
        lines += " \\\n" + indent + optionEntry(option);
    return lines;
}

std::string commandList(const cli::CommandDescription& program) {
    std::string lines = "    commands=(\n";
    for (const cli::CommandDescription& command : program.commands)
        lines += "        " + shellQuoted(command.name + ":" + command.text) + "\n";
    return lines + "    )\n";
}

/// Of the program itself without its argument, in whose place a command may stand.
cli::CommandDescription withoutArguments(const cli::CommandDescription& program) {
    cli::CommandDescription options{program.name, program.text, {}, {}};
    for (const cli::OptionDescription& option : program.options)
        if (!option.name.empty()) options.options.push_back(option);
    return options;
}

constexpr const char* playlists = R"sh(
_songsweep_complete_playlists() {
    local -a names
    local path_of_library=${(Q)opt_args[--library]:-$library}
    names=(${(f)"$(_songsweep_playlists ${~path_of_library})"})
    compadd -a names
}

_songsweep() {
    local curcontext=$curcontext state line library ret=1
    local -A opt_args
    local -a commands
)sh";

constexpr const char* choice = R"sh( \
        '1: :->command' '*:: :->arguments' && ret=0
    library=${(Q)opt_args[--library]}
    case $state in
    command)
        _alternative 'commands:command:{_describe command commands}' 'files:library file:_files' && ret=0
        ;;
    arguments)
        curcontext=${curcontext%:*}-$line[1]:
        case $line[1] in
)sh";

} // namespace

std::string zshCompletion(const cli::CommandDescription& program) {
    std::string text = "#compdef songsweep\n# The completion of songsweep(1) for zsh.\n\n"
                       "_songsweep_playlists() {\n" +
                       playlistCommand("\"$1\"") + "}\n" + playlists + commandList(program) +
                       "    _arguments -C -A \"-*\"" + optionEntries(withoutArguments(program), "        ") +
                       choice;
    for (const cli::CommandDescription& command : program.commands)
        text += "        " + command.name + ")\n            _arguments" +
                optionEntries(command, "                ") + " && ret=0\n            ;;\n";
    return text + "        esac\n        ;;\n    esac\n    return ret\n}\n\n_songsweep \"$@\"\n";
}

} // namespace songsweep
