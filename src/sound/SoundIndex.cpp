// SPDX-License-Identifier: MIT
#include "sound/SoundIndex.h"

#include <algorithm>
#include <utility>

namespace songsweep {

namespace {

constexpr std::size_t mostSetsOfItem = 32;
constexpr std::size_t mostCandidates = 8;

} // namespace

void SoundIndex::add(std::size_t set, const Fingerprint& fingerprint) {
    for (const std::uint32_t item : fingerprint) {
        std::vector<std::size_t>& sets = m_setsOfItem[item];
        if (sets.size() < mostSetsOfItem && (sets.empty() || sets.back() != set)) sets.push_back(set);
    }
}

std::vector<std::size_t> SoundIndex::candidates(const Fingerprint& fingerprint) const {
    std::unordered_map<std::size_t, std::size_t> votes;
    for (const std::uint32_t item : fingerprint) {
        const auto found = m_setsOfItem.find(item);
        if (found == m_setsOfItem.end() || found->second.size() >= mostSetsOfItem) continue;
        for (const std::size_t set : found->second)
            ++votes[set];
    }
    std::vector<std::pair<std::size_t, std::size_t>> ranked;
    ranked.reserve(votes.size());
    for (const auto& [set, count] : votes)
        ranked.emplace_back(count, set);
    const std::size_t count = std::min(ranked.size(), mostCandidates);
    std::partial_sort(ranked.begin(), ranked.begin() + static_cast<std::ptrdiff_t>(count), ranked.end(),
                      [](const auto& a, const auto& b) {
                          return a.first != b.first ? a.first > b.first : a.second < b.second;
                      });
    std::vector<std::size_t> sets;
    sets.reserve(count);
    for (std::size_t i = 0; i < count; ++i)
        sets.push_back(ranked[i].second);
    return sets;
}

} // namespace songsweep
