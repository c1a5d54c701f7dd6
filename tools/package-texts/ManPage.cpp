// SPDX-License-Identifier: MIT
#include "package-texts/ManPage.h"

#include "cli/OptionValues.h"
#include "package-texts/Placeholder.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace songsweep {

namespace {

using Options = std::vector<cli::OptionDescription>;

/// What roff would take for its own: backslashes anywhere, hyphens that are to stay hyphens.
std::string escaped(const std::string& text) {
    std::string result;
    for (const char character : text) {
        if (character == '\\')
            result += "\\e";
        else if (character == '-')
            result += "\\-";
        else
            result += character;
    }
    return result;
}

/// "Fl \-same Ar FIELDS", as a macro's arguments; of an argument "Ar FOLDER".
std::string heading(const cli::OptionDescription& option) {
    std::string text;
    if (!option.shortName.empty()) text += "Fl " + option.shortName.substr(1) + " , ";
    if (!option.name.empty()) text += "Fl " + escaped(option.name.substr(1));
    if (option.value.empty()) return text;
    return text + (text.empty() ? "Ar " : " Ar ") + option.value;
}

std::string item(const cli::OptionDescription& option) {
    std::string text = ".It " + heading(option) + "\n" + escaped(option.text) + ".\n";
    const std::vector<std::string> words = cli::valueWords(option.value);
    // A text that has the words already says more than a list.
    if (!words.empty() && option.text.find(words.front()) == std::string::npos) {
        text += "One of\n";
        for (const std::string& word : words)
            text += ".Cm " + escaped(word) + (word == words.back() ? " .\n" : " ,\n");
    }
    if (!option.preset.empty()) text += "Default:\n.Cm " + escaped(option.preset) + " .\n";
    return text;
}

bool isAmong(const cli::OptionDescription& option, const Options& options) {
    return std::find(options.begin(), options.end(), option) != options.end();
}

std::string list(const Options& options) {
    if (options.empty()) return {};
    std::string text = ".Bl -tag -width Ds\n";
    for (const cli::OptionDescription& option : options)
        text += item(option);
    return text + ".El\n";
}

std::string synopsis(const cli::CommandDescription& command) {
    std::string text = ".It Cm " + command.name;
    for (const cli::OptionDescription& option : command.options)
        if (option.isRequired) text += " " + heading(option);
    return text + " Op Ar options\n";
}

/// The options of the program itself are told, and looked for, where they all stand.
std::string others(const Options& known) {
    std::string text;
    for (const cli::OptionDescription& option : known)
        text += ".Fl " + escaped(option.name.substr(1)) + " ,\n";
    if (text.empty()) return {};
    text.replace(text.rfind(" ,\n"), 3, " .\n");
    return ".Pp\nIt takes also\n" + text;
}

struct Told {
    Options general; ///< of the program
    Options earlier; ///< of the commands before
};

std::string section(const cli::CommandDescription& command, Told& told) {
    Options fresh;
    Options known;
    for (const cli::OptionDescription& option : command.options) {
        if (option.shortName == "-h") continue;
        if (isAmong(option, told.earlier))
            known.push_back(option);
        else if (!isAmong(option, told.general))
            fresh.push_back(option);
    }
    told.earlier.insert(told.earlier.end(), fresh.begin(), fresh.end());
    return synopsis(command) + escaped(command.text) + ".\n" + list(fresh) + others(known);
}

std::string commandList(const cli::CommandDescription& program) {
    Told told;
    for (cli::OptionDescription option : program.options) {
        told.general.push_back(option);
        option.isRequired = true; // required or not, it is the same option
        told.general.push_back(option);
    }
    std::string text = ".Bl -tag -width Ds\n";
    for (const cli::CommandDescription& command : program.commands)
        text += section(command, told);
    return text + ".El\n";
}

/// "November 22, 2026", as mdoc has it, of "2026-11-22".
std::string longDate(const std::string& date) {
    static const std::vector<std::string> months = {"January",   "February", "March",    "April",
                                                    "May",       "June",     "July",     "August",
                                                    "September", "October",  "November", "December"};
    const std::size_t month = std::stoul(date.substr(5, 2));
    return months.at(month - 1) + " " + std::to_string(std::stoul(date.substr(8))) + ", " + date.substr(0, 4);
}

Options withNames(const Options& options) {
    Options named;
    std::copy_if(options.begin(), options.end(), std::back_inserter(named),
                 [](const cli::OptionDescription& option) { return !option.name.empty(); });
    return named;
}

} // namespace

std::string manPage(std::string page, const cli::CommandDescription& program, const ManPageHead& head) {
    replacePlaceholder(page, "@OPTIONS@\n", list(withNames(program.options)));
    replacePlaceholder(page, "@COMMANDS@\n", commandList(program));
    replacePlaceholder(page, "@DATE@", longDate(head.date));
    replacePlaceholder(page, "@VERSION@", head.version);
    return page;
}

} // namespace songsweep
