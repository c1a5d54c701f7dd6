// SPDX-License-Identifier: MIT
#include "package-texts/Changelog.h"

#include <sstream>

namespace songsweep {

namespace {

Release headOf(const std::string& line) {
    const std::size_t open = line.find(" (");
    if (open == std::string::npos || line.back() != ')') return {line, {}, {}};
    return {line.substr(0, open), line.substr(open + 2, line.size() - open - 3), {}};
}

Release::Part& lastPart(Release& release) {
    if (release.parts.empty()) release.parts.emplace_back();
    return release.parts.back();
}

void addLine(Release& release, const std::string& line) {
    if (line.starts_with("### "))
        release.parts.push_back({line.substr(4), {}});
    else if (line.starts_with("- "))
        lastPart(release).items.push_back(line.substr(2));
    else if (line.starts_with("  ") && !lastPart(release).items.empty())
        lastPart(release).items.back() += line.substr(1);
}

} // namespace

std::vector<Release> readChangelog(const std::string& text) {
    std::vector<Release> releases;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("## "))
            releases.push_back(headOf(line.substr(3)));
        else if (!releases.empty())
            addLine(releases.back(), line);
    }
    return releases;
}

} // namespace songsweep
