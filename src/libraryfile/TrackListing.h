// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <unordered_map>
#include <vector>

namespace songsweep {

/// The tracks of a playlist in their order, of which one after the other may be struck out.
///
/// Each track comes with the number of its item; the numbers ascend. A place, counted from 0, is one among
/// what is left, and found by a tree of counts, so that a script that takes out track after track is linear.
/// What is struck out keeps its slot. The tree and the threads that join the slots of a track are made when
/// they are needed: a list that only grows is two numbers a track. Everything else costs the logarithm of
/// the list's length. One thread at a time.
class TrackListing {
  public:
    /// `item` is beyond those before it.
    void append(std::uint32_t track, std::uint32_t item);

    /// The number of tracks that are left.
    std::size_t size() const { return m_left; }
    std::uint32_t track(std::size_t place) const { return m_tracks[slotOf(place)]; }
    std::uint32_t item(std::size_t place) const { return m_items[slotOf(place)]; }

    /// Where the item is now; nothing where it was struck out, or never was there.
    std::optional<std::size_t> placeOfItem(std::uint32_t item) const;
    /// Where the track is now, ascending. The first call is linear.
    std::vector<std::size_t> placesOfTrack(std::uint32_t track);

    /// The item is another track's from now on. Costs what the two tracks have of items.
    void replaceTrack(std::uint32_t item, std::uint32_t track);

    void strikeItem(std::uint32_t item);
    /// All items of the track. The first call is linear.
    void strikeTrack(std::uint32_t track);

  private:
    using Slot = std::uint32_t;
    static constexpr Slot noSlot = 0xFFFFFFFF;

    std::optional<Slot> slotOfItem(std::uint32_t item) const;
    Slot slotOf(std::size_t place) const;
    std::size_t placeOf(Slot slot) const;
    void strike(Slot slot);
    void count();
    void growCounts();
    void threadSlots();
    void thread(Slot slot);
    void unthread(Slot slot);
    void threadBetween(Slot slot);

    std::vector<std::uint32_t> m_tracks; // by slot
    std::vector<std::uint32_t> m_items;
    std::size_t m_left = 0;
    // Made by the first strike.
    std::vector<bool> m_struck;
    std::vector<std::uint32_t> m_counts; ///< of a binary indexed tree, from 1: how many of its range are left
    // Made by the first question for a track.
    std::unordered_map<std::uint32_t, Slot> m_last; ///< the last slot of a track
    std::vector<Slot> m_previous;                   ///< the one before it of the same track
};

} // namespace songsweep
