// SPDX-License-Identifier: MIT
#include "scan/KnownTracks.h"

#include "library/LocationUrl.h"
#include "library/ValueFormats.h"
#include "libraryfile/LibraryIndex.h"
#include "libraryfile/TrackFields.h"

#include <string_view>
#include <unordered_map>

namespace songsweep {

namespace {

/// The path below the folder of a track's entry; nothing where the track lies elsewhere.
std::optional<std::string> pathOf(const TrackFields& fields, const std::string& folder) {
    const std::optional<std::string> path = pathOfFileUrl(fields.text(LibraryKey::location));
    if (!path || !path->starts_with(folder + "/")) return {};
    return path->substr(folder.size() + 1);
}

std::optional<KnownFile> knownFile(const LibraryFile& library, const LibraryIndex& index,
                                   const TrackSlot& slot, const std::string& folder) {
    const Result<std::string> bytes = library.read(slot.range());
    if (!bytes || slot.trackId <= 0 || slot.persistentIdKind != PersistentId::Kind::exact) return {};
    const std::optional<TrackFields> fields = TrackFields::parse(bytes.value(), index.entities);
    if (!fields) return {};
    std::optional<std::string> path = pathOf(*fields, folder);
    if (!path) return {};
    KnownFile known;
    known.path = std::move(*path);
    known.persistentId = slot.persistentId;
    known.trackId = slot.trackId;
    known.dateAdded = parseLibraryDate(fields->text(LibraryKey::dateAdded)).value_or(0);
    known.entry = slot.range();
    return known;
}

/// By the path of its track, what the memory knows.
class Remembered {
  public:
    explicit Remembered(std::vector<KnownFile>& tracks)
        : m_tracks(tracks)
        , m_isThere(tracks.size()) {
        m_byPath.reserve(tracks.size());
        for (std::size_t number = 0; number < tracks.size(); ++number)
            m_byPath.emplace(tracks[number].path, number);
    }

    void complete(KnownFile& known) {
        const auto found = m_byPath.find(known.path);
        if (found == m_byPath.end() || m_tracks[found->second].persistentId != known.persistentId) return;
        const KnownFile& remembered = m_tracks[found->second];
        m_isThere[found->second] = true;
        known.size = remembered.size;
        known.modificationNanoseconds = remembered.modificationNanoseconds;
        known.duration = remembered.duration;
        known.soundHash = remembered.soundHash;
    }

    /// Those of the memory that were not completed.
    std::vector<KnownFile> takeRest() {
        std::vector<KnownFile> rest;
        for (std::size_t number = 0; number < m_tracks.size(); ++number)
            if (!m_isThere[number]) rest.push_back(std::move(m_tracks[number]));
        return rest;
    }

  private:
    std::vector<KnownFile>& m_tracks;
    std::vector<bool> m_isThere;
    std::unordered_map<std::string_view, std::size_t> m_byPath;
};

} // namespace

Result<KnownTracks> knownTracks(const LibraryFile& library, const std::string& folder, FolderMemory memory) {
    if (memory.library == library.stamp()) return KnownTracks{std::move(memory.tracks), {}};
    const Result<LibraryIndex> index = LibraryIndex::read(library);
    if (!index) return index.error();
    Remembered remembered(memory.tracks);
    KnownTracks known;
    for (const TrackSlot& slot : index.value().tracks) {
        std::optional<KnownFile> file = knownFile(library, index.value(), slot, folder);
        if (!file) continue;
        remembered.complete(*file);
        known.tracks.push_back(std::move(*file));
    }
    known.deleted = remembered.takeRest();
    return known;
}

} // namespace songsweep
