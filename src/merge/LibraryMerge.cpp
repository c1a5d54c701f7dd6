// SPDX-License-Identifier: MIT
#include "merge/LibraryMerge.h"

#include "libraryfile/LibraryDocument.h"
#include "libraryfile/PlaylistPlaces.h"

#include <map>
#include <numeric>
#include <optional>
#include <unordered_map>
#include <utility>

namespace songsweep {

namespace {

using Position = LibraryDocument::TrackPosition;

class Planner {
  public:
    Planner(LibraryDocument& library, const MergeChoice& choice, MergeRoad road)
        : m_library(library)
        , m_choice(choice) {
        m_plan.road = road;
    }

    void add(const SongsToMerge::Song& song) {
        const auto kept = onlyTrackOf(song.kept);
        std::vector<Position> removed;
        for (const SongsToMerge::Copy& copy : song.removed)
            if (const auto track = onlyTrackOf(copy)) removed.push_back(*track);
        SongMerge merge{song, {}, {}, {}};
        if (!kept || removed.size() != song.removed.size() || !addValues(*kept, removed, merge)) {
            ++m_plan.counts.unclear;
            return;
        }
        if (m_choice.places) noteCopies(*kept, removed);
        m_plan.songs.push_back(std::move(merge));
    }

    void addPlaces() {
        for (std::size_t playlist = 1; m_choice.places && playlist < m_library.playlistCount(); ++playlist)
            if (isFilledByPeople(m_library.playlist(playlist))) addPlacesIn(playlist);
    }

    MergePlan plan() && {
        std::erase_if(m_plan.songs, [](const SongMerge& song) { return song.isNothing(); });
        for (const SongMerge& song : m_plan.songs)
            count(song);
        return std::move(m_plan);
    }

  private:
    struct Copy {
        std::size_t song = 0;
        std::uint32_t number = 0; ///< 0 for the one that stays
    };

    std::optional<Position> onlyTrackOf(const SongsToMerge::Copy& copy) const {
        const auto tracks = m_library.tracksWithPersistentId(copy.pid.view());
        return tracks.size() == 1 ? std::optional(tracks.front()) : std::nullopt;
    }

    std::optional<CopyFacts> factsOf(Position track) const {
        const auto values = m_library.values(track);
        return values ? std::optional(CopyFacts::of(*values.value())) : std::nullopt;
    }

    bool addValues(Position kept, const std::vector<Position>& removed, SongMerge& merge) const {
        const auto keptFacts = factsOf(kept);
        for (const Position track : removed) {
            const auto facts = factsOf(track);
            if (!facts) return false;
            merge.removed.push_back(*facts);
        }
        if (!keptFacts) return false;
        merge.values = mergedValues(*keptFacts, merge.removed, m_choice, m_plan.road);
        return true;
    }

    void noteCopies(Position kept, const std::vector<Position>& removed) {
        const std::size_t song = m_plan.songs.size();
        m_copies.emplace(kept, Copy{song, 0});
        for (std::uint32_t i = 0; i < removed.size(); ++i)
            m_copies.emplace(removed[i], Copy{song, i + 1});
    }

    void addPlacesIn(std::size_t playlist) {
        std::map<std::size_t, std::vector<std::uint32_t>> itemsOfSong;
        for (const ItemSlot& item : m_library.playlist(playlist).items)
            if (const auto copy = m_copies.find(item.track); copy != m_copies.end())
                itemsOfSong[copy->second.song].push_back(copy->second.number);
        bool isConcerned = false;
        for (const auto& [number, items] : itemsOfSong) {
            SongMerge& song = m_plan.songs[number];
            MergedPlaces places = mergedPlaces(playlist + 1, items, song.copies.removed.size());
            places.playlistId = m_library.playlist(playlist).persistentId;
            const auto taken = std::accumulate(places.taken.begin(), places.taken.end(), std::size_t{0});
            isConcerned = isConcerned || taken > 0;
            m_plan.counts.places += taken;
            if (taken > 0 || places.givenUp > 0) song.places.push_back(std::move(places));
        }
        m_plan.counts.playlists += isConcerned ? 1 : 0;
    }

    void count(const SongMerge& song) {
        for (const MergedValue& value : song.values) {
            if (value.property == MergedProperty::plays)
                for (const CopyFacts& copy : song.removed)
                    m_plan.counts.plays += copy.plays;
            if (value.property == MergedProperty::rating) ++m_plan.counts.ratings;
            if (value.property >= MergedProperty::genre) ++m_plan.counts.fillIns;
        }
    }

    LibraryDocument& m_library;
    const MergeChoice& m_choice;
    MergePlan m_plan;
    std::unordered_map<Position, Copy> m_copies;
};

} // namespace

Result<MergePlan> planMerge(LibraryDocument& library, const SongsToMerge& songs, const MergeChoice& choice,
                            MergeRoad road) {
    Planner planner(library, choice, road);
    for (const SongsToMerge::Song& song : songs.songs)
        planner.add(song);
    planner.addPlaces();
    MergePlan plan = std::move(planner).plan();
    plan.counts.keepSeveral = songs.keepSeveral;
    return plan;
}

} // namespace songsweep
