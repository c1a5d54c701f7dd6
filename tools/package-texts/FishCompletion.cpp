// SPDX-License-Identifier: MIT
#include "cli/OptionValues.h"
#include "package-texts/Completion.h"

namespace songsweep {

namespace {

constexpr const char* library = R"sh(
# The library that the line names so far.
function __songsweep_library
    set -l words (commandline -opc)
    for index in (seq (count $words))
        switch $words[$index]
            case '--library=*'
                string replace -- '--library=' '' $words[$index]
            case --library
                test $index -lt (count $words); and echo $words[(math $index + 1)]
        end
    end
end

function __songsweep_playlists
    set -l library (__songsweep_library)[1]
    set library (string replace -r '^~' $HOME -- $library)
)sh";

/// Fish escapes in single quotes.
std::string quoted(const std::string& text) {
    std::string result = "'";
    for (const char character : text) {
        if (character == '\'' || character == '\\') result += '\\';
        result += character;
    }
    return result + "'";
}

std::string valueOffer(const cli::OptionDescription& option) {
    const std::string list = spaced(cli::valueWords(option.value));
    switch (valueKind(option)) {
    case ValueKind::none:
        return "";
    case ValueKind::file:
        return " -r -F";
    case ValueKind::folder:
        return " -x -a '(__fish_complete_directories)'";
    case ValueKind::word:
        return " -x -a " + quoted(list);
    case ValueKind::wordList:
        return " -x -a '(__fish_append , " + list + ")'";
    case ValueKind::playlist:
        return " -x -a '(__songsweep_playlists)'";
    case ValueKind::anyText:
        break;
    }
    return " -x";
}

std::string offers(const cli::CommandDescription& command, const std::string& condition) {
    std::string lines;
    for (const cli::OptionDescription& option : command.options) {
        lines += "complete -c songsweep -n " + condition;
        if (!option.name.empty()) lines += " -l " + option.name.substr(2);
        if (!option.shortName.empty()) lines += " -s " + option.shortName.substr(1);
        // An argument is no value of an option, and so not required by one.
        const bool isFileArgument = option.name.empty() && valueKind(option) == ValueKind::file;
        lines += isFileArgument ? " -F" : valueOffer(option);
        lines += option.name.empty() ? "\n" : " -d " + quoted(option.text) + "\n";
    }
    return lines;
}

} // namespace

std::string fishCompletion(const cli::CommandDescription& program) {
    std::string text = "# The completion of songsweep(1) for fish.\n" + std::string(library) +
                       playlistCommand("\"$library\"") + "end\n\ncomplete -c songsweep -f\n" +
                       offers(program, "__fish_use_subcommand");
    for (const cli::CommandDescription& command : program.commands) {
        text += "complete -c songsweep -n __fish_use_subcommand -a " + command.name + " -d " +
                quoted(command.text) + "\n";
        text += offers(command, quoted("__fish_seen_subcommand_from " + command.name));
    }
    return text;
}

} // namespace songsweep
