// SPDX-License-Identifier: MIT
#include "scan/GoneFiles.h"

#include "platform/NameForms.h"
#include "scan/PlaylistMeanings.h"

#include <filesystem>

namespace songsweep {

void GoneFiles::add(const std::string& path) {
    if (path.starts_with(m_folder + "/"))
        m_paths.emplace(composedForm(path.substr(m_folder.size() + 1)), path);
}

std::optional<std::string> GoneFiles::namedBy(const PlaylistEntry& entry, const std::string& playlist) const {
    std::optional<std::string> gone;
    std::vector<std::string> others;
    for (const std::string& name : entry.names)
        for (const std::string& path : meaningsOf(name, playlist, m_folder)) {
            const auto found = m_paths.find(composedForm(path));
            if (found == m_paths.end()) {
                others.push_back(path);
            } else if (!gone) {
                gone = found->second;
            }
        }
    if (!gone) return {};
    for (const std::string& path : others) {
        std::error_code error;
        if (std::filesystem::exists(m_folder + "/" + path, error)) return {};
    }
    return gone;
}

} // namespace songsweep
