// SPDX-License-Identifier: MIT
#pragma once

#include "dupes/FileKind.h"
#include "dupes/MarkChoice.h"
#include "dupes/MarkingRules.h"
#include "library/ValueFormats.h"

#include <cstdint>
#include <string_view>

namespace songsweep {

/// How the rules compare, as small types, of which the walk over the groups is made (MarkWalk.h).
///
/// A comparison reads one value off each live record, once: `valueOf`. begin() forgets the group before,
/// chooses(value) says whether the record becomes the kept copy, and checks(value) says, when the group is
/// complete, whether the record loses. `textOf` is the text behind the value, or null, so that the walk can
/// ask for its memory ahead. One that is made lives no longer than the choice it was made for.

/// What a rule prefers.
enum class Preference { highest, lowest };

/// Keeps the highest or lowest of a number. `Field` reads it off a record.
template <class Field, Preference preference>
class NumberComparison {
  public:
    using Value = std::int32_t;

    explicit NumberComparison(const MarkChoice& choice)
        : m_exceptOne(choice.exceptOne) {}

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
class DateComparison {
  public:
    using Value = std::int64_t;

    explicit DateComparison(const MarkChoice& choice)
        : m_exceptOne(choice.exceptOne) {}

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

/// Whether a copy loses, where no values are compared.
enum class Loss : std::uint8_t { no, yes };

/// Checks the copies that have a property; keeps the last that has it not.
template <class Property>
class PropertyComparison {
  public:
    using Value = Loss;

    explicit PropertyComparison(const MarkChoice& choice)
        : m_property{choice.text}
        , m_exceptOne(choice.exceptOne) {}

    Value valueOf(const TrackRecord& record) const { return m_property.isOf(record) ? Loss::yes : Loss::no; }
    static const char* textOf(const TrackRecord& record) { return record.location.c_str(); }

    void begin() {}
    bool chooses(Value loss) const { return loss == Loss::no; }
    bool checks(Value loss) const { return m_exceptOne || loss == Loss::yes; }

  private:
    Property m_property;
    bool m_exceptOne;
};

/// No rule: only tracks whose files are missing are checked.
class NoComparison {
  public:
    using Value = Loss;

    explicit NoComparison(const MarkChoice& /*choice*/) {}

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

/// Whether a track has artwork, or has none.
template <bool artwork>
struct ArtworkProperty {
    std::string_view text;
    static bool isOf(const TrackRecord& record) { return record.hasartwork == artwork; }
};

struct KindProperty {
    std::string_view kind;
    bool isOf(const TrackRecord& record) const { return isOfKind(record.location, kind); }
};

struct FolderProperty {
    std::string_view folder;
    bool isOf(const TrackRecord& record) const { return isSubfolder(folder, record.location); }
};

} // namespace songsweep
