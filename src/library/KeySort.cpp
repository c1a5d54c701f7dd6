// SPDX-License-Identifier: MIT
#include "library/KeySort.h"

#include "library/CaseFolding.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <span>

namespace songsweep {

namespace {

/// The first bytes of a key as a number that compares as the bytes do.
std::uint64_t wordOf(const char* bytes, std::size_t count) {
    unsigned char padded[sizeof(std::uint64_t)] = {};
    std::memcpy(padded, bytes, count);
    std::uint64_t word = 0;
    for (const unsigned char byte : padded)
        word = word << 8 | byte;
    return word;
}

} // namespace

void KeySort::add(std::string_view key) {
    m_items.push_back({0, m_keys.copy(key), static_cast<std::uint32_t>(key.size()),
                       static_cast<std::uint32_t>(m_items.size())});
}

std::vector<std::uint32_t> KeySort::order() {
    // A list of runs instead of a recursion, which two long equal texts would drive too deep.
    std::vector<Run> runs = {{0, m_items.size()}};
    while (!runs.empty()) {
        const Run run = runs.back();
        runs.pop_back();
        sortByNextWord(run);
        pushRunsOfEqualWords(run, runs);
    }

    std::vector<std::uint32_t> numbers(m_items.size());
    std::transform(m_items.begin(), m_items.end(), numbers.begin(),
                   [](const Item& item) { return item.index; });
    return numbers;
}

void KeySort::takeWord(Item& item) {
    const auto count = std::min<std::uint32_t>(item.restLength, sizeof(item.word));
    item.word = wordOf(item.rest, count);
    item.rest += count;
    item.restLength -= count;
}

void KeySort::sortByNextWord(Run run) {
    const auto begin = m_items.begin() + static_cast<std::ptrdiff_t>(run.begin);
    const auto end = m_items.begin() + static_cast<std::ptrdiff_t>(run.end);
    std::for_each(begin, end, takeWord);
    std::sort(begin, end, [](const Item& a, const Item& b) {
        return a.word != b.word ? a.word < b.word : a.index < b.index;
    });
}

void KeySort::pushRunsOfEqualWords(Run run, std::vector<Run>& runs) {
    for (std::size_t begin = run.begin; begin < run.end;) {
        std::size_t end = begin + 1;
        while (end < run.end && m_items[end].word == m_items[begin].word)
            ++end;
        // Of keys none of which begins another, the ended ones are equal to the end.
        if (end - begin > 1) (m_items[begin].restLength > 0 ? runs : m_equalRuns).push_back({begin, end});
        begin = end;
    }
}

SortKey& SortKey::text(std::string_view text) {
    appendFoldedKey(m_bytes, text);
    m_bytes += '\0';
    return *this;
}

SortKey& SortKey::number(std::int64_t number) {
    // With the sign turned around the numbers below zero stand before those above.
    const std::uint64_t word = static_cast<std::uint64_t>(number) ^ (std::uint64_t{1} << 63);
    std::array<char, sizeof word> bytes{};
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<char>(static_cast<unsigned char>(word >> (56 - 8 * i)));
    m_bytes.append(bytes.data(), bytes.size());
    return *this;
}

SortKey& SortKey::reverse(std::size_t start) {
    std::for_each(m_bytes.begin() + static_cast<std::ptrdiff_t>(start), m_bytes.end(),
                  [](char& byte) { byte = static_cast<char>(~byte); });
    return *this;
}

namespace {

/// An item by the beginning of its key.
struct Beginning {
    std::uint64_t word;
    std::uint32_t item;
};

std::vector<Beginning> sortedBeginnings(std::size_t count,
                                        const std::function<void(SortKey&, std::uint32_t)>& addKey) {
    std::vector<Beginning> beginnings;
    beginnings.reserve(count);
    SortKey key;
    for (std::uint32_t item = 0; item < count; ++item) {
        addKey(key.clear(), item);
        beginnings.push_back({wordOf(key.bytes().data(), std::min(key.size(), sizeof(std::uint64_t))), item});
    }
    std::sort(beginnings.begin(), beginnings.end(), [](const Beginning& a, const Beginning& b) {
        return a.word != b.word ? a.word < b.word : a.item < b.item;
    });
    return beginnings;
}

/// Puts items that agree in the beginning of their keys behind those in the order.
void appendRun(KeyOrder& order, std::span<const Beginning> run,
               const std::function<void(SortKey&, std::uint32_t)>& addKey) {
    const std::size_t begin = order.items.size();
    order.repeats.resize(begin + run.size());
    if (run.size() == 1) return order.items.push_back(run.front().item);
    KeySort sort(run.size());
    SortKey key;
    for (const Beginning& beginning : run) {
        addKey(key.clear(), beginning.item);
        sort.add(key.bytes());
    }
    for (const std::uint32_t place : sort.order())
        order.items.push_back(run[place].item);
    for (const KeySort::Run equal : sort.equalRuns())
        for (std::size_t place = equal.begin + 1; place < equal.end; ++place)
            order.repeats[begin + place] = true;
}

} // namespace

KeyOrder orderOfKeys(std::size_t count, const std::function<void(SortKey&, std::uint32_t)>& addKey) {
    const std::vector<Beginning> beginnings = sortedBeginnings(count, addKey);
    KeyOrder order;
    order.items.reserve(count);
    for (auto begin = beginnings.begin(); begin != beginnings.end();) {
        const auto end = std::find_if(begin, beginnings.end(),
                                      [&](const Beginning& other) { return other.word != begin->word; });
        appendRun(order, {begin, end}, addKey);
        begin = end;
    }
    return order;
}

} // namespace songsweep
