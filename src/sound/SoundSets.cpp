// SPDX-License-Identifier: MIT
#include "sound/SoundSets.h"

#include "sound/SoundIndex.h"
#include "sound/SoundMatch.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>
#include <unordered_map>

namespace songsweep {

namespace {

constexpr std::size_t fewSets = 16;
constexpr int mostSecondsApart = 10;

/// Sets as they grow.
class SetBuilder {
  public:
    SoundPlace place(const HeardCopy& copy) {
        SoundMatch best;
        std::size_t bestSet = m_first.size();
        bool isUnsure = false;
        for (const std::size_t set : candidates(*copy.fingerprint)) {
            const SoundMatch match = compare(copy, m_first[set]);
            isUnsure = isUnsure || match.sameness == Sameness::unsure;
            if (match.sameness != Sameness::same || match.agreement <= best.agreement) continue;
            best = match;
            bestSet = set;
        }
        if (bestSet < m_first.size()) return {static_cast<std::int32_t>(bestSet) + 1, false};
        m_index.add(bestSet, *copy.fingerprint);
        m_first.push_back(copy);
        return {static_cast<std::int32_t>(bestSet) + 1, isUnsure};
    }

  private:
    std::vector<std::size_t> candidates(const Fingerprint& fingerprint) const {
        if (m_first.size() > fewSets) return m_index.candidates(fingerprint);
        std::vector<std::size_t> all(m_first.size());
        std::iota(all.begin(), all.end(), std::size_t{0});
        return all;
    }

    static SoundMatch compare(const HeardCopy& a, const HeardCopy& b) {
        SoundMatch match = matchSounds(*a.fingerprint, *b.fingerprint);
        const bool knowsLengths = a.seconds > 0 && b.seconds > 0;
        if (match.sameness == Sameness::same && knowsLengths &&
            std::abs(a.seconds - b.seconds) > mostSecondsApart)
            match.sameness = Sameness::unsure;
        return match;
    }

    std::vector<HeardCopy> m_first; ///< of each set
    SoundIndex m_index;
};

/// The longest first, so that what a set's copies are compared with covers them.
std::vector<std::size_t> longestFirst(const std::vector<HeardCopy>& copies) {
    std::vector<std::size_t> order;
    for (std::size_t i = 0; i < copies.size(); ++i)
        if (copies[i].fingerprint) order.push_back(i);
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        return copies[a].fingerprint->size() > copies[b].fingerprint->size();
    });
    return order;
}

/// Numbers the sets as the copies meet them.
void numberByCopies(std::vector<SoundPlace>& places) {
    std::unordered_map<std::int32_t, std::int32_t> numbers;
    for (SoundPlace& place : places)
        if (place.set != 0)
            place.set =
                numbers.emplace(place.set, static_cast<std::int32_t>(numbers.size()) + 1).first->second;
}

} // namespace

std::vector<SoundPlace> soundSets(const std::vector<HeardCopy>& copies) {
    std::vector<SoundPlace> places(copies.size());
    SetBuilder sets;
    for (const std::size_t copy : longestFirst(copies))
        places[copy] = sets.place(copies[copy]);
    numberByCopies(places);
    return places;
}

} // namespace songsweep
