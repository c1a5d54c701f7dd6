// SPDX-License-Identifier: MIT
#pragma once

#include "cli/CommandDescription.h"

#include <string>
#include <vector>

namespace songsweep {

/// What a shell offers for the value of an option.
enum class ValueKind { none, anyText, file, folder, word, wordList, playlist };
ValueKind valueKind(const cli::OptionDescription& option);

/// What the commands have in common, for shells whose completion knows options by their names alone: each
/// option that takes a value, once.
std::vector<cli::OptionDescription> valueOptions(const cli::CommandDescription& program);

/// Lines of a shell that print the playlists of the library at `path`, an expression of that shell: one a
/// line, nothing for a folder of music, or for a file whose reading would be waited for.
std::string playlistCommand(const std::string& path);

/// In single quotes, as sh and zsh have them.
std::string shellQuoted(const std::string& text);
/// "text json csv"
std::string spaced(const std::vector<std::string>& words);

/// A whole completion file of that shell for the program. Pure; any thread.
std::string bashCompletion(const cli::CommandDescription& program);
std::string zshCompletion(const cli::CommandDescription& program);
std::string fishCompletion(const cli::CommandDescription& program);

} // namespace songsweep
