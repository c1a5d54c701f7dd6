// SPDX-License-Identifier: MIT
#pragma once

#include "dupes/FileKind.h"
#include "dupes/MarkingRules.h"
#include "library/ValueFormats.h"

#include <cstddef>
#include <cstdint>

namespace songsweep {

/// The walk over the groups that all rules share, and the rules as small types that it is made with.
///
/// A rule has three parts: begin() forgets the group before, chooses(record) looks at a live record of the
/// group and says whether it becomes the kept copy, and checks(record) says, when the group is complete,
/// whether the record loses. The compiler makes one tight loop of walk and rule.

/// What a rule prefers.
enum class Preference { highest, lowest };

/// Keeps the highest or lowest of a number. `Value` reads it off a record.
template <class Value, Preference preference>
class NumberRule {
  public:
    explicit NumberRule(bool exceptOne)
        : m_exceptOne(exceptOne) {}

    void begin() { m_best = unset; }

    bool chooses(const TrackRecord& record) {
        const std::int64_t value = Value::of(record);
        const bool better = preference == Preference::highest ? value > m_best : m_best < 0 || value < m_best;
        if (better) m_best = value;
        return better;
    }

    bool checks(const TrackRecord& record) const {
        const std::int64_t value = Value::of(record);
        if (preference == Preference::highest) return m_exceptOne ? !(value > m_best) : value < m_best;
        return m_exceptOne ? !(value < m_best) : value > m_best;
    }

    std::int64_t best() const { return m_best; }

  private:
    static constexpr std::int64_t unset = -1;
    std::int64_t m_best = unset;
    bool m_exceptOne;
};

/// Keeps the earliest or latest date. A track without a date stands at the unset moment, which the next date
/// replaces whatever it is; so with the earliest such a track may stay unchecked.
template <Preference preference>
class DateRule {
  public:
    explicit DateRule(bool exceptOne)
        : m_exceptOne(exceptOne) {}

    void begin() { m_best = unset; }

    bool chooses(const TrackRecord& record) {
        const std::int64_t date = record.dateaddedv;
        const bool better =
            preference == Preference::highest ? date > m_best : date < m_best || m_best == unset;
        if (better) m_best = date;
        return better;
    }

    bool checks(const TrackRecord& record) const {
        const std::int64_t date = record.dateaddedv;
        if (preference == Preference::highest) return m_exceptOne ? !(date > m_best) : date < m_best;
        return m_exceptOne ? !(date < m_best) : date > m_best;
    }

  private:
    static constexpr std::int64_t unset = 0;
    std::int64_t m_best = unset;
    bool m_exceptOne;
};

/// Checks the tracks of which something is true and keeps the last of which it is not.
template <class Loses>
class TruthRule {
  public:
    TruthRule(Loses loses, bool exceptOne)
        : m_loses(loses)
        , m_exceptOne(exceptOne) {}

    void begin() {}
    bool chooses(const TrackRecord& record) const { return !m_loses(record); }
    bool checks(const TrackRecord& record) const { return m_exceptOne || m_loses(record); }

  private:
    Loses m_loses;
    bool m_exceptOne;
};

/// No rule: only tracks whose files are missing are checked.
class NoRule {
  public:
    void begin() {}
    bool chooses(const TrackRecord&) const { return false; }
    bool checks(const TrackRecord&) const { return false; }
};

struct BitrateValue {
    static std::int64_t of(const TrackRecord& record) { return integerValue(record.bitrate); }
};
struct TimeValue {
    static std::int64_t of(const TrackRecord& record) { return record.timev; }
};
struct SizeValue {
    static std::int64_t of(const TrackRecord& record) { return integerValue(record.size); }
};
struct RatingValue {
    static std::int64_t of(const TrackRecord& record) { return record.rating; }
};
struct PlayCountValue {
    static std::int64_t of(const TrackRecord& record) { return integerValue(record.playcount); }
};

/// Calls `use` with the rule that belongs to a choice.
template <class Use>
auto withRule(const MarkChoice& choice, Use use) {
    const bool exceptOne = choice.exceptOne;
    switch (choice.markType) {
    case markType::highestBitrate:
        return use(NumberRule<BitrateValue, Preference::highest>(exceptOne));
    case markType::lowestBitrate:
        return use(NumberRule<BitrateValue, Preference::lowest>(exceptOne));
    case markType::longest:
        return use(NumberRule<TimeValue, Preference::highest>(exceptOne));
    case markType::shortest:
        return use(NumberRule<TimeValue, Preference::lowest>(exceptOne));
    case markType::largest:
        return use(NumberRule<SizeValue, Preference::highest>(exceptOne));
    case markType::smallest:
        return use(NumberRule<SizeValue, Preference::lowest>(exceptOne));
    case markType::earliestAdded:
        return use(DateRule<Preference::lowest>(exceptOne));
    case markType::latestAdded:
        return use(DateRule<Preference::highest>(exceptOne));
    case markType::withArtwork:
        return use(TruthRule([](const TrackRecord& record) { return !record.hasartwork; }, exceptOne));
    case markType::withoutArtwork:
        return use(TruthRule([](const TrackRecord& record) { return record.hasartwork; }, exceptOne));
    case markType::highestRating:
        return use(NumberRule<RatingValue, Preference::highest>(exceptOne));
    case markType::lowestRating:
        return use(NumberRule<RatingValue, Preference::lowest>(exceptOne));
    case markType::mostPlayed:
        return use(NumberRule<PlayCountValue, Preference::highest>(exceptOne));
    case markType::leastPlayed:
        return use(NumberRule<PlayCountValue, Preference::lowest>(exceptOne));
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

/// The position behind the group that begins at `first`.
inline std::size_t groupEnd(const TrackRows& rows, std::size_t first) {
    std::size_t end = first + 1;
    while (end < rows.size() && rows[end]->gid == rows[first]->gid)
        ++end;
    return end;
}

inline constexpr std::size_t noRow = static_cast<std::size_t>(-1);

/// Shows the rule the records of one group and gives the place of the kept copy, `noRow` for none.
template <class Rule>
std::size_t chooseKept(const TrackRows& rows, std::size_t first, std::size_t end, bool exceptOne,
                       Rule& rule) {
    std::size_t kept = exceptOne ? first : noRow;
    bool firstLive = true;
    rule.begin();
    for (std::size_t i = first; i < end; ++i) {
        if (rows[i]->isdead) continue;
        if (firstLive) kept = i;
        firstLive = false;
        if (rule.chooses(*rows[i])) kept = i;
    }
    return kept;
}

/// Calls `set` with each record and whether it is to be checked.
template <class Rule, class Set>
void walkGroups(const TrackRows& rows, bool exceptOne, Rule rule, Set set) {
    for (std::size_t first = 0; first < rows.size();) {
        const std::size_t end = groupEnd(rows, first);
        const std::size_t kept = chooseKept(rows, first, end, exceptOne, rule);
        for (std::size_t i = first; i < end; ++i) {
            const bool spared = exceptOne && i == kept;
            set(*rows[i], !spared && (rows[i]->isdead || rule.checks(*rows[i])));
        }
        first = end;
    }
}

} // namespace songsweep
