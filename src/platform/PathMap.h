// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace songsweep {

/// Turns beginnings of paths from another machine into local ones ("/C:/Music" into "/media/music").
///
/// A rule applies where the path is its beginning or continues it with "/"; of several, the longest wins.
/// A path that no rule covers stays as it is. A value.
class PathMap {
  public:
    /// Adds one rule; a trailing "/" of either side is dropped. "C:\Music" and "C:/Music" mean "/C:/Music",
    /// as libraries write it, and "\\server\music" means "//server/music".
    void add(std::string from, std::string to);

    bool empty() const { return m_rules.empty(); }
    std::string map(std::string_view path) const;

  private:
    struct Rule {
        std::string from;
        std::string to;
    };
    std::vector<Rule> m_rules; // longest first
};

} // namespace songsweep
