// SPDX-License-Identifier: MIT
#pragma once

#include "library/Arena.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace songsweep {

/// Puts items into the order of their byte keys; items of equal keys stay in the order added.
///
///     KeySort sort(rows.size());
///     SortKey key;
///     for (const TrackRecord* row : rows) sort.add(key.clear().text(row->name).bytes());
///     for (std::uint32_t index : sort.order()) ...
///
/// Eight bytes of a key are compared as one number that lies beside the item, and only items that agree in
/// them look at the next eight: sorting strings in place would fetch two scattered texts a comparison. No key
/// may be the beginning of another. 24 bytes an item besides the keys. One thread.
class KeySort {
  public:
    /// Neighbours in the order, from `begin` to before `end`.
    struct Run {
        std::size_t begin;
        std::size_t end;
    };

    explicit KeySort(std::size_t expectedCount) { m_items.reserve(expectedCount); }

    void add(std::string_view key);

    /// The numbers of the items, from 0 in the order added, in the order of their keys. Call it once.
    std::vector<std::uint32_t> order();

    /// The places in that order whose items have one key, where they are more than one; in no order
    /// themselves.
    const std::vector<Run>& equalRuns() const { return m_equalRuns; }

  private:
    struct Item {
        std::uint64_t word; // the bytes just before `rest`
        const char* rest;
        std::uint32_t restLength;
        std::uint32_t index;
    };
    static void takeWord(Item& item);
    void sortByNextWord(Run run);
    void pushRunsOfEqualWords(Run run, std::vector<Run>& runs);

    Arena m_keys;
    std::vector<Item> m_items;
    std::vector<Run> m_equalRuns;
};

/// Builds a key of several values, the first deciding before the second. Reusable.
class SortKey {
  public:
    SortKey& clear() {
        m_bytes.clear();
        return *this;
    }
    /// A text without regard to case.
    SortKey& text(std::string_view text);
    SortKey& number(std::int64_t number);
    /// Turns the order of the bytes from `start` on around.
    SortKey& reverse(std::size_t start);
    std::size_t size() const { return m_bytes.size(); }
    std::string_view bytes() const { return m_bytes; }

  private:
    std::string m_bytes;
};

/// Items in the order of their keys, those of equal keys ascending.
struct KeyOrder {
    std::vector<std::uint32_t> items;
    std::vector<bool> repeats; ///< by place: whether the key is that of the item before
};

/// The order of `count` items. `addKey` adds the key of an item; it is called twice for items that agree with
/// others in the first eight bytes. The same order as KeySort's, and 16 bytes an item in place of some 60,
/// since no keys are kept but those of one such run.
KeyOrder orderOfKeys(std::size_t count, const std::function<void(SortKey& key, std::uint32_t item)>& addKey);

} // namespace songsweep
