// SPDX-License-Identifier: MIT
#include "app/LibraryLook.h"

#include "app/MapGuess.h"
#include "platform/Files.h"

#include <algorithm>
#include <filesystem>
#include <utility>

namespace songsweep {

LibraryLook::LibraryLook(std::shared_ptr<const TrackList> list, FilePlaces places,
                         std::shared_ptr<LibraryFindings> findings)
    : m_list(std::move(list))
    , m_places(std::move(places))
    , m_findings(std::move(findings)) {}

void LibraryLook::main() {
    const LibraryLocations locations = [this](const LocationVisitor& visit) {
        return m_places.locations([&](std::string_view pid, const std::string& path) {
            return !isCancelled() && visit(pid, path);
        });
    };
    m_findings->warnings = uselessMaps(m_places.rules, locations);
    m_findings->missing = missingRecords();
    const bool hasFile = std::any_of(m_list->records.begin(), m_list->records.end(),
                                     [](const TrackRecord* record) { return !record->isdead; });
    if (hasFile) return;
    const MissingFiles all = allFilesMissing(m_places.files, locations);
    m_findings->missing = all;
    if (!all.areAll() || isCancelled()) return;
    m_findings->warnings.push_back(allMissingWarning(all, likelyFolders()));
}

MissingFiles LibraryLook::missingRecords() const {
    MissingFiles missing;
    PathSample sample;
    for (const TrackRecord* const record : m_list->records) {
        if (!record->location.view().starts_with('/')) continue; // a stream is no file
        ++missing.files;
        if (!record->isdead) continue;
        ++missing.missing;
        sample.add(record->location);
    }
    missing.sample = sample.paths();
    return missing;
}

/// A library that was carried to another machine often lies where its music lies.
std::vector<std::string> LibraryLook::likelyFolders() const {
    if (m_places.library.empty()) return {};
    const std::filesystem::path folder = std::filesystem::path(m_places.library).parent_path();
    std::vector<std::string> folders = {folder.string()};
    if (folder.has_parent_path() && folder.parent_path() != folder.root_path())
        folders.push_back(folder.parent_path().string());
    return folders;
}

} // namespace songsweep
