// SPDX-License-Identifier: MIT
#include "package-texts/Completion.h"

#include "cli/OptionValues.h"

#include <algorithm>

namespace songsweep {

namespace {

void addValueOptions(const cli::CommandDescription& command, std::vector<cli::OptionDescription>& known) {
    for (const cli::OptionDescription& option : command.options) {
        const auto isSame = [&](const cli::OptionDescription& other) { return other.name == option.name; };
        if (!option.name.empty() && !option.value.empty() && std::none_of(known.begin(), known.end(), isSame))
            known.push_back(option);
    }
    for (const cli::CommandDescription& inner : command.commands)
        addValueOptions(inner, known);
}

} // namespace

ValueKind valueKind(const cli::OptionDescription& option) {
    if (option.value.empty()) return ValueKind::none;
    if (option.value == "FILE") return ValueKind::file;
    if (option.value == "FOLDER" || option.value == "PATH") return ValueKind::folder;
    if (option.value == "FIELDS") return ValueKind::wordList;
    if (!cli::valueWords(option.value).empty()) return ValueKind::word;
    return option.name == "--playlist" ? ValueKind::playlist : ValueKind::anyText;
}

std::vector<cli::OptionDescription> valueOptions(const cli::CommandDescription& program) {
    std::vector<cli::OptionDescription> options;
    addValueOptions(program, options);
    return options;
}

std::string playlistCommand(const std::string& path) {
    // 262144 blocks of 512 bytes are 128 MiB: some hundred thousand tracks, which take a fraction of a
    // second.
    return "    test -n \"$(find -L " + path +
           " -prune -type f -size -262144 2>/dev/null)\" || return\n"
           "    printf '%s\\n' 'tell application \"iTunes\"' 'set names to \"\"' \\\n"
           "        'repeat with playlistName in (get name of every user playlist whose smart is false)' \\\n"
           "        'set names to names & playlistName & linefeed' 'end repeat' 'end tell' 'return names' |\n"
           "        command songsweep script --library " +
           path +
           " - 2>/dev/null |\n"
           "        sed -E -e '1s/^\"//' -e '$d' -e 's/[\\](.)/\\1/g'\n";
}

std::string shellQuoted(const std::string& text) {
    std::string quoted = "'";
    for (const char character : text)
        quoted += character == '\'' ? std::string("'\\''") : std::string(1, character);
    return quoted + "'";
}

std::string spaced(const std::vector<std::string>& words) {
    std::string text;
    for (const std::string& word : words)
        text += (text.empty() ? "" : " ") + word;
    return text;
}

} // namespace songsweep
