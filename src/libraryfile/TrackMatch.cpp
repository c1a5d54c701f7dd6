// SPDX-License-Identifier: MIT
#include "libraryfile/TrackMatch.h"

#include <algorithm>
#include <functional>
#include <numeric>
#include <span>
#include <unordered_map>

namespace songsweep {

namespace {

using Positions = std::span<const std::uint32_t>;

class Matcher {
  public:
    Matcher(const IndexedLibrary& old, const IndexedLibrary& present, const std::vector<bool>& sought)
        : m_old(old)
        , m_present(present)
        , m_sought(sought) {
        m_match.presentOf.assign(old.index.tracks.size(), LibraryIndex::noTrack);
        m_match.oldOf.assign(present.index.tracks.size(), LibraryIndex::noTrack);
    }

    TrackMatch matchAll() {
        matchPersistentIds();
        matchOthers();
        return std::move(m_match);
    }

  private:
    void matchPersistentIds() {
        PersistentIdTable oldTable;
        PersistentIdTable presentTable;
        oldTable.build(m_old.index.tracks);
        presentTable.build(m_present.index.tracks);
        const Positions all = oldTable.all();
        for (auto group = all.begin(); group != all.end();) {
            const PersistentId id = idOf(m_old.index.tracks[*group]);
            const auto end = std::find_if(
                group, all.end(), [&](std::uint32_t track) { return idOf(m_old.index.tracks[track]) != id; });
            matchGroup({group, end}, presentTable.find(m_present.index.tracks, id));
            group = end;
        }
    }

    void matchGroup(Positions old, Positions present) {
        if (old.size() == present.size()) return matchInOrder(old, present);
        std::vector<std::uint32_t> staying;
        std::copy_if(old.begin(), old.end(), std::back_inserter(staying),
                     [&](std::uint32_t track) { return !m_sought[track]; });
        if (staying.size() == present.size()) return matchInOrder(staying, present);
        matchByBytes(old, present);
    }

    void matchInOrder(Positions old, Positions present) {
        for (std::size_t i = 0; i < old.size(); ++i)
            match(old[i], present[i]);
    }

    void matchByBytes(Positions old, Positions present) {
        std::unordered_map<std::uint64_t, std::vector<std::uint32_t>> byHash; // the last first
        for (std::size_t i = present.size(); i-- > 0;)
            byHash[hashOf(m_present, present[i])].push_back(present[i]);
        for (const std::uint32_t track : old) {
            const auto found = byHash.find(hashOf(m_old, track));
            if (found == byHash.end() || found->second.empty()) continue;
            match(track, found->second.back());
            found->second.pop_back();
        }
    }

    /// A track that cannot be read is like no other.
    static std::uint64_t hashOf(const IndexedLibrary& library, std::uint32_t track) {
        const auto bytes = library.file.read(library.index.tracks[track].range());
        return bytes ? std::hash<std::string>()(bytes.value()) : track;
    }

    /// Those without a persistent ID.
    void matchOthers() {
        std::unordered_map<std::int64_t, std::vector<std::uint32_t>> byTrackId; // the last first
        for (std::size_t i = m_present.index.tracks.size(); i-- > 0;) {
            const TrackSlot& track = m_present.index.tracks[i];
            if (track.persistentIdKind == PersistentId::Kind::none)
                byTrackId[track.trackId].push_back(static_cast<std::uint32_t>(i));
        }
        if (byTrackId.empty()) return;
        for (std::uint32_t i = 0; i < m_old.index.tracks.size(); ++i) {
            const TrackSlot& track = m_old.index.tracks[i];
            if (track.persistentIdKind != PersistentId::Kind::none) continue;
            const auto found = byTrackId.find(track.trackId);
            if (found == byTrackId.end() || found->second.empty()) continue;
            if (m_present.index.tracks[found->second.back()].length != track.length) continue;
            match(i, found->second.back());
            found->second.pop_back();
        }
    }

    void match(std::uint32_t old, std::uint32_t present) {
        m_match.presentOf[old] = present;
        m_match.oldOf[present] = old;
    }

    static PersistentId idOf(const TrackSlot& track) { return {track.persistentId, track.persistentIdKind}; }

    const IndexedLibrary& m_old;
    const IndexedLibrary& m_present;
    const std::vector<bool>& m_sought;
    TrackMatch m_match;
};

} // namespace

Result<IndexedLibrary> IndexedLibrary::open(const std::string& path) {
    auto file = LibraryFile::open(path);
    if (!file) return file.error();
    auto index = LibraryIndex::read(file.value());
    if (!index) return index.error();
    if (index.value().stamp != file.value().stamp())
        return Error{Error::Code::busy, path + " is being rewritten"};
    return IndexedLibrary{std::move(file).value(), std::move(index).value()};
}

TrackMatch TrackMatch::of(const IndexedLibrary& old, const IndexedLibrary& present,
                          const std::vector<bool>& sought) {
    return Matcher(old, present, sought).matchAll();
}

} // namespace songsweep
