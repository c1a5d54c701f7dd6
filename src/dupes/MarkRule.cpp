// SPDX-License-Identifier: MIT
#include "dupes/MarkRule.h"

#include "dupes/MarkComparisons.h"
#include "dupes/MarkWalk.h"
#include "platform/Words.h"

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
             translatable("MarkRule", "Highest"),
             keepsHighest<BitrateField>,
             {translatable("MarkReason", "lower bit rate"), translatable("MarkReason", "same bit rate"),
              bitrateReason}},
    MarkRule{MarkType::lowestBitrate,
             MarkField::bitrate,
             "lowest-bitrate",
             translatable("MarkRule", "Lowest"),
             keepsLowest<BitrateField>,
             {translatable("MarkReason", "higher bit rate"), translatable("MarkReason", "same bit rate"),
              bitrateReason}},
    MarkRule{MarkType::longest,
             MarkField::time,
             "longest",
             translatable("MarkRule", "Longest"),
             keepsHighest<TimeField>,
             {translatable("MarkReason", "shorter"), translatable("MarkReason", "same time"), timeReason}},
    MarkRule{MarkType::shortest,
             MarkField::time,
             "shortest",
             translatable("MarkRule", "Shortest"),
             keepsLowest<TimeField>,
             {translatable("MarkReason", "longer"), translatable("MarkReason", "same time"), timeReason}},
    MarkRule{MarkType::largest,
             MarkField::size,
             "largest",
             translatable("MarkRule", "Largest"),
             keepsHighest<SizeField>,
             {translatable("MarkReason", "smaller"), translatable("MarkReason", "same size"), sizeReason}},
    MarkRule{MarkType::smallest,
             MarkField::size,
             "smallest",
             translatable("MarkRule", "Smallest"),
             keepsLowest<SizeField>,
             {translatable("MarkReason", "larger"), translatable("MarkReason", "same size"), sizeReason}},
    MarkRule{MarkType::earliestAdded,
             MarkField::dateAdded,
             "earliest-added",
             translatable("MarkRule", "Earliest"),
             keepsEarliest,
             {translatable("MarkReason", "added later"), translatable("MarkReason", "same date added"),
              dateReason}},
    MarkRule{MarkType::latestAdded,
             MarkField::dateAdded,
             "latest-added",
             translatable("MarkRule", "Latest"),
             keepsLatest,
             {translatable("MarkReason", "added earlier"), translatable("MarkReason", "same date added"),
              dateReason}},
    MarkRule{MarkType::withArtwork,
             MarkField::artwork,
             "with-artwork",
             translatable("MarkRule", "With artwork"),
             checksThose<ArtworkProperty<false>>,
             {translatable("MarkReason", "no artwork"),
              translatable("MarkReason", "another copy with artwork is kept"), plainReason}},
    MarkRule{MarkType::withoutArtwork,
             MarkField::artwork,
             "without-artwork",
             translatable("MarkRule", "Without artwork"),
             checksThose<ArtworkProperty<true>>,
             {translatable("MarkReason", "has artwork"),
              translatable("MarkReason", "another copy without artwork is kept"), plainReason}},
    MarkRule{MarkType::highestRating,
             MarkField::rating,
             "highest-rating",
             translatable("MarkRule", "Highest"),
             keepsHighest<RatingField>,
             {translatable("MarkReason", "lower rating"), translatable("MarkReason", "same rating"),
              ratingReason}},
    MarkRule{MarkType::lowestRating,
             MarkField::rating,
             "lowest-rating",
             translatable("MarkRule", "Lowest"),
             keepsLowest<RatingField>,
             {translatable("MarkReason", "higher rating"), translatable("MarkReason", "same rating"),
              ratingReason}},
    MarkRule{MarkType::mostPlayed,
             MarkField::playCount,
             "most-played",
             translatable("MarkRule", "Most played"),
             keepsHighest<PlayCountField>,
             {translatable("MarkReason", "played less"), translatable("MarkReason", "same play count"),
              playCountReason}},
    MarkRule{MarkType::leastPlayed,
             MarkField::playCount,
             "least-played",
             translatable("MarkRule", "Least played"),
             keepsLowest<PlayCountField>,
             {translatable("MarkReason", "played more"), translatable("MarkReason", "same play count"),
              playCountReason}},
    MarkRule{MarkType::kind,
             MarkField::kind,
             "kind",
             nullptr,
             checksThose<KindProperty>,
             {translatable("MarkReason", "of the kind"), translatable("MarkReason", "another copy is kept"),
              textReason}},
    MarkRule{MarkType::folder,
             MarkField::folder,
             "folder",
             nullptr,
             checksThose<FolderProperty>,
             {translatable("MarkReason", "in the folder"), translatable("MarkReason", "another copy is kept"),
              textReason}},
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
