// SPDX-License-Identifier: MIT
#include "libraryfile/PlaylistPlaces.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace songsweep {
namespace {

using testing::ElementsAre;
using Fate = PlaceFate;

TEST(PlaylistPlaces, AnItemOfARemovedCopyBecomesTheKeptOnes) {
    EXPECT_THAT(placeFates({1}), ElementsAre(Fate::goesToKept));
    EXPECT_THAT(placeFates({2, 2}), ElementsAre(Fate::goesToKept, Fate::goesToKept));
}

TEST(PlaylistPlaces, TheLaterItemsGoWhereTheSongWouldStandMoreOftenThanAnyCopyDid) {
    EXPECT_THAT(placeFates({1, 0}), ElementsAre(Fate::goesToKept, Fate::isGivenUp));
    EXPECT_THAT(placeFates({0, 1, 2}), ElementsAre(Fate::stays, Fate::isGivenUp, Fate::isGivenUp));
    EXPECT_THAT(placeFates({0, 1, 1}), ElementsAre(Fate::stays, Fate::goesToKept, Fate::isGivenUp));
}

TEST(PlaylistPlaces, ArePlaylistsThatPeopleFill) {
    LibraryIndex index;
    index.playlists.resize(6);
    index.playlists[1].smart = true;
    index.playlists[2].folder = true;
    index.playlists[3].distinguishedKind = 4;
    index.playlists[5].master = true;
    EXPECT_THAT(placesOf(index), ElementsAre(true, false, false, false, true, false));
    index.playlists[5].master = false;
    EXPECT_THAT(placesOf(index), ElementsAre(false, false, false, false, true, true))
        << "without a master the first one is the library";
}

} // namespace
} // namespace songsweep
