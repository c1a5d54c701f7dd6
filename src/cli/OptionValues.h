// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace songsweep::cli {

/// The words that an option takes, by what the help calls its value: "FIELDS", "FORMAT", "REPORT" or "RULE".
/// Empty for any other value, which may be any text. The parser checks by them, and shells complete them.
std::vector<std::string> valueWords(std::string_view value);

/// The reason why `word` is none of the words of `value`; empty where it is one.
std::string checkValueWord(std::string_view value, const std::string& word);

} // namespace songsweep::cli
