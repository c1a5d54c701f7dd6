// SPDX-License-Identifier: MIT
#include "cli/OptionValues.h"

#include "dupes/MarkRule.h"

#include <algorithm>

namespace songsweep::cli {

namespace {

std::vector<std::string> ruleNames() {
    std::vector<std::string> names;
    for (const MarkRule& rule : markRules())
        names.emplace_back(rule.name);
    return names;
}

} // namespace

std::vector<std::string> valueWords(std::string_view value) {
    if (value == "FIELDS") return {"name", "artist", "album", "time", "none"};
    if (value == "FORMAT") return {"text", "json", "csv"};
    if (value == "REPORT") return {"text", "json", "csv", "html"};
    if (value == "RULE") return ruleNames();
    return {};
}

std::string checkValueWord(std::string_view value, const std::string& word) {
    const std::vector<std::string> words = valueWords(value);
    if (std::find(words.begin(), words.end(), word) != words.end()) return {};
    std::string list;
    for (const std::string& known : words)
        list += (list.empty() ? "" : ", ") + known;
    return "'" + word + "' is none of " + list;
}

} // namespace songsweep::cli
