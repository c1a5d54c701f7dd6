// SPDX-License-Identifier: MIT
#pragma once

#include "dupes/FileKind.h"
#include "dupes/MarkingRules.h"
#include "library/ValueFormats.h"

#include <cstdint>

namespace songsweep {

/// The rules as small types, of which the walk over the groups is made (MarkRuleWalk.h).
///
/// A rule reads one value off each live record, once: `valueOf`. begin() forgets the group before,
/// chooses(value) says whether the record becomes the kept copy, and checks(value) says, when the group is
/// complete, whether the record loses. `textOf` is the text behind the value, or null, so that the walk can
/// ask for its memory ahead.

/// What a rule prefers.
enum class Preference { highest, lowest };

/// Keeps the highest or lowest of a number. `Field` reads it off a record.
template <class Field, Preference preference>
class NumberRule {
  public:
    using Value = std::int32_t;

    explicit NumberRule(bool exceptOne)
        : m_exceptOne(exceptOne) {}

    static Value valueOf(const TrackRecord& record) { return Field::of(record); }
    static const char* textOf(const TrackRecord& record) { return Field::textOf(record); }

    void begin() { m_best = unset; }

    bool chooses(Value value) {
        const bool better = preference == Preference::highest ? value > m_best : m_best < 0 || value < m_best;
        if (better) m_best = value;
        return better;
    }

    bool checks(Value value) const {
        if (preference == Preference::highest) return m_exceptOne ? !(value > m_best) : value < m_best;
        return m_exceptOne ? !(value < m_best) : value > m_best;
    }

  private:
    static constexpr Value unset = -1;
    Value m_best = unset;
    bool m_exceptOne;
};

/// Keeps the earliest or latest date. A track without a date stands at the unset moment, which the next date
/// replaces whatever it is; so with the earliest such a track may stay unchecked.
template <Preference preference>
class DateRule {
  public:
    using Value = std::int64_t;

    explicit DateRule(bool exceptOne)
        : m_exceptOne(exceptOne) {}

    static Value valueOf(const TrackRecord& record) { return record.dateaddedv; }
    static const char* textOf(const TrackRecord&) { return nullptr; }

    void begin() { m_best = unset; }

    bool chooses(Value date) {
        const bool better =
            preference == Preference::highest ? date > m_best : date < m_best || m_best == unset;
        if (better) m_best = date;
        return better;
    }

    bool checks(Value date) const {
        if (preference == Preference::highest) return m_exceptOne ? !(date > m_best) : date < m_best;
        return m_exceptOne ? !(date < m_best) : date > m_best;
    }

  private:
    static constexpr Value unset = 0;
    Value m_best = unset;
    bool m_exceptOne;
};

/// What a copy of which something is true loses by; keeps the last of which it is not.
enum class Loss : std::uint8_t { no, yes };

/// Checks the tracks of which something is true.
template <class Loses>
class TruthRule {
  public:
    using Value = Loss;

    TruthRule(Loses loses, bool exceptOne)
        : m_loses(loses)
        , m_exceptOne(exceptOne) {}

    Value valueOf(const TrackRecord& record) const { return m_loses(record) ? Loss::yes : Loss::no; }
    static const char* textOf(const TrackRecord& record) { return record.location.c_str(); }

    void begin() {}
    bool chooses(Value loss) const { return loss == Loss::no; }
    bool checks(Value loss) const { return m_exceptOne || loss == Loss::yes; }

  private:
    Loses m_loses;
    bool m_exceptOne;
};

/// No rule: only tracks whose files are missing are checked.
class NoRule {
  public:
    using Value = Loss;

    static Value valueOf(const TrackRecord&) { return Loss::no; }
    static const char* textOf(const TrackRecord&) { return nullptr; }
    void begin() {}
    bool chooses(Value) const { return false; }
    bool checks(Value) const { return false; }
};

/// A number that records keep as a text.
template <Text TrackRecord::*text>
struct TextField {
    static std::int32_t of(const TrackRecord& record) { return integerValue(record.*text); }
    static const char* textOf(const TrackRecord& record) { return (record.*text).c_str(); }
};

/// A number that records keep as one.
template <std::int32_t TrackRecord::*number>
struct NumberField {
    static std::int32_t of(const TrackRecord& record) { return record.*number; }
    static const char* textOf(const TrackRecord&) { return nullptr; }
};

using BitrateField = TextField<&TrackRecord::bitrate>;
using TimeField = NumberField<&TrackRecord::timev>;
using SizeField = TextField<&TrackRecord::size>;
using RatingField = NumberField<&TrackRecord::rating>;
using PlayCountField = TextField<&TrackRecord::playcount>;

/// Calls `use` with the rule that belongs to a choice.
template <class Use>
auto withRule(const MarkChoice& choice, Use use) {
    const bool exceptOne = choice.exceptOne;
    switch (choice.markType) {
    case markType::highestBitrate:
        return use(NumberRule<BitrateField, Preference::highest>(exceptOne));
    case markType::lowestBitrate:
        return use(NumberRule<BitrateField, Preference::lowest>(exceptOne));
    case markType::longest:
        return use(NumberRule<TimeField, Preference::highest>(exceptOne));
    case markType::shortest:
        return use(NumberRule<TimeField, Preference::lowest>(exceptOne));
    case markType::largest:
        return use(NumberRule<SizeField, Preference::highest>(exceptOne));
    case markType::smallest:
        return use(NumberRule<SizeField, Preference::lowest>(exceptOne));
    case markType::earliestAdded:
        return use(DateRule<Preference::lowest>(exceptOne));
    case markType::latestAdded:
        return use(DateRule<Preference::highest>(exceptOne));
    case markType::withArtwork:
        return use(TruthRule([](const TrackRecord& record) { return !record.hasartwork; }, exceptOne));
    case markType::withoutArtwork:
        return use(TruthRule([](const TrackRecord& record) { return record.hasartwork; }, exceptOne));
    case markType::highestRating:
        return use(NumberRule<RatingField, Preference::highest>(exceptOne));
    case markType::lowestRating:
        return use(NumberRule<RatingField, Preference::lowest>(exceptOne));
    case markType::mostPlayed:
        return use(NumberRule<PlayCountField, Preference::highest>(exceptOne));
    case markType::leastPlayed:
        return use(NumberRule<PlayCountField, Preference::lowest>(exceptOne));
    case markType::kind:
        return use(TruthRule(
            [&](const TrackRecord& record) { return isOfKind(record.location, choice.text); }, exceptOne));
    case markType::folder:
        return use(TruthRule(
            [&](const TrackRecord& record) { return isSubfolder(choice.text, record.location); }, exceptOne));
    default:
        return use(NoRule());
    }
}

} // namespace songsweep
