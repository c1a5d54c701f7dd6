// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/XmlText.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace songsweep {

/// A value of a track's entry. The places are measured from the entry's begin.
struct EntryValue {
    std::string key; ///< as it is meant, blanks around it left out
    std::string element;
    std::string text;         ///< "" of a value that holds others
    std::size_t keyBegin = 0; ///< of its key's tag
    std::size_t begin = 0;    ///< of its own tag
    std::size_t end = 0;      ///< behind it
};

/// All values of one entry of the dictionary of tracks, and where they stand.
///
/// Beside TrackFields, which knows the values that a search needs and is made for every track of one: this is
/// made for what only few ask for, and for changing values. A value.
class EntryValues {
  public:
    /// Reads an entry's bytes, key and all; nothing where they are no entry.
    static std::optional<EntryValues> parse(std::string_view entry, const XmlEntities& entities);

    const std::vector<EntryValue>& all() const { return m_values; }

    /// The value of a key, in any letter case; of several, the last. Null where there is none.
    const EntryValue* find(std::string_view key) const;

    /// The end of the last thing in the entry's dictionary; nothing where the dictionary is an empty tag.
    std::optional<std::size_t> contentEnd() const { return m_contentEnd; }

  private:
    std::vector<EntryValue> m_values;
    std::optional<std::size_t> m_contentEnd;
};

} // namespace songsweep
