// SPDX-License-Identifier: MIT
#include "libraryfile/LibraryIndex.h"

#include "libraryfile/LibraryFixture.h"

#include <gtest/gtest.h>

namespace songsweep {
namespace {

using test::Folder;
using test::libraryXml;

Result<LibraryIndex> indexOf(std::string_view text) {
    const Folder folder;
    const auto file = LibraryFile::open(folder.write("library.xml", text));
    return LibraryIndex::read(file.value());
}

std::string bytesOf(std::string_view text, const TrackSlot& track) {
    return std::string(text.substr(track.begin, track.length));
}

std::string bytesOf(std::string_view text, const PlaylistSlot& playlist, int item) {
    const ItemSlot& slot = playlist.items[static_cast<std::size_t>(item)];
    return std::string(text.substr(playlist.begin + slot.begin, slot.length));
}

TEST(LibraryIndex, KnowsTheBytesOfEveryTrackAndItem) {
    const std::string text = libraryXml({{10, "00000000000000A1", ""}, {12, "00000000000000A2", ""}},
                                        {{"Library", "<key>Master</key><true/>", {12, 10}}});
    const auto index = indexOf(text);
    ASSERT_TRUE(index) << index.error().message;
    ASSERT_EQ(index.value().tracks.size(), 2U);
    EXPECT_EQ(bytesOf(text, index.value().tracks[1]),
              "\n\t\t<key>12</key>\n\t\t<dict>\n\t\t\t<key>Track ID</key><integer>12</integer>\n"
              "\t\t\t<key>Persistent ID</key><string>00000000000000A2</string>\n\t\t</dict>");
    EXPECT_EQ(index.value().tracks[1].trackId, 12);
    EXPECT_EQ(index.value().tracks[1].persistentId, 0xA2U);
    const PlaylistSlot& playlist = index.value().playlists[0];
    EXPECT_EQ(bytesOf(text, playlist, 0),
              "\n\t\t\t\t<dict>\n\t\t\t\t\t<key>Track ID</key><integer>12</integer>\n\t\t\t\t</dict>");
    EXPECT_EQ(playlist.items[0].track, 1U);
    EXPECT_EQ(playlist.items[1].track, 0U);
}

TEST(LibraryIndex, ReadsWithoutIndentationAndWithOtherLineBreaks) {
    std::string text =
        libraryXml({{10, "00000000000000A1", ""}, {12, "00000000000000A2", ""}}, {{"Mine", "", {10, 12}}});
    std::string bare;
    std::string dos;
    for (const char c : text) {
        if (c != '\n' && c != '\t') bare += c;
        if (c == '\n') dos += '\r';
        dos += c;
    }
    for (const std::string& variant : {bare, dos}) {
        const auto index = indexOf(variant);
        ASSERT_TRUE(index) << index.error().message;
        EXPECT_EQ(index.value().tracks.size(), 2U);
        EXPECT_EQ(index.value().playlists[0].items.size(), 2U);
    }
    EXPECT_TRUE(bytesOf(dos, indexOf(dos).value().tracks[0]).starts_with("\r\n\t\t<key>10</key>\r\n"));
}

TEST(LibraryIndex, CountsEmptyEntries) {
    const auto index =
        indexOf("<plist><dict><key>Tracks</key><dict><key>1</key><dict/><key>2</key><dict></dict>"
                "<key>3</key><string>no entry</string></dict></dict></plist>");
    ASSERT_TRUE(index);
    ASSERT_EQ(index.value().tracks.size(), 2U);
    EXPECT_EQ(index.value().tracks[0].trackId, 1);
    EXPECT_EQ(index.value().tracks[0].persistentIdKind, PersistentId::Kind::none);
}

TEST(LibraryIndex, ReadsEveryFlagOfAPlaylistInAnyOrder) {
    const auto index = indexOf(
        "<plist><dict><key>Playlists</key><array><dict><key>Playlist Items</key><array><dict>"
        "<key>Track ID</key><integer>7</integer></dict></array><key>Folder</key><true/><key>Smart Info</key>"
        "<dict><key>Name</key><string>no</string></dict><key>Smart Criteria</key><data>U0xzdA==</data>"
        "<key>Distinguished Kind</key><integer>4</integer><key>Visible</key><false/>"
        "<key>Playlist Persistent ID</key><string>00AB</string><key>Name</key><string> A &amp; B\n</string>"
        "</dict><dict/></array><key>Tracks</key><dict><key>7</key><dict/></dict></dict></plist>");
    ASSERT_TRUE(index) << index.error().message;
    ASSERT_EQ(index.value().playlists.size(), 2U);
    const PlaylistSlot& playlist = index.value().playlists[0];
    EXPECT_EQ(playlist.name, "A & B") << "without the blanks around it, as readers compare it";
    EXPECT_EQ(playlist.persistentId, "00AB");
    EXPECT_EQ(playlist.distinguishedKind, 4);
    EXPECT_TRUE(playlist.smart);
    EXPECT_TRUE(playlist.folder);
    EXPECT_FALSE(playlist.visible);
    EXPECT_FALSE(playlist.master);
    EXPECT_EQ(playlist.items[0].track, 0U); // The tracks came later.
    EXPECT_EQ(index.value().playlists[1].name, "");
}

TEST(LibraryIndex, LeavesItemsOfUnknownTracksAlone) {
    const auto index = indexOf(libraryXml({{10, "", ""}}, {{"Mine", "", {99, 10}}}));
    ASSERT_TRUE(index);
    EXPECT_EQ(index.value().playlists[0].items[0].track, LibraryIndex::noTrack);
    EXPECT_EQ(index.value().playlists[0].items[1].track, 0U);
}

TEST(LibraryIndex, FindsTheTracksOfItemsInAnyOrder) {
    const std::string text =
        libraryXml({{10, "00000000000000A1", ""}, {12, "00000000000000A2", ""}, {14, "00000000000000A3", ""}},
                   {{"Mine", "", {10, 12, 12, 10, 14, 11, 13, 14, 15}}});
    const auto index = indexOf(text);
    ASSERT_TRUE(index) << index.error().message;
    std::vector<std::uint32_t> tracks;
    for (const ItemSlot& item : index.value().playlists[0].items)
        tracks.push_back(item.track);
    constexpr std::uint32_t none = LibraryIndex::noTrack;
    EXPECT_EQ(tracks, (std::vector<std::uint32_t>{0, 1, 1, 0, 2, none, none, 2, none}));
}

TEST(LibraryIndex, OfTwoTracksOfOneIdTheFirstIsAnItems) {
    const std::string text =
        libraryXml({{10, "00000000000000A1", ""}, {10, "00000000000000A2", ""}}, {{"Mine", "", {10, 10}}});
    const auto index = indexOf(text);
    ASSERT_TRUE(index) << index.error().message;
    EXPECT_EQ(index.value().playlists[0].items[0].track, 0U);
    EXPECT_EQ(index.value().playlists[0].items[1].track, 0U);
}

TEST(LibraryIndex, KnowsIdsOfMoreThan32Bits) {
    std::string text = libraryXml({{10, "00000000000000A1", ""}, {12, "00000000000000A2", ""}},
                                  {{"Mine", "", {12, 10, 12}}});
    for (std::size_t at = 0; (at = text.find(">12<", at)) != std::string::npos;)
        text.replace(at, 4, ">5000000012<");
    const auto index = indexOf(text);
    ASSERT_TRUE(index) << index.error().message;
    const std::vector<ItemSlot>& items = index.value().playlists[0].items;
    EXPECT_EQ(items[0].track, 1U);
    EXPECT_EQ(items[1].track, 0U);
    EXPECT_EQ(items[2].track, 1U);
}

TEST(LibraryIndex, IsNotMisledByTextsThatLookLikeTags) {
    const auto index =
        indexOf(libraryXml({{10, "00000000000000A1",
                             "<key>Name</key><string><![CDATA[</string></dict>]]><!-- <dict> --></string>"}},
                           {}));
    ASSERT_TRUE(index) << index.error().message;
    EXPECT_EQ(index.value().tracks.size(), 1U);
}

TEST(LibraryIndex, FindsIdsWrittenWithReferencesAndSections) {
    const auto index = indexOf(libraryXml({{10, "&#48;000000000000<![CDATA[0A]]>1", ""}}, {}));
    ASSERT_TRUE(index);
    EXPECT_EQ(index.value().tracks[0].persistentId, 0xA1U);
    EXPECT_EQ(index.value().tracks[0].persistentIdKind, PersistentId::Kind::exact);
}

TEST(LibraryIndex, RefusesWhatIsNoLibrary) {
    const auto reason = [](std::string_view text) { return indexOf(text).error().message; };
    EXPECT_EQ(reason("<html>\n</html>"), "line 1: the file is not a property list");
    EXPECT_EQ(reason("<plist>\n<array/></plist>"), "line 2: the file is not a library: it is no dictionary");
    EXPECT_EQ(reason("<plist><dict/>\n</plist>"),
              "line 1: the file is not a library: it has no dictionary of tracks");
    EXPECT_EQ(reason("<plist/>"), "line 1: the file is not a library: it has no dictionary of tracks");
}

TEST(LibraryIndex, RefusesEveryCutOfALibrary) {
    const std::string text = libraryXml({{10, "00000000000000A1", ""}}, {{"Mine", "", {10}}});
    for (std::size_t length = 0; length + 1 < text.size(); ++length)
        ASSERT_FALSE(indexOf(std::string_view(text).substr(0, length))) << length;
}

TEST(LibraryIndex, SaysTheLineOfATagThatDoesNotMatch) {
    EXPECT_EQ(
        indexOf("<plist>\n<dict>\n<key>Tracks</key>\n<dict>\n</array>\n</dict></plist>").error().message,
        "line 5: </array> stands where </dict> is due");
}

} // namespace
} // namespace songsweep
