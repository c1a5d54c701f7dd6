// SPDX-License-Identifier: MIT
#include "dupes/MarkRule.h"

#include "dupes/MarkComparisons.h"
#include "dupes/MarkWalk.h"

#include <algorithm>
#include <array>

namespace songsweep {

namespace {

template <class Field>
constexpr MarkWalks keepsHighest = WalksBy<NumberComparison<Field, Preference::highest>>::all;
template <class Field>
constexpr MarkWalks keepsLowest = WalksBy<NumberComparison<Field, Preference::lowest>>::all;
constexpr MarkWalks keepsEarliest = WalksBy<DateComparison<Preference::lowest>>::all;
constexpr MarkWalks keepsLatest = WalksBy<DateComparison<Preference::highest>>::all;
template <class Property>
constexpr MarkWalks checksThose = WalksBy<PropertyComparison<Property>>::all;

constexpr std::array rules = {
    MarkRule{MarkType::highestBitrate,
             MarkField::bitrate,
             "highest-bitrate",
             "Highest",
             keepsHighest<BitrateField>,
             {"lower bit rate", "same bit rate", bitrateReason}},
    MarkRule{MarkType::lowestBitrate,
             MarkField::bitrate,
             "lowest-bitrate",
             "Lowest",
             keepsLowest<BitrateField>,
             {"higher bit rate", "same bit rate", bitrateReason}},
    MarkRule{MarkType::longest,
             MarkField::time,
             "longest",
             "Longest",
             keepsHighest<TimeField>,
             {"shorter", "same time", timeReason}},
    MarkRule{MarkType::shortest,
             MarkField::time,
             "shortest",
             "Shortest",
             keepsLowest<TimeField>,
             {"longer", "same time", timeReason}},
    MarkRule{MarkType::largest,
             MarkField::size,
             "largest",
             "Largest",
             keepsHighest<SizeField>,
             {"smaller", "same size", sizeReason}},
    MarkRule{MarkType::smallest,
             MarkField::size,
             "smallest",
             "Smallest",
             keepsLowest<SizeField>,
             {"larger", "same size", sizeReason}},
    MarkRule{MarkType::earliestAdded,
             MarkField::dateAdded,
             "earliest-added",
             "Earliest",
             keepsEarliest,
             {"added later", "same date added", dateReason}},
    MarkRule{MarkType::latestAdded,
             MarkField::dateAdded,
             "latest-added",
             "Latest",
             keepsLatest,
             {"added earlier", "same date added", dateReason}},
    MarkRule{MarkType::withArtwork,
             MarkField::artwork,
             "with-artwork",
             "With artwork",
             checksThose<ArtworkProperty<false>>,
             {"no artwork", "another copy with artwork is kept", plainReason}},
    MarkRule{MarkType::withoutArtwork,
             MarkField::artwork,
             "without-artwork",
             "Without artwork",
             checksThose<ArtworkProperty<true>>,
             {"has artwork", "another copy without artwork is kept", plainReason}},
    MarkRule{MarkType::highestRating,
             MarkField::rating,
             "highest-rating",
             "Highest",
             keepsHighest<RatingField>,
             {"lower rating", "same rating", ratingReason}},
    MarkRule{MarkType::lowestRating,
             MarkField::rating,
             "lowest-rating",
             "Lowest",
             keepsLowest<RatingField>,
             {"higher rating", "same rating", ratingReason}},
    MarkRule{MarkType::mostPlayed,
             MarkField::playCount,
             "most-played",
             "Most played",
             keepsHighest<PlayCountField>,
             {"played less", "same play count", playCountReason}},
    MarkRule{MarkType::leastPlayed,
             MarkField::playCount,
             "least-played",
             "Least played",
             keepsLowest<PlayCountField>,
             {"played more", "same play count", playCountReason}},
    MarkRule{MarkType::kind,
             MarkField::kind,
             "kind",
             nullptr,
             checksThose<KindProperty>,
             {"of the kind", "another copy is kept", textReason}},
    MarkRule{MarkType::folder,
             MarkField::folder,
             "folder",
             nullptr,
             checksThose<FolderProperty>,
             {"in the folder", "another copy is kept", textReason}},
};

constexpr MarkRule noRule = {MarkType::none, MarkField::bitrate,         "",
                             nullptr,        WalksBy<NoComparison>::all, {"", "", plainReason}};

} // namespace

std::span<const MarkRule> markRules() { return rules; }

const MarkRule& markRule(MarkType type) {
    const auto* const rule = std::ranges::find(rules, type, &MarkRule::type);
    return rule == rules.end() ? noRule : *rule;
}

const MarkRule* markRuleNamed(std::string_view name) {
    const auto* const rule =
        std::ranges::find_if(rules, [name](const MarkRule& each) { return each.name == name; });
    return rule == rules.end() ? nullptr : rule;
}

} // namespace songsweep
