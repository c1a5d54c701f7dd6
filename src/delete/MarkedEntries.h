// SPDX-License-Identifier: MIT
#pragma once

#include "delete/DeletePlan.h"

#include <string>
#include <string_view>
#include <unordered_map>

namespace songsweep {

class Files;

/// Tells the library's entries that marked rows stand for from all others.
///
/// Each row stands for one entry: where two entries have one persistent ID, and even one location, and one
/// row is marked, the other entry is one that nobody marked. Views of the rows' texts; one thread at a time.
class MarkedEntries {
  public:
    explicit MarkedEntries(const Files& files)
        : m_files(files) {}

    /// A marked track that goes; the row of one that stays stands for no entry.
    void add(const SurveyedRows::Track& track);

    /// Whether a marked row stands for this entry; it does so for no other then.
    bool take(std::string_view pid, const std::string& path);

  private:
    std::string fileAt(const std::string& path) const;

    const Files& m_files;
    std::unordered_multimap<std::string_view, std::string_view> m_locations; ///< by persistent ID
};

} // namespace songsweep
