// SPDX-License-Identifier: MIT
#include "delete/MarkedEntries.h"

#include "platform/Files.h"
#include "platform/LocalName.h"

#include <algorithm>

namespace songsweep {

void MarkedEntries::add(const SurveyedRows::Track& track) { m_locations.emplace(track.pid, track.location); }

bool MarkedEntries::take(std::string_view pid, const std::string& path) {
    const auto [first, last] = m_locations.equal_range(pid);
    auto found = std::find_if(first, last, [&](const auto& entry) { return entry.second == path; });
    // A row's location may be written in another way than the library's.
    if (found == last && first != last)
        found = std::find_if(first, last, [this, file = fileAt(path)](const auto& entry) {
            return fileAt(std::string(entry.second)) == file;
        });
    if (found == last) return false;
    m_locations.erase(found);
    return true;
}

std::string MarkedEntries::fileAt(const std::string& path) const {
    return canonicalPath(m_files.localPath(path));
}

} // namespace songsweep
