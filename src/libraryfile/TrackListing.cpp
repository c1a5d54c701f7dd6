// SPDX-License-Identifier: MIT
#include "libraryfile/TrackListing.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace songsweep {

namespace {

/// How many slots the count at this place of the tree stands for.
std::size_t rangeOf(std::size_t place) { return place & (~place + 1); }

} // namespace

void TrackListing::append(std::uint32_t track, std::uint32_t item) {
    m_tracks.push_back(track);
    m_items.push_back(item);
    ++m_left;
    if (!m_counts.empty()) growCounts();
    if (!m_previous.empty()) thread(static_cast<Slot>(m_tracks.size() - 1));
}

std::optional<std::size_t> TrackListing::placeOfItem(std::uint32_t item) const {
    const auto slot = slotOfItem(item);
    return slot ? std::optional(placeOf(*slot)) : std::nullopt;
}

std::vector<std::size_t> TrackListing::placesOfTrack(std::uint32_t track) {
    threadSlots();
    std::vector<std::size_t> places;
    const auto last = m_last.find(track);
    for (Slot slot = last == m_last.end() ? noSlot : last->second; slot != noSlot; slot = m_previous[slot])
        if (m_struck.empty() || !m_struck[slot]) places.push_back(placeOf(slot));
    std::ranges::reverse(places);
    return places;
}

void TrackListing::replaceTrack(std::uint32_t item, std::uint32_t track) {
    const auto slot = slotOfItem(item);
    if (!slot) return;
    const bool isThreaded = !m_previous.empty();
    if (isThreaded) unthread(*slot);
    m_tracks[*slot] = track;
    if (isThreaded) threadBetween(*slot);
}

void TrackListing::strikeItem(std::uint32_t item) {
    if (const auto slot = slotOfItem(item)) strike(*slot);
}

void TrackListing::strikeTrack(std::uint32_t track) {
    threadSlots();
    const auto last = m_last.find(track);
    for (Slot slot = last == m_last.end() ? noSlot : last->second; slot != noSlot; slot = m_previous[slot])
        strike(slot);
}

/// Nothing for one that was struck out.
std::optional<TrackListing::Slot> TrackListing::slotOfItem(std::uint32_t item) const {
    const auto found = std::ranges::lower_bound(m_items, item);
    if (found == m_items.end() || *found != item) return std::nullopt;
    const auto slot = static_cast<Slot>(found - m_items.begin());
    return m_struck.empty() || !m_struck[slot] ? std::optional(slot) : std::nullopt;
}

/// Goes down the tree, leaving behind the ranges that end before the place.
TrackListing::Slot TrackListing::slotOf(std::size_t place) const {
    if (m_counts.empty()) return static_cast<Slot>(place);
    std::size_t passed = 0;
    for (std::size_t range = std::bit_floor(m_tracks.size()); range > 0; range /= 2) {
        if (passed + range > m_tracks.size() || m_counts[passed + range] > place) continue;
        passed += range;
        place -= m_counts[passed];
    }
    return static_cast<Slot>(passed);
}

std::size_t TrackListing::placeOf(Slot slot) const {
    if (m_counts.empty()) return slot;
    std::size_t before = 0;
    for (std::size_t at = slot; at > 0; at -= rangeOf(at))
        before += m_counts[at];
    return before;
}

void TrackListing::strike(Slot slot) {
    count();
    if (m_struck[slot]) return;
    m_struck[slot] = true;
    --m_left;
    for (std::size_t at = std::size_t{slot} + 1; at < m_counts.size(); at += rangeOf(at))
        --m_counts[at];
}

void TrackListing::count() {
    if (!m_counts.empty()) return;
    m_struck.assign(m_tracks.size(), false);
    m_counts.resize(m_tracks.size() + 1);
    for (std::size_t at = 1; at < m_counts.size(); ++at)
        m_counts[at] = static_cast<std::uint32_t>(rangeOf(at)); // all are left
}

/// The range of a new slot is that slot and whole ranges before it.
void TrackListing::growCounts() {
    m_struck.push_back(false);
    const std::size_t end = m_counts.size();
    std::uint32_t left = 1;
    for (std::size_t at = end - 1; at > end - rangeOf(end); at -= rangeOf(at))
        left += m_counts[at];
    m_counts.push_back(left);
}

void TrackListing::threadSlots() {
    if (m_previous.size() == m_tracks.size()) return;
    m_last.reserve(m_tracks.size());
    m_previous.reserve(m_tracks.size());
    for (Slot slot = 0; slot < m_tracks.size(); ++slot)
        thread(slot);
}

void TrackListing::thread(Slot slot) {
    const auto [last, isFirst] = m_last.try_emplace(m_tracks[slot], slot);
    m_previous.push_back(isFirst ? noSlot : std::exchange(last->second, slot));
}

/// Takes a slot out of the thread of its track.
void TrackListing::unthread(Slot slot) {
    const auto last = m_last.find(m_tracks[slot]);
    Slot* link = &last->second;
    while (*link != slot)
        link = &m_previous[*link];
    *link = m_previous[slot];
    if (last->second == noSlot) m_last.erase(last);
}

/// Puts a slot into the thread of its track, which goes from the last slot to the first.
void TrackListing::threadBetween(Slot slot) {
    Slot* link = &m_last.try_emplace(m_tracks[slot], noSlot).first->second;
    while (*link != noSlot && *link > slot)
        link = &m_previous[*link];
    m_previous[slot] = std::exchange(*link, slot);
}

} // namespace songsweep
