// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>

namespace songsweep {

/// Paths below a folder of music to which a scan did not come, so that nothing is known of what is there now.
///
/// A hashed look-up for each folder in a path that is asked for. A value.
class UnseenPaths {
  public:
    /// "" is the folder itself.
    void add(const std::string& path) { m_paths.insert(path); }

    /// The one of them that the path is, or below which it lies; nothing where there is none.
    std::optional<std::string> around(std::string_view path) const;

  private:
    std::unordered_set<std::string> m_paths;
};

} // namespace songsweep
