// SPDX-License-Identifier: MIT
#include "platform/PathMap.h"

#include <algorithm>

namespace songsweep {

namespace {

void dropTrailingSlashes(std::string& path) {
    while (path.ends_with('/'))
        path.pop_back();
}

bool isLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

/// Whether the path begins with a drive and its colon, as in "C:\Music".
bool beginsWithDrive(std::string_view path) {
    return path.size() >= 2 && isLetter(path[0]) && path[1] == ':' &&
           (path.size() == 2 || path[2] == '/' || path[2] == '\\');
}

/// A path of Windows as libraries write it, "/C:/Music" for "C:\Music"; any other as it is.
std::string asInLibraries(std::string path) {
    const bool hasSlash = path.starts_with('/');
    const bool hasDrive = beginsWithDrive(std::string_view(path).substr(hasSlash ? 1 : 0));
    if (!hasDrive && !path.starts_with("\\\\")) return path;
    std::replace(path.begin(), path.end(), '\\', '/');
    return hasDrive && !hasSlash ? "/" + path : path;
}

/// Whether the path is the beginning itself or continues it with a further component.
bool covers(const std::string& beginning, std::string_view path) {
    return path.starts_with(beginning) && (path.size() == beginning.size() || path[beginning.size()] == '/');
}

} // namespace

void PathMap::add(std::string from, std::string to) {
    from = asInLibraries(std::move(from));
    dropTrailingSlashes(from);
    dropTrailingSlashes(to);
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
