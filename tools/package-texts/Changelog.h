// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace songsweep {

/// A version's section of the changelog.
///
///     ## 1.1 (2026-11-22)
///     ### Searching
///     - Small differences can be allowed: `--similar`.
struct Release {
    struct Part {
        std::string title;              ///< "Searching"; empty for what stands before the first title
        std::vector<std::string> items; ///< each on one line, with the marks of Markdown
    };

    std::string version;
    std::string date; ///< "2026-11-22"; empty where the version is not dated
    std::vector<Part> parts;
};

/// The versions, the newest first, as they stand. Pure; any thread.
std::vector<Release> readChangelog(const std::string& text);

/// The children of an AppStream file's <releases>: one for each dated version.
std::string appStreamReleases(const std::vector<Release>& releases);

/// The changelog of a Debian package: one entry for each dated version.
std::string debianChangelog(const std::vector<Release>& releases);

} // namespace songsweep
