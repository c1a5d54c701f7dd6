// SPDX-License-Identifier: MIT
#pragma once

#include "library/LibraryKeys.h"
#include "libraryfile/XmlText.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>
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

    /// The value of the key; of several, the last. Null where there is none.
    const std::string* find(LibraryKey key) const;

    /// The same, "" where there is none.
    std::string_view text(LibraryKey key) const {
        const std::string* value = find(key);
        return value ? std::string_view(*value) : std::string_view();
    }

  private:
    bool keep(const Property& property, const XmlEntities& entities);
    void keep(LibraryKey key, std::string value);

    std::vector<std::pair<LibraryKey, std::string>> m_values;
};

} // namespace songsweep
