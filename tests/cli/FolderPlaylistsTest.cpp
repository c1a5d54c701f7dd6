// SPDX-License-Identifier: MIT
// Playlist files of a folder out of which tracks are deleted, and that get their lines back.
#include "FolderFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <chrono>
#include <map>
#include <random>

namespace songsweep {
namespace {

namespace fs = std::filesystem;
using test::RunResult;
using ::testing::HasSubstr;

/// Playlists of every format that name the track that goes, and others. The names have umlauts in one form,
/// both separators, and different line ends.
class FolderPlaylists : public test::FolderFixture {
  protected:
    FolderPlaylists() {
        put("lists/one.m3u",
            "#EXTM3U\r\n#EXTINF:1,Artist - Song\r\n..\\a\\Song.mp3\r\n\r\n# caf\xE9\r\n"
            "../Other.flac\r\n" +
                music("a/Song.mp3"),
            "#EXTM3U\r\n\r\n# caf\xE9\r\n../Other.flac\r\n");
        put("two.m3u8",
            "\xEF\xBB\xBF"
            "a/Song.mp3\nb/Song.m4a\n",
            "\xEF\xBB\xBF"
            "b/Song.m4a\n");
        put("three.pls",
            "[playlist]\nFile1=Other.flac\nFile2=a/Song.mp3\nTitle2=Song\nLength2=1\n"
            "File3=b/Song.m4a\nNumberOfEntries=3\nVersion=2\n",
            "[playlist]\nFile1=Other.flac\nFile3=b/Song.m4a\nNumberOfEntries=3\nVersion=2\n");
        put("four.xspf",
            "<?xml version=\"1.0\"?>\n<playlist>\n <trackList>\n  <track>\n   <location>a/Song.mp3"
            "</location>\n  </track>\n  <track><location>Other.flac</location></track>\n"
            " </trackList>\n</playlist>\n",
            "<?xml version=\"1.0\"?>\n<playlist>\n <trackList>\n  <track><location>Other.flac</location>"
            "</track>\n </trackList>\n</playlist>\n");
        put("other.m3u", "Other.flac\nb/Song.m4a\n", "Other.flac\nb/Song.m4a\n");
    }

    using Files = std::map<std::string, std::string>;

    void put(const std::string& name, const std::string& bytes, const std::string& without) {
        m_folder.write("Music/" + name, bytes);
        m_whole[name] = bytes;
        m_without[name] = without;
    }
    Files lists() const {
        Files files;
        for (const auto& [name, bytes] : m_whole)
            files[name] = m_folder.read("Music/" + name);
        return files;
    }
    RunResult restore() { return run({"restore", "--library", music(), "--yes"}); }

