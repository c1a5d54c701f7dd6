// SPDX-License-Identifier: MIT
#include "app/SearchSummary.h"

#include <gtest/gtest.h>

namespace songsweep {
namespace {

constexpr auto searched = ChosenPlaylist::searched;

TEST(SearchSummary, NamesThePlaylistAndWhatWasCompared) {
    SearchParameters parameters{.issamename = true, .issametime = true, .playlist = "Music"};
    EXPECT_EQ(searchSummary(parameters, searched), "Music: same name, time");
    parameters = {.playlist = "Music"};
    EXPECT_EQ(searchSummary(parameters, searched), "Music: everything");
}

TEST(SearchSummary, TellsThatSmallDifferencesAreAllowed) {
    SearchParameters parameters{.issamename = true, .issimilar = true, .playlist = "Music"};
    EXPECT_EQ(searchSummary(parameters, searched), "Music: same name, with small differences");
    parameters.issamename = false;
    EXPECT_EQ(searchSummary(parameters, searched), "Music: everything");
}

TEST(SearchSummary, NamesTheWholeLibraryWhereThePlaylistWasMissed) {
    EXPECT_EQ(searchSummary({.issamename = true, .playlist = "Party"}, ChosenPlaylist::missed),
              "Whole library, not “Party”: same name");
}

/// The end behind the last colon is what is shown in any case.
TEST(SearchSummary, HasTheNotesBeforeWhatWasCompared) {
    EXPECT_EQ(searchSummary({.issamename = true, .playlist = "Music"}, searched,
                            {"3 tracks could not be read: no end", "the search broke off: out of memory"}),
              "Music (3 tracks could not be read: no end) (the search broke off: out of memory): same name");
}

} // namespace
} // namespace songsweep
