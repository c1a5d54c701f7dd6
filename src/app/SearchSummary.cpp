// SPDX-License-Identifier: MIT
#include "app/SearchSummary.h"

#include <array>

namespace songsweep {

std::string searchSummary(const SearchParameters& parameters, ChosenPlaylist playlist,
                          const std::vector<std::string>& notes) {
    struct Field {
        bool chosen;
        const char* name;
    };
    const std::array fields = {Field{parameters.issamename, "name"}, Field{parameters.issameartist, "artist"},
                               Field{parameters.issamealbum, "album"}, Field{parameters.issametime, "time"}};
    std::string names;
    for (const Field& field : fields) {
        if (!field.chosen) continue;
        names += names.empty() ? "same " : ", ";
        names += field.name;
    }
    std::string place = parameters.playlist.value_or("");
    if (playlist == ChosenPlaylist::missed) place = "Whole library, not “" + place + "”";
    for (const std::string& note : notes)
        place += " (" + note + ")";
    if (parameters.issimilar && !names.empty()) names += ", with small differences";
    return place + ": " + (names.empty() ? "everything" : names);
}

} // namespace songsweep
