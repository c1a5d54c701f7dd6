// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/EntryValues.h"
#include "platform/Result.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace songsweep {

/// A new value of one key of a track's entry.
struct ValueChange {
    enum class Form : std::uint8_t { text, integer, date, isTrue, none };

    std::string key;
    Form form = Form::none; ///< `none` takes the key and its value out
    std::string text;       ///< of a text, an integer or a date ("2009-03-14T15:09:26Z")

    bool operator==(const ValueChange&) const = default;
};

/// Bytes of an entry that give way to others; the place is measured from the entry's begin.
struct EntryReplacement {
    std::size_t begin = 0;
    std::size_t length = 0;
    std::string text;
};

/// The replacements that make the changes in an entry, in order, none overlapping; all other bytes stay.
///
/// A value that is there is replaced, one that is not is put behind the last one, with the white space that
/// the last one has around its key. An error where a key has several values, where the entry has none at all,
/// and for a text with a character that XML does not know.
Result<std::vector<EntryReplacement>> replacementsFor(std::string_view entry, const XmlEntities& entities,
                                                      const std::vector<ValueChange>& changes);

/// The entry with the replacements made.
std::string withReplacements(std::string_view entry, const std::vector<EntryReplacement>& replacements);

} // namespace songsweep
