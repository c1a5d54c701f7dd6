// SPDX-License-Identifier: MIT
#include "merge/MergePlan.h"

#include "libraryfile/PlaylistPlaces.h"

#include <algorithm>
#include <limits>

namespace songsweep {

namespace {

using Property = MergedProperty;
constexpr std::int64_t highestCount = std::numeric_limits<std::int32_t>::max(); // that iTunes holds

/// The copy with the best value where it is better than the kept one's; the first of several.
template <class Field, class IsBetter>
std::optional<std::size_t> bestOf(const CopyFacts& kept, const std::vector<CopyFacts>& removed, Field field,
                                  IsBetter isBetter) {
    std::optional<std::size_t> best;
    for (std::size_t i = 0; i < removed.size(); ++i)
        if (isBetter(removed[i].*field, (best ? removed[*best] : kept).*field)) best = i;
    return best;
}

/// Collects what is given.
class Values {
  public:
    Values(const CopyFacts& kept, const std::vector<CopyFacts>& removed)
        : m_kept(kept)
        , m_removed(removed) {}

    void addSum(Property property, std::int64_t CopyFacts::*field) {
        std::int64_t sum = m_kept.*field;
        for (const CopyFacts& copy : m_removed)
            sum = std::min(sum + std::min(copy.*field, highestCount), highestCount);
        if (sum > m_kept.*field) m_values.push_back({property, sum, {}});
    }
    template <class Field, class IsBetter>
    void addBest(Property property, Field field, IsBetter isBetter) {
        if (const auto best = bestOf(m_kept, m_removed, field, isBetter))
            m_values.push_back({property, 0, best});
    }
    void addFillIns() {
        for (std::size_t i = 0; i < fillInCount; ++i) {
            const auto found =
                std::ranges::find_if(m_removed, [&](const auto& copy) { return copy.gives[i]; });
            if (m_kept.has[i] || found == m_removed.end()) continue;
            const auto first = static_cast<std::size_t>(Property::genre);
            m_values.push_back(
                {static_cast<Property>(first + i), 0, static_cast<std::size_t>(found - m_removed.begin())});
        }
    }
    std::vector<MergedValue> take() { return std::move(m_values); }

  private:
    const CopyFacts& m_kept;
    const std::vector<CopyFacts>& m_removed;
    std::vector<MergedValue> m_values;
};

} // namespace

std::vector<MergedValue> mergedValues(const CopyFacts& kept, const std::vector<CopyFacts>& removed,
                                      const MergeChoice& choice, MergeRoad road) {
    const auto isMore = [](auto one, auto other) { return one > other; };
    const auto isEarlier = [](const auto& one, const auto& other) {
        return one && (!other || *one < *other);
    };
    Values values(kept, removed);
    if (choice.history) {
        values.addSum(Property::plays, &CopyFacts::plays);
        values.addSum(Property::skips, &CopyFacts::skips);
        values.addBest(Property::rating, &CopyFacts::rating, isMore);
        values.addBest(Property::albumRating, &CopyFacts::albumRating, isMore);
        values.addBest(Property::lastPlayed, &CopyFacts::lastPlayed, isMore);
        values.addBest(Property::lastSkipped, &CopyFacts::lastSkipped, isMore);
        if (road == MergeRoad::libraryFile) values.addBest(Property::added, &CopyFacts::added, isEarlier);
        values.addBest(Property::loved, &CopyFacts::isLoved, isMore);
        values.addBest(Property::enabled, &CopyFacts::isEnabled, isMore);
    }
    if (choice.fillIns) values.addFillIns();
    return values.take();
}

MergedPlaces mergedPlaces(std::size_t playlist, const std::vector<std::uint32_t>& items,
                          std::size_t removedCount) {
    MergedPlaces places{playlist, {}, std::vector<std::size_t>(removedCount), 0};
    const std::vector<PlaceFate> fates = placeFates(items);
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (fates[i] == PlaceFate::goesToKept) ++places.taken[items[i] - 1];
        if (fates[i] == PlaceFate::isGivenUp && items[i] == 0) ++places.givenUp;
    }
    return places;
}

} // namespace songsweep
