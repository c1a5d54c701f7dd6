// SPDX-License-Identifier: MIT
#include "platform/PathMap.h"

#include <algorithm>

namespace songsweep {

namespace {

void dropTrailingSlash(std::string& path) {
    if (path.ends_with('/')) path.pop_back();
}

/// Whether the path is the beginning itself or continues it with a further component.
bool covers(const std::string& beginning, std::string_view path) {
    return path.starts_with(beginning) && (path.size() == beginning.size() || path[beginning.size()] == '/');
}

} // namespace

void PathMap::add(std::string from, std::string to) {
    dropTrailingSlash(from);
    dropTrailingSlash(to);
    // Before the rules of its own length, so that the one given last wins.
    const auto place = std::find_if(m_rules.begin(), m_rules.end(),
                                    [&](const Rule& rule) { return rule.from.size() <= from.size(); });
    m_rules.insert(place, Rule{std::move(from), std::move(to)});
}

std::string PathMap::map(std::string_view path) const {
    const auto rule = std::find_if(m_rules.begin(), m_rules.end(),
                                   [&](const Rule& each) { return covers(each.from, path); });
    if (rule == m_rules.end()) return std::string(path);
    std::string mapped = rule->to;
    mapped += path.substr(rule->from.size());
    return mapped.empty() ? "/" : mapped;
}

} // namespace songsweep
