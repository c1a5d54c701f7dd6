// SPDX-License-Identifier: MIT
#include "cli/CommandDescription.h"

#include <CLI/CLI.hpp>

namespace songsweep::cli {

namespace {

constexpr std::string_view requiredMark = " REQUIRED";

OptionDescription described(const CLI::Option& option) {
    OptionDescription description;
    if (!option.get_lnames().empty()) description.name = "--" + option.get_lnames().front();
    if (!option.get_snames().empty()) description.shortName = "-" + option.get_snames().front();
    description.text = option.get_description();
    description.preset = option.get_default_str();
    description.isRequired = option.get_required();
    if (option.get_items_expected_max() == 0) return description;
    // "FILE REQUIRED", or "RULE:{kind,folder}", where a check has words of its own.
    const std::string type = option.get_type_name();
    description.value = type.substr(0, type.find_first_of(" :"));
    description.isRequired |= type.find(requiredMark) != std::string::npos;
    return description;
}

} // namespace

CommandDescription described(const CLI::App& app) {
    CommandDescription description{app.get_name(), app.get_description(), {}, {}};
    for (const CLI::Option* const option : app.get_options())
        description.options.push_back(described(*option));
    for (const CLI::App* const command : app.get_subcommands([](const CLI::App*) { return true; }))
        description.commands.push_back(described(*command));
    return description;
}

} // namespace songsweep::cli
