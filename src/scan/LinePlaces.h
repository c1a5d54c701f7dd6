// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/RecordedPlaylist.h"

#include <cstddef>
#include <optional>
#include <string_view>
#include <unordered_map>

namespace songsweep {

/// Finds where lines that were cut out of a file belong in a later version of it, by their neighbours.
///
/// Linear to make, and a hashed look-up a place; a search through the file for a cut whose neighbours are no
/// whole lines. The bytes outlive it.
class LinePlaces {
  public:
    explicit LinePlaces(std::string_view bytes);

    /// Between its two neighbours if there is one such place, else beside the one of them that is there once.
    std::optional<std::size_t> placeFor(const RecordedPlaylist::Cut& cut) const;

  private:
    struct Place {
        std::size_t at = 0;
        bool isOnly = true;
    };
    using Places = std::unordered_map<std::string_view, Place>;

    static void note(Places& places, std::string_view text, std::size_t at);
    std::optional<std::size_t> onlyPlaceOf(std::string_view text) const;

    std::string_view m_bytes;
    Places m_places; ///< of each line, and of each two that follow each other
};

} // namespace songsweep
