// SPDX-License-Identifier: MIT
#include "app/ReaderChoice.h"

#include "app/AddProc.h"
#include "library/SWXMLParser.h"

#include <utility>

namespace songsweep {

namespace {

/// The first version whose library file is read instead of asking iTunes track by track.
constexpr std::int32_t firstVersionWithLibraryFile = 10;
constexpr std::int32_t readDelay = 5;
constexpr std::int32_t readDelayMax = readDelay + 5;

} // namespace

void ReaderChoice::choose(std::int32_t majorVersion, std::int32_t playlistIndex, std::int32_t trackCount) {
    m_useLibraryXML = majorVersion >= firstVersionWithLibraryFile;
    m_playlistIndex = playlistIndex;
    m_trackCount = trackCount;
}

std::unique_ptr<Operation> ReaderChoice::reader(std::shared_ptr<TrackList> list,
                                                const SearchParameters& parameters) const {
    if (!m_useLibraryXML) return addProc(std::move(list), parameters);
    return std::make_unique<SWXMLParser>(std::move(list), parameters, m_trackCount, m_libraryModifiedDate,
                                         m_deletedSinceRead, readDelay, readDelayMax, m_services);
}

std::unique_ptr<Operation> ReaderChoice::addProc(std::shared_ptr<TrackList> list,
                                                 const SearchParameters& parameters) const {
    return std::make_unique<AddProc>(std::move(list), parameters, m_playlistIndex, m_services);
}

std::unique_ptr<Operation> ReaderChoice::bareReader() const {
    return std::make_unique<SWXMLParser>(m_services);
}

} // namespace songsweep