    Files m_whole;
    Files m_without;
};

TEST_F(FolderPlaylists, LoseTheLinesOfDeletedTracksAlone) {
    const RunResult result = deleteTracks({"--yes", "--files"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(lists(), m_without);
}

TEST_F(FolderPlaylists, ComeBackByteForByte) {
    ASSERT_EQ(deleteTracks({"--yes", "--files"}).exitCode, 0);
    ASSERT_EQ(run({"scan", music()}).exitCode, 0);
    const RunResult result = restore();
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(lists(), m_whole);
    EXPECT_EQ(run({"find", "--library", music(), "--playlist", "four", "--same", "none"}).exitCode, 0);
    EXPECT_THAT(run({"find", "--library", music(), "--playlist", "four", "--same", "none"}).output,
                HasSubstr("2 songs in 1 group"));
}

TEST_F(FolderPlaylists, AreCountedBeforeAndAfterTheyComeBack) {
    ASSERT_EQ(deleteTracks({"--yes", "--files"}).exitCode, 0);
    std::size_t changed = 0;
    for (const auto& [name, bytes] : m_whole)
        if (m_without[name] != bytes) ++changed;
    const std::string count = ", " + std::to_string(changed) + " playlist files as they were\n";
    EXPECT_THAT(run({"restore", "--library", music(), "--dry-run"}).output, HasSubstr(count));
    EXPECT_THAT(run({"restore", "--library", music(), "--dry-run", "--format", "json"}).output,
                HasSubstr("\"playlistfiles\": " + std::to_string(changed) + ","));
    EXPECT_THAT(restore().output, HasSubstr(count));
}

TEST_F(FolderPlaylists, StayAsTheyAreWhereNothingIsDeleted) {
    ASSERT_EQ(deleteTracks({"--dry-run", "--files"}).exitCode, 0);
    EXPECT_EQ(lists(), m_whole);
}

TEST_F(FolderPlaylists, KeepTheLineOfAFileThatStays) {
    fs::create_directory(music("c"));
    fs::create_hard_link(music("a/Song.mp3"), music("c/Second name.mp3"));
    const RunResult result = run({"delete", "--library", music(), "--same", "name,artist", "--rule", "folder",
                                  "--folder", music("a"), "--files", "--yes"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_THAT(result.output, HasSubstr("Deleted 1 of 1 tracks\n"));
    EXPECT_TRUE(fs::exists(music("a/Song.mp3")));
    EXPECT_EQ(lists(), m_whole);
}

TEST_F(FolderPlaylists, KeepWhatAnotherProgramWroteMeanwhile) {
    ASSERT_EQ(deleteTracks({"--yes", "--files"}).exitCode, 0);
    m_folder.write("Music/two.m3u8", "\xEF\xBB\xBF"
                                     "new.mp3\nb/Song.m4a\n");
    m_folder.write("Music/three.pls", "[playlist]\nFile1=Other.flac\nFile2=b/Song.m4a\nNumberOfEntries=2\n");
    fs::remove(music("four.xspf"));
    const RunResult result = restore();
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(m_folder.read("Music/lists/one.m3u"), m_whole["lists/one.m3u"]);
    EXPECT_EQ(m_folder.read("Music/two.m3u8"), "\xEF\xBB\xBF"
                                               "a/Song.mp3\nnew.mp3\nb/Song.m4a\n");
    EXPECT_EQ(m_folder.read("Music/three.pls"),
              "[playlist]\nFile1=Other.flac\nFile2=b/Song.m4a\nNumberOfEntries=2\n");
    EXPECT_FALSE(fs::exists(music("four.xspf")));
    EXPECT_THAT(result.output,
                HasSubstr("Note: The playlist " + music("three.pls") +
                          " was changed meanwhile; not all its lines find their places again\n"));
    EXPECT_THAT(result.output,
                HasSubstr("Note: The lines of the playlist " + music("four.xspf") + " do not come back: "));
}

TEST_F(FolderPlaylists, TellWhatCouldNotBeChanged) {
    ASSERT_EQ(run({"scan", music()}).exitCode, 0);
    m_folder.write("Music/large.m3u", "a/Song.mp3\n");
    fs::resize_file(music("large.m3u"), (std::uintmax_t{64} << 20) + 1);
    const RunResult result = deleteTracks({"--yes", "--files", "--format", "json"});
    const nlohmann::json report = nlohmann::json::parse(result.output);
    ASSERT_EQ(report.at("notes").size(), 1U);
    EXPECT_EQ(report.at("notes")[0], "The playlist " + music("large.m3u") + " was not changed: " +
                                         music("large.m3u") + " is too large for a playlist");
    EXPECT_EQ(m_folder.read("Music/two.m3u8"), m_without["two.m3u8"]);
}

TEST_F(FolderPlaylists, KeepTheirRights) {
    fs::permissions(music("two.m3u8"), fs::perms(0640));
    ASSERT_EQ(deleteTracks({"--yes", "--files"}).exitCode, 0);
    EXPECT_EQ(fs::status(music("two.m3u8")).permissions(), fs::perms(0640));
    std::size_t names = 0;
    for (const auto& entry : fs::directory_iterator(music())) {
        EXPECT_EQ(entry.path().filename().string().find('.'), entry.path().filename().string().rfind('.'));
        ++names;
    }
    EXPECT_EQ(names, 8U) << "something was left behind";
}

/// Whatever a kill left, a restore makes all of it as it was, and a finish all of it as it was to be.
class KilledFolderDeletion : public FolderPlaylists, public ::testing::WithParamInterface<unsigned> {};

TEST_P(KilledFolderDeletion, IsRestoredOrFinishedWithItsPlaylists) {
    constexpr int kills = 12;
    const std::vector<std::string> command = {"delete", "--library",       music(),   "--same", "name,artist",
                                              "--rule", "highest-bitrate", "--files", "--yes"};
    const auto begin = std::chrono::steady_clock::now();
    ASSERT_EQ(run(command).exitCode, 0);
    const auto whole =
        std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - begin);
    ASSERT_EQ(restore().exitCode, 0);
    ASSERT_EQ(lists(), m_whole);
    std::mt19937 random(GetParam());
    for (int i = 0; i < kills; ++i) {
        runAndKill(command, whole / 2 + whole * static_cast<int>(random() % 500) / 1000);
        const bool wasBegun =
            run({"restore", "--library", music(), "--list"}).output.find("Interrupted") != std::string::npos;
        if (wasBegun && i % 3 == 0) {
            run({"finish", "--library", music(), "--yes"});
            EXPECT_EQ(lists(), fs::exists(music("a/Song.mp3")) ? m_whole : m_without);
        }
        restore();
        ASSERT_EQ(lists(), m_whole);
        ASSERT_TRUE(fs::exists(music("a/Song.mp3")));
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, KilledFolderDeletion, ::testing::Range(1U, 4U));

} // namespace
} // namespace songsweep
