// SPDX-License-Identifier: MIT
#pragma once

#include "library/LibraryKeys.h"
#include "libraryfile/XmlText.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace songsweep {

struct Property;

/// The values of one entry of the dictionary of tracks, by their library keys.
///
/// Made from the entry's bytes when somebody asks for a track; values are the library's texts as they stand,
/// neither trimmed nor converted. Values that hold others (an array, a dictionary) are left out, and those of
/// keys that nobody looks at. A value.
class TrackFields {
  public:
    /// Reads an entry's bytes, key and all; nothing where they are no entry.
    static std::optional<TrackFields> parse(std::string_view entry, const XmlEntities& entities);

    /// The value of the key; of several, the last. Lives as long as the fields stay where they are.
    std::optional<std::string_view> find(LibraryKey key) const;

    /// The same, "" where there is none.
    std::string_view text(LibraryKey key) const { return find(key).value_or(std::string_view()); }

  private:
    /// A value's place in `m_texts`.
    struct Value {
        LibraryKey key;
        std::size_t begin;
        std::size_t length;
    };

    bool keep(const Property& property, const XmlEntities& entities);
    void keep(LibraryKey key, std::string_view value);

    std::vector<Value> m_values;
    std::string m_texts; // one behind the other, so that an entry costs two pieces of memory
};

} // namespace songsweep
