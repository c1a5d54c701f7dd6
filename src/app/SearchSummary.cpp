// SPDX-License-Identifier: MIT
#include "app/SearchSummary.h"

#include "platform/Words.h"

#include <array>

namespace songsweep {

std::string searchSummary(const SearchParameters& parameters, ChosenPlaylist playlist,
                          const std::vector<std::string>& notes) {
    struct Field {
        bool chosen;
        std::string name;
    };
    const std::array fields = {Field{parameters.issamename, words("SearchSummary", "name")},
                               Field{parameters.issameartist, words("SearchSummary", "artist")},
                               Field{parameters.issamealbum, words("SearchSummary", "album")},
                               Field{parameters.issametime, words("SearchSummary", "time")}};
    std::string names;
    for (const Field& field : fields) {
        if (!field.chosen) continue;
        names += (names.empty() ? "" : ", ") + field.name;
    }
    std::string place = parameters.playlist.value_or("");
    if (playlist == ChosenPlaylist::missed)
        place = filled(words("SearchSummary", "Whole library, not “%1”"), {place});
    for (const std::string& note : notes)
        place += " (" + note + ")";
    if (names.empty()) return place + ": " + words("SearchSummary", "everything");
    const std::string same = parameters.issimilar ? words("SearchSummary", "same %1, with small differences")
                                                  : words("SearchSummary", "same %1");
    return place + ": " + filled(same, {names});
}

} // namespace songsweep
