// SPDX-License-Identifier: MIT
#include "cli/OptionValues.h"
#include "package-texts/Completion.h"

namespace songsweep {

namespace {

constexpr const char* words = R"sh(
# The words of the line without their quotes; bash-completion gives them as they were typed.
_songsweep_unquoted() {
    local word=${1//[\"\'\\]/}
    printf '%s' "${word/#\~/$HOME}"
}

# Names with blanks are quoted by readline, as those of files are.
_songsweep_complete_playlists() {
    local name typed
    typed=$(_songsweep_unquoted "$cur")
    compopt -o filenames 2>/dev/null
    while IFS= read -r name; do
        [[ $name == "$typed"* ]] && COMPREPLY+=("$name")
    done < <(_songsweep_playlists "$(_songsweep_unquoted "$library")")
}

# Words with commas between them.
_songsweep_complete_list() {
    local before=""
    [[ $cur == *,* ]] && before=${cur%,*},
    compopt -o nospace 2>/dev/null
    mapfile -t COMPREPLY < <(compgen -P "$before" -W "$1" -- "${cur##*,}")
}
)sh";

constexpr const char* beginning = R"sh(
_songsweep() {
    local cur prev words cword split command="" library="" index
    _init_completion -s || return
    for ((index = 1; index < cword; index++)); do
        case ${words[index]} in
        --library) library=${words[++index]} ;;
        --library=*) library=${words[index]#*=} ;;
)sh";

std::string optionNames(const std::vector<cli::OptionDescription>& options, char separator) {
    std::string names;
    for (const cli::OptionDescription& option : options)
        if (!option.name.empty()) names += (names.empty() ? "" : std::string(1, separator)) + option.name;
    return names;
}

std::string commandNames(const cli::CommandDescription& program, char separator) {
    std::string names;
    for (const cli::CommandDescription& command : program.commands)
        names += (names.empty() ? "" : std::string(1, separator)) + command.name;
    return names;
}

std::string valueAction(const cli::OptionDescription& option) {
    const std::string list = spaced(cli::valueWords(option.value));
    switch (valueKind(option)) {
    case ValueKind::file:
        return "_filedir";
    case ValueKind::folder:
        return "_filedir -d";
    case ValueKind::word:
        return "mapfile -t COMPREPLY < <(compgen -W \"" + list + "\" -- \"$cur\")";
    case ValueKind::wordList:
        return "_songsweep_complete_list \"" + list + "\"";
    case ValueKind::playlist:
        return "_songsweep_complete_playlists";
    case ValueKind::none:
    case ValueKind::anyText:
        break;
    }
    return ":";
}

std::string valueCases(const cli::CommandDescription& program) {
    std::string cases = "    case $prev in\n";
    for (const cli::OptionDescription& option : valueOptions(program))
        cases +=
            "    " + option.name + ")\n        " + valueAction(option) + "\n        return\n        ;;\n";
    return cases + "    esac\n    $split && return\n";
}

std::string argumentAction(const cli::CommandDescription& command) {
    for (const cli::OptionDescription& option : command.options)
        if (option.name.empty()) return valueAction(option);
    return ":";
}

/// What may stand where the cursor is, by the command before it.
std::string commandCase(const std::string& pattern, const cli::CommandDescription& command,
                        const std::string& more) {
    return "    " + pattern + ")\n        if [[ $cur == -* ]]; then\n" +
           "            mapfile -t COMPREPLY < <(compgen -W \"" + optionNames(command.options, ' ') +
           "\" -- \"$cur\")\n        else\n            " + argumentAction(command) + "\n" + more +
           "        fi\n        ;;\n";
}

std::string commandCases(const cli::CommandDescription& program) {
    const std::string names = "            mapfile -t -O ${#COMPREPLY[@]} COMPREPLY < <(compgen -W \"" +
                              commandNames(program, ' ') + "\" -- \"$cur\")\n";
    std::string cases = "    case $command in\n" + commandCase("\"\"", program, names);
    for (const cli::CommandDescription& command : program.commands)
        cases += commandCase(command.name, command, {});
    return cases + "    esac\n";
}

} // namespace

std::string bashCompletion(const cli::CommandDescription& program) {
    return "# The completion of songsweep(1) for bash.\n\n_songsweep_playlists() {\n" +
           playlistCommand("\"$1\"") + "}\n" + words + beginning + "        " +
           optionNames(valueOptions(program), '|') +
           ") ((++index)) ;;\n"
           "        " +
           commandNames(program, '|') +
           ") [[ -n $command ]] || command=${words[index]} ;;\n"
           "        esac\n    done\n" +
           valueCases(program) + commandCases(program) + "} &&\n    complete -F _songsweep songsweep\n";
}

} // namespace songsweep
