// SPDX-License-Identifier: MIT
#include "dupes/RecordingGroups.h"

#include "platform/Words.h"

#include <algorithm>
#include <limits>
#include <numeric>

namespace songsweep {

namespace {

/// By number, with those that have none at the end.
std::int32_t rank(const TrackRecord& record) {
    return record.sound.set == 0 ? std::numeric_limits<std::int32_t>::max() : record.sound.set;
}

bool isNeighbourOfOther(const std::vector<TrackRecord*>& rows, std::size_t row, std::size_t other) {
    return other < rows.size() && rows[row]->gid == rows[other]->gid &&
           !isOneRecording(rows[row]->sound, rows[other]->sound);
}

} // namespace

std::vector<std::size_t> recordingOrder(const std::vector<TrackRecord*>& rows) {
    std::vector<std::size_t> order(rows.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    for (const RowGroup group : groupsOf(rows))
        std::stable_sort(order.begin() + static_cast<std::ptrdiff_t>(group.first),
                         order.begin() + static_cast<std::ptrdiff_t>(group.end),
                         [&](std::size_t a, std::size_t b) { return rank(*rows[a]) < rank(*rows[b]); });
    return order;
}

RecordingGroups::RecordingGroups(const std::vector<TrackRecord*>& rows) {
    m_rows.reserve(rows.size());
    for (const std::size_t row : recordingOrder(rows))
        m_rows.push_back(rows[row]);
    m_gids.reserve(rows.size());
    m_songs.reserve(rows.size());
    std::int32_t song = 0;
    for (std::size_t row = 0; row < m_rows.size(); ++row) {
        const bool goesOn = row > 0 && m_rows[row]->gid == m_rows[row - 1]->gid &&
                            isOneRecording(m_rows[row]->sound, m_rows[row - 1]->sound);
        m_gids.push_back(m_rows[row]->gid);
        m_songs.push_back(goesOn ? song : --song);
    }
}

void RecordingGroups::split(const RowGroup& group) {
    for (std::size_t row = group.first; row < group.end; ++row)
        m_rows[row]->gid = m_songs[row];
}

void RecordingGroups::join(const RowGroup& group) {
    for (std::size_t row = group.first; row < group.end; ++row)
        m_rows[row]->gid = m_gids[row];
}

bool RecordingGroups::isCompared(const RowGroup& song) const {
    return m_rows[song.first]->sound.verdict != SoundVerdict::none;
}

void RecordingGroups::keepLastCopies() {
    for (const RowGroup song : groupsOf(m_rows)) {
        const auto first = m_rows.begin() + static_cast<std::ptrdiff_t>(song.first);
        const auto end = m_rows.begin() + static_cast<std::ptrdiff_t>(song.end);
        if (!isCompared(song)) continue;
        if (!std::all_of(first, end, [](const TrackRecord* record) { return record->checkbox; })) continue;
        std::for_each(first, end, [](TrackRecord* record) { record->checkbox = false; });
    }
}

int recordingsLosingEveryCopy(const std::vector<TrackRecord*>& rows) {
    int lost = 0;
    const std::vector<std::size_t> order = recordingOrder(rows);
    for (std::size_t first = 0; first < order.size();) {
        const TrackRecord& record = *rows[order[first]];
        bool isLost = record.sound.verdict != SoundVerdict::none;
        std::size_t end = first;
        for (; end < order.size(); ++end) {
            const TrackRecord& copy = *rows[order[end]];
            const bool isOther = copy.gid != record.gid || !isOneRecording(copy.sound, record.sound);
            if (end > first && isOther) break;
            isLost = isLost && copy.checkbox;
        }
        lost += isLost ? static_cast<int>(end - first) : 0;
        first = end;
    }
    return lost;
}

std::string recordingReason(const std::vector<TrackRecord*>& rows, std::size_t row) {
    const TrackRecord& record = *rows.at(row);
    if (record.checkbox || record.sound.verdict == SoundVerdict::none) return {};
    if (record.sound.verdict == SoundVerdict::notReadable)
        return words("MarkReason", "kept: its sound could not be compared");
    const bool isUnsure = record.sound.verdict == SoundVerdict::unsure;
    if (isNeighbourOfOther(rows, row, row + 1))
        return isUnsure ? words("MarkReason", "kept: perhaps another recording than the copy below")
                        : words("MarkReason", "kept: another recording than the copy below");
    if (row == 0 || !isNeighbourOfOther(rows, row, row - 1)) return {};
    return isUnsure ? words("MarkReason", "kept: perhaps another recording than the copy above")
                    : words("MarkReason", "kept: another recording than the copy above");
}

} // namespace songsweep
