// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace songsweep {

/// What a script gives: a text, a number, a truth value, a date, a file, the missing value, a constant, an
/// object of an application, or a list of these.
///
/// A value; the operations are those of an Apple event descriptor.
class Descriptor {
  public:
    using List = std::vector<Descriptor>;
    struct MissingValue {
        bool operator==(const MissingValue&) const = default;
    };
    /// Seconds of local time since 1904-01-01 00:00:00, as a LongDateTime counts them.
    struct Date {
        std::int64_t longDateTime = 0;
        bool operator==(const Date&) const = default;
    };
    /// A file by its POSIX path (UTF-8).
    struct Alias {
        std::string posixPath;
        bool operator==(const Alias&) const = default;
    };
    /// A word of the language that is a value: `January`, `Monday`. The name stands in the program's own
    /// text.
    struct Constant {
        std::string_view name;
        std::int64_t number = 0; ///< of a month or a day of the week, from 1
        bool operator==(const Constant&) const = default;
    };
    /// An object of an application, in source notation: `artwork 1 of track 2 of playlist 1`.
    struct Object {
        std::string specifier;
        bool operator==(const Object&) const = default;
    };
    using Value = std::variant<MissingValue, bool, std::int64_t, double, std::string, Date, Alias, List,
                               Object, Constant>;

    Descriptor() = default; ///< the missing value
    Descriptor(Value value)
        : m_value(std::move(value)) {}
    static Descriptor text(std::string text) { return Descriptor(Value(std::move(text))); }
    static Descriptor integer(std::int64_t number) { return Descriptor(Value(number)); }
    static Descriptor list(List items) { return Descriptor(Value(std::move(items))); }

    /// The text: of the missing value "msng", of a one-item list its item's, of an alias its HFS path;
    /// nothing for a list of none or several items, and for an object.
    std::optional<std::string> stringValue() const;

    /// The value as a 32-bit integer, clamped to its range; 0 where it has none.
    std::int32_t int32Value() const;

    /// The number of items of a list; 0 for anything else.
    int numberOfItems() const;

    /// Item `index` of a list, counted from 1; null where there is none. Lives as long as this descriptor.
    const Descriptor* descriptorAtIndex(int index) const;

    /// The raw bytes: of a date 8, a LongDateTime in the host's byte order; of a text its UTF-8.
    std::vector<std::byte> data() const;

    const Value& value() const { return m_value; }
    bool operator==(const Descriptor&) const = default;

  private:
    Value m_value;
};

} // namespace songsweep
