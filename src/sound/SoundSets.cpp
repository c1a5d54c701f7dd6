// SPDX-License-Identifier: MIT
#include "sound/SoundSets.h"

#include "sound/SoundIndex.h"
#include "sound/SoundMatch.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>
#include <unordered_map>
#include <utility>

namespace songsweep {

namespace {

constexpr std::size_t fewSets = 16;
constexpr int mostSecondsApart = 10;

/// A set as it grows.
struct GrowingSet {
    HeardCopy first;
    std::size_t place = 0; ///< of the first copy
    bool hasOthers = false;
};

/// Compares one copy after the other with the sets that there are.
class SetBuilder {
  public:
    explicit SetBuilder(const std::vector<HeardCopy>& copies)
        : m_copies(copies)
        , m_places(copies.size()) {}

    void add(std::size_t copy) {
        const std::vector<Compared> compared = compareWithSets(m_copies[copy]);
        const Compared* best = nullptr;
        for (const Compared& each : compared) {
            const bool isBetter = !best || each.match.agreement > best->match.agreement;
            if (each.match.sameness == Sameness::same && isBetter) best = &each;
        }
        if (best) {
            join(copy, *best);
        } else {
            begin(copy, compared);
        }
    }

    std::vector<SoundPlace> takePlaces() { return std::move(m_places); }

  private:
    struct Compared {
        std::size_t set;
        SoundMatch match;
    };

    std::vector<Compared> compareWithSets(const HeardCopy& copy) const {
        std::vector<Compared> compared;
        for (const std::size_t set : candidates(*copy.fingerprint))
            compared.push_back({set, compare(copy, m_sets[set].first)});
        return compared;
    }

    std::vector<std::size_t> candidates(const Fingerprint& fingerprint) const {
        if (m_sets.size() > fewSets) return m_index.candidates(fingerprint);
        std::vector<std::size_t> all(m_sets.size());
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

    void join(std::size_t copy, const Compared& best) {
        GrowingSet& set = m_sets[best.set];
        SoundPlace& first = m_places[set.place];
        first.agreement = set.hasOthers ? std::max(first.agreement, best.match.agreement)
                                        : best.match.agreement; // no more that with another set
        set.hasOthers = true;
        m_places[copy] = {first.set, false, best.match.agreement};
    }

    /// Doubt is mutual: the set that the copy may belong to is told, too.
    void begin(std::size_t copy, const std::vector<Compared>& compared) {
        SoundPlace& place = m_places[copy];
        place.set = static_cast<std::int32_t>(m_sets.size()) + 1;
        for (const Compared& each : compared) {
            const bool isUnsure = each.match.sameness == Sameness::unsure;
            const GrowingSet& set = m_sets[each.set];
            place.isUnsure = place.isUnsure || isUnsure;
            place.agreement = std::max(place.agreement, each.match.agreement);
            if (set.hasOthers) continue;
            SoundPlace& first = m_places[set.place];
            first.isUnsure = first.isUnsure || isUnsure;
            first.agreement = std::max(first.agreement, each.match.agreement);
        }
        m_index.add(m_sets.size(), *m_copies[copy].fingerprint);
        m_sets.push_back({m_copies[copy], copy});
    }

    const std::vector<HeardCopy>& m_copies;
    std::vector<SoundPlace> m_places;
    std::vector<GrowingSet> m_sets;
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
    SetBuilder sets(copies);
    for (const std::size_t copy : longestFirst(copies))
        sets.add(copy);
    std::vector<SoundPlace> places = sets.takePlaces();
    numberByCopies(places);
    return places;
}

} // namespace songsweep
