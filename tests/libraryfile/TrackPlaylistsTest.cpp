// SPDX-License-Identifier: MIT
#include "libraryfile/TrackPlaylists.h"

#include "libraryfile/LibraryDocument.h"
#include "libraryfile/LibraryFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace songsweep::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(TrackPlaylists, NameEachPlaylistOnceInTheirOrder) {
    const Folder folder;
    auto library = LibraryDocument::open(folder.write(
        "library.xml", libraryXml({{1, "A1", ""}, {2, "A2", ""}, {3, "A3", ""}},
                                  {{"All", "<key>Master</key><true/>", {1, 2, 3}},
                                   {"Music", "<key>Distinguished Kind</key><integer>4</integer>", {1}},
                                   {"Folder", "<key>Folder</key><true/>", {1, 2}},
                                   {"Summer", "", {2, 1, 2}},
                                   {"Clever", "<key>Smart Info</key><data/>", {1}}})));
    ASSERT_TRUE(library);
    EXPECT_THAT(playlistsOfTracks(*library.value(), {"A2", "a1", "A3", "A1"}),
                ElementsAre(ElementsAre("Summer"), ElementsAre("Summer", "Clever"), IsEmpty(),
                            ElementsAre("Summer", "Clever")));
}

TEST(TrackPlaylists, AnIdThatIsNotOneTracksAloneHasNone) {
    const Folder folder;
    auto library = LibraryDocument::open(folder.write(
        "library.xml", libraryXml({{1, "A1", ""}, {2, "A1", ""}},
                                  {{"All", "<key>Master</key><true/>", {1, 2}}, {"Mix", "", {1, 2}}})));
    ASSERT_TRUE(library);
    EXPECT_THAT(playlistsOfTracks(*library.value(), {"A1", "FF", ""}),
                ElementsAre(IsEmpty(), IsEmpty(), IsEmpty()));
}

} // namespace
} // namespace songsweep::test
