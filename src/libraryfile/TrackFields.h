// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/XmlText.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace songsweep {

/// The values of one entry of the dictionary of tracks, by their library keys in lower case ("bit rate").
///
/// Made from the entry's bytes when somebody asks for a track; values are the library's texts as they stand,
/// neither trimmed nor converted. Values that hold others (an array, a dictionary) are left out. A value.
class TrackFields {
  public:
    /// Reads an entry's bytes, key and all; nothing where they are no entry.
    static std::optional<TrackFields> parse(std::string_view entry, const XmlEntities& entities);

    /// The value of the key, given in lower case; of several, the last. Null where there is none.
    const std::string* find(std::string_view key) const;

    /// The same, "" where there is none.
    std::string_view text(std::string_view key) const {
        const std::string* value = find(key);
        return value ? std::string_view(*value) : std::string_view();
    }

  private:
    std::vector<std::pair<std::string, std::string>> m_values;
};

} // namespace songsweep
