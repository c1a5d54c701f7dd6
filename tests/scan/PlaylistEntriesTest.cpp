// SPDX-License-Identifier: MIT
#include "scan/PlaylistEntries.h"

#include <gtest/gtest.h>

namespace songsweep::test {

namespace {

using Names = std::vector<std::string>;

Names namesIn(std::string_view bytes, PlaylistFormat format) {
    Names names;
    for (const PlaylistEntry& entry : entriesOfPlaylist(bytes, format))
        names.insert(names.end(), entry.names.begin(), entry.names.end());
    return names;
}

/// The bytes that are an entry's alone.
std::string partsOf(std::string_view bytes, PlaylistFormat format, std::size_t number) {
    std::string text;
    const std::vector<PlaylistEntry> entries = entriesOfPlaylist(bytes, format);
    for (const ByteRange& part : entries.at(number).parts)
        text += bytes.substr(part.begin, part.length);
    return text;
}

} // namespace

TEST(PlaylistEntries, NamesTheLinesOfAnM3u) {
    EXPECT_EQ(
        namesIn("\xEF\xBB\xBF#EXTM3U\r\n#EXTINF:123,Song\r\na b.mp3 \r\n\r\n../c.mp3", PlaylistFormat::m3u),
        (Names{"a b.mp3", "../c.mp3"}));
    EXPECT_EQ(namesIn("a.mp3\rb.mp3\r", PlaylistFormat::m3u), (Names{"a.mp3", "b.mp3"}));
}

TEST(PlaylistEntries, KeepsTheDirectivesForAnM3uPathWithIt) {
    const std::string_view bytes = "#EXTM3U\n#PLAYLIST:x\n#EXTINF:1,A\n# dear\n#EXTVLCOPT:start=3\n\na.mp3\n"
                                   "#extinf:2,B\r\nb.mp3";
    EXPECT_EQ(partsOf(bytes, PlaylistFormat::m3u, 0), "#EXTINF:1,A\n#EXTVLCOPT:start=3\na.mp3\n");
    EXPECT_EQ(partsOf(bytes, PlaylistFormat::m3u, 1), "#extinf:2,B\r\nb.mp3");
}

TEST(PlaylistEntries, NamesTheFilesOfAPls) {
    EXPECT_EQ(namesIn("[playlist]\nFile1=a.mp3\nTitle1=File2=x\nfile2 = b.mp3\nFiles=c\nLength1=3\n",
                      PlaylistFormat::pls),
              (Names{"a.mp3", "b.mp3"}));
}

TEST(PlaylistEntries, GathersAllOfANumberInAPls) {
    const std::string_view bytes = "[playlist]\nTitle1=A\nFile1=a.mp3\nFile11=b.mp3\nlength1 = 3\n"
                                   "Title11=B\nNumberOfEntries=2\nVersion=2\n";
    EXPECT_EQ(partsOf(bytes, PlaylistFormat::pls, 0), "Title1=A\nFile1=a.mp3\nlength1 = 3\n");
    EXPECT_EQ(partsOf(bytes, PlaylistFormat::pls, 1), "File11=b.mp3\nTitle11=B\n");
}

TEST(PlaylistEntries, NamesTheLocationsOfAnXspf) {
    EXPECT_EQ(
        namesIn("<?xml version=\"1.0\"?><playlist xmlns=\"http://xspf.org/ns/0/\"><location>no</location>"
                "<trackList><track><title>x</title><location> a%20b&amp;c.mp3\n</location></track>"
                "<track><location>file:///home/d.mp3</location></track>",
                PlaylistFormat::xspf),
        (Names{"a%20b&c.mp3", "file:///home/d.mp3"}));
}

TEST(PlaylistEntries, TakesTheLocationsOfAnXspfTrackForOneEntry) {
    const auto entries = entriesOfPlaylist("<playlist><track><location>a</location><location>b</location>"
                                           "</track><track/><track><title>c</title></track></playlist>",
                                           PlaylistFormat::xspf);
    ASSERT_EQ(entries.size(), 1U);
    EXPECT_EQ(entries[0].names, (Names{"a", "b"}));
}

TEST(PlaylistEntries, TakesWholeLinesOfAnXspfOnlyWhereTheyAreATracksAlone) {
    const std::string_view lines = "<playlist>\n  <track>\r\n<location>a</location></track> \r\n</playlist>";
    EXPECT_EQ(partsOf(lines, PlaylistFormat::xspf, 0), "  <track>\r\n<location>a</location></track> \r\n");
    const std::string_view line = "<playlist>\n <track><location>a</location></track> <track><location>b"
                                  "</location></track>\n</playlist>";
    EXPECT_EQ(partsOf(line, PlaylistFormat::xspf, 0), "<track><location>a</location></track>");
    EXPECT_EQ(partsOf(line, PlaylistFormat::xspf, 1), "<track><location>b</location></track>");
}

} // namespace songsweep::test
