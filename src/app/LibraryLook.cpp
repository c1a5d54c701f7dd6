// SPDX-License-Identifier: MIT
#include "app/LibraryLook.h"

#include "app/LibraryWarnings.h"

#include <algorithm>
#include <utility>

namespace songsweep {

LibraryLook::LibraryLook(std::shared_ptr<const TrackList> list, FilePlaces places,
                         std::shared_ptr<Warnings> warnings)
    : m_list(std::move(list))
    , m_places(std::move(places))
    , m_warnings(std::move(warnings)) {}

void LibraryLook::main() {
    const LibraryLocations locations = [this](const LocationVisitor& visit) {
        return m_places.locations([&](std::string_view pid, const std::string& path) {
            return !isCancelled() && visit(pid, path);
        });
    };
    *m_warnings = uselessMaps(m_places.rules, locations);
    const bool hasFile = std::any_of(m_list->records.begin(), m_list->records.end(),
                                     [](const TrackRecord* record) { return !record->isdead; });
    if (hasFile) return;
    if (auto warning = allFilesMissing(m_places.files, locations)) m_warnings->push_back(*std::move(warning));
}

} // namespace songsweep
