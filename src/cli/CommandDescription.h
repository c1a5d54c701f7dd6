// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace songsweep::cli {

/// An option, or an argument that has no option's name.
struct OptionDescription {
    std::string name;        ///< "--same"; empty for an argument
    std::string shortName;   ///< "-h"; empty for none
    std::string value;       ///< "FIELDS"; empty for a flag
    std::string text;        ///< what it does, without a full stop
    std::string preset;      ///< "name,artist,time"; empty for none
    bool isRequired = false; ///< it cannot be left out

    bool operator==(const OptionDescription&) const = default;
};

/// What a command offers, as its help tells it.
///
///     for (const CommandDescription& command : describeCommandLine().commands)
///         writePageOf(command);
///
/// Taken from the parser itself, so that the manual page and the completion of the shells know exactly what
/// the parser does. Values alone; any thread.
struct CommandDescription {
    std::string name; ///< "find"
    std::string text;
    std::vector<OptionDescription> options; ///< arguments among them, in the order of the help
    std::vector<CommandDescription> commands;
};

CommandDescription described(const CLI::App& app);

} // namespace songsweep::cli
