// SPDX-License-Identifier: MIT
#include "library/LibraryKeys.h"

#include <gtest/gtest.h>

namespace songsweep {
namespace {

TEST(LibraryKeys, AreKnownInAnyCase) {
    EXPECT_EQ(libraryKey("Name"), LibraryKey::name);
    EXPECT_EQ(libraryKey("ARTIST"), LibraryKey::artist);
    EXPECT_EQ(libraryKey("album"), LibraryKey::album);
    EXPECT_EQ(libraryKey("Size"), LibraryKey::size);
    EXPECT_EQ(libraryKey("Bit Rate"), LibraryKey::bitRate);
    EXPECT_EQ(libraryKey("Track ID"), LibraryKey::trackId);
    EXPECT_EQ(libraryKey("Total Time"), LibraryKey::totalTime);
    EXPECT_EQ(libraryKey("Persistent ID"), LibraryKey::persistentId);
    EXPECT_EQ(libraryKey("Location"), LibraryKey::location);
    EXPECT_EQ(libraryKey("Rating"), LibraryKey::rating);
    EXPECT_EQ(libraryKey("Play Count"), LibraryKey::playCount);
    EXPECT_EQ(libraryKey("Artwork Count"), LibraryKey::artworkCount);
    EXPECT_EQ(libraryKey("Track Type"), LibraryKey::trackType);
    EXPECT_EQ(libraryKey("Date Added"), LibraryKey::dateAdded);
    EXPECT_EQ(libraryKey("Track Number"), LibraryKey::trackNumber);
    EXPECT_EQ(libraryKey("Tracks"), LibraryKey::tracks);
    EXPECT_EQ(libraryKey("Playlists"), LibraryKey::playlists);
    EXPECT_EQ(libraryKey("Playlist Persistent ID"), LibraryKey::playlistPersistentId);
    EXPECT_EQ(libraryKey("Master"), LibraryKey::master);
    EXPECT_EQ(libraryKey("Smart Info"), LibraryKey::smartInfo);
    EXPECT_EQ(libraryKey("Folder"), LibraryKey::folder);
    EXPECT_EQ(libraryKey("Visible"), LibraryKey::visible);
    EXPECT_EQ(libraryKey("Distinguished Kind"), LibraryKey::distinguishedKind);
    EXPECT_EQ(libraryKey("Playlist Items"), LibraryKey::playlistItems);
}

TEST(LibraryKeys, OthersAreNotTakenForThem) {
    for (const char* text : {"Album Artist", "Album Rating", "Sort Name", "Names", "Nam", "Playlist ID",
                             "Library Persistent ID", "Date Modified", "Year", "1873"})
        EXPECT_EQ(libraryKey(text), LibraryKey::other) << text;
}

TEST(LibraryKeys, BlanksAroundAKeyCount) {
    EXPECT_EQ(libraryKey(" Name"), LibraryKey::other);
    EXPECT_EQ(libraryKey("Name\n"), LibraryKey::other);
}

TEST(LibraryKeys, AnEmptyKeyIsNone) { EXPECT_EQ(libraryKey(""), LibraryKey::none); }

TEST(LibraryKeys, LettersWhoseSmallOneIsAsciiCount) {
    EXPECT_EQ(libraryKey("Trac\u212a ID"), LibraryKey::trackId);
}

} // namespace
} // namespace songsweep
