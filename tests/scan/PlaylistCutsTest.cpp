// SPDX-License-Identifier: MIT
#include "scan/PlaylistCuts.h"

#include "scan/Hash64.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace songsweep::test {

namespace {

/// Playlists in a folder in which a.mp3 and Rock/b.mp3 are gone.
class PlaylistCuts : public ::testing::Test {
  protected:
    PlaylistCuts() {
        m_gone.add(m_folder.path() + "/a.mp3");
        m_gone.add(m_folder.path() + "/Rock/b.mp3");
        m_gone.add("/elsewhere/c.mp3");
    }

    std::string rest(const std::string& bytes, const std::string& playlist) const {
        const Result<RecordedPlaylist> cuts = playlistCuts(bytes, playlist, m_gone);
        return cuts ? withoutCuts(bytes, cuts.value()) : cuts.error().message;
    }

    TemporaryFolder m_folder;
    GoneFiles m_gone{m_folder.path()};
};

} // namespace

TEST_F(PlaylistCuts, TakesNothingOutOfAListOfOtherFiles) {
    const std::string bytes = "#EXTM3U\nc.mp3\n../a.mp3\nhttp://radio/a.mp3\n/elsewhere/c.mp3\n";
    EXPECT_TRUE(playlistCuts(bytes, "x.m3u", m_gone).value().cuts.empty());
}

TEST_F(PlaylistCuts, TakesThePathAndItsInformationOutOfAnM3u) {
    EXPECT_EQ(rest("#EXTM3U\r\n#EXTINF:1,A\r\na.mp3\r\n\r\n# mine\r\n#EXTINF:2,C\r\nc.mp3\r\nRock\\b.mp3",
                   "x.m3u8"),
              "#EXTM3U\r\n\r\n# mine\r\n#EXTINF:2,C\r\nc.mp3\r\n");
}

TEST_F(PlaylistCuts, LeavesTheNumbersOfAPlsAsTheyAre) {
    EXPECT_EQ(rest("[playlist]\nNumberOfEntries=3\nFile1=c.mp3\nTitle2=A\nFile2=a.mp3\nLength2=9\n"
                   "File3=d.mp3\nTitle3=D\nVersion=2\n",
                   "x.pls"),
              "[playlist]\nNumberOfEntries=3\nFile1=c.mp3\nFile3=d.mp3\nTitle3=D\nVersion=2\n");
}

TEST_F(PlaylistCuts, TakesTheTrackOutOfAnXspf) {
    EXPECT_EQ(rest("<playlist>\n\t<trackList>\n\t\t<track><location>Rock/b.mp3</location></track>\n"
                   "\t\t<track><location>c.mp3</location></track>\n\t</trackList>\n</playlist>\n",
                   "x.xspf"),
              "<playlist>\n\t<trackList>\n\t\t<track><location>c.mp3</location></track>\n\t</trackList>\n"
              "</playlist>\n");
}

TEST_F(PlaylistCuts, KnowsAFileByEachOfItsNames) {
    EXPECT_EQ(
        rest("../a.mp3\n" + m_folder.path() + "/Rock/b.mp3\nfile://" + m_folder.path() + "/a.mp3\nb.mp3\n",
             "Rock/x.m3u"),
        "");
}

TEST_F(PlaylistCuts, KeepsALineThatMayMeanAFileThatIsThere) {
    m_folder.write("Rock\\b.mp3", "x");
    EXPECT_EQ(rest("Rock\\b.mp3\nRock/b.mp3\n", "x.m3u"), "Rock\\b.mp3\n");
}

TEST_F(PlaylistCuts, TellsWhatIsBesideEachCut) {
    const std::string bytes = "#EXTM3U\nc.mp3\na.mp3\nRock/b.mp3\nd.mp3\n";
    const RecordedPlaylist cuts = playlistCuts(bytes, "x.m3u", m_gone).value();
    ASSERT_EQ(cuts.cuts.size(), 2U);
    EXPECT_EQ(cuts.cuts[0],
              (RecordedPlaylist::Cut{1, 14, m_folder.path() + "/a.mp3", "a.mp3\n", "c.mp3\n", "d.mp3\n"}));
    EXPECT_EQ(cuts.cuts[1].before, "c.mp3\n");
    EXPECT_EQ(cuts.cuts[1].at, 20U);
    EXPECT_EQ(cuts.hash, hash64("#EXTM3U\nc.mp3\nd.mp3\n"));
}

} // namespace songsweep::test
