// SPDX-License-Identifier: MIT
#include "merge/SongsToMerge.h"

#include "library/Groups.h"
#include "scripting/TextLiteral.h"

#include <algorithm>
#include <limits>
#include <span>
#include <utility>

namespace songsweep {

namespace {

bool isNameable(std::string_view pid) { return !pid.empty() && pid != "0" && canStandInText(pid); }

bool goes(const TrackRecord& record) { return record.checkbox && isNameable(record.pid); }

/// A row, and its place among the marked ones.
struct Member {
    TrackRecord* record;
    std::size_t number;
};

/// Those that could not be compared come last.
std::int32_t recordingOf(const Member& member) {
    const std::int32_t set = member.record->sound.set;
    return set == 0 ? std::numeric_limits<std::int32_t>::max() : set;
}

class Sorter {
  public:
    Sorter(SongsToMerge& songs, const KeptByReason& keptByReason)
        : m_songs(songs)
        , m_keptByReason(keptByReason) {}

    void addGroup(std::span<Member> group) {
        if (std::ranges::none_of(group, [](const Member& member) { return goes(*member.record); })) return;
        if (group.front().record->sound.verdict != SoundVerdict::none)
            std::ranges::stable_sort(group, {}, recordingOf);
        for (std::size_t first = 0; first < group.size();) {
            std::size_t end = first + 1;
            while (end < group.size() && isOneRecording(group[first].record->sound, group[end].record->sound))
                ++end;
            addSong(group.subspan(first, end - first));
            first = end;
        }
    }

  private:
    void addSong(std::span<const Member> copies) {
        SongsToMerge::Song song;
        std::size_t staying = 0;
        for (const Member& copy : copies) {
            if (goes(*copy.record)) {
                song.removed.push_back({copy.record, copy.record->pid, copy.number});
            } else {
                song.kept = {copy.record, copy.record->pid, 0};
                ++staying;
            }
        }
        if (song.removed.empty() || staying == 0) return;
        if (staying > 1 && !keepNamedOne(copies, song)) {
            ++m_songs.keepSeveral;
        } else if (isNameable(song.kept.pid)) {
            m_songs.songs.push_back(std::move(song));
        }
    }

    bool keepNamedOne(std::span<const Member> copies, SongsToMerge::Song& song) const {
        if (!m_keptByReason) return false;
        std::vector<TrackRecord*> records;
        for (const Member& copy : copies)
            records.push_back(copy.record);
        const TrackRecord* const kept = m_keptByReason(records);
        if (kept) song.kept = {kept, kept->pid, 0};
        return kept != nullptr;
    }

    SongsToMerge& m_songs;
    const KeptByReason& m_keptByReason;
};

} // namespace

SongsToMerge::SongsToMerge(const std::vector<TrackRecord*>& rows, std::shared_ptr<const TrackStorage> kept,
                           const KeptByReason& keptByReason)
    : storage(std::move(kept)) {
    Sorter sorter(*this, keptByReason);
    std::size_t marked = 0;
    std::vector<Member> members;
    for (const RowGroup group : groupsOf(rows)) {
        members.clear();
        for (std::size_t row = group.first; row < group.end; ++row)
            members.push_back({rows[row], rows[row]->checkbox ? marked++ : 0});
        sorter.addGroup(members);
    }
}

} // namespace songsweep
