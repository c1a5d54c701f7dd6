// SPDX-License-Identifier: MIT
#include "FolderFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>

namespace songsweep {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using test::RunResult;

using ::testing::HasSubstr;

using ::testing::StartsWith;

class Folder : public test::FolderFixture {};

TEST_F(Folder, BecomesALibrary) {
    const RunResult first = run({"scan", music()});
    EXPECT_EQ(first.exitCode, 0) << first.errors;
    EXPECT_EQ(first.output, "3 tracks: 3 new\n" + library() + "\n");
    write("New.wav", {.kind = SoundKind::wav});
    fs::remove(music("Other.flac"));
    EXPECT_THAT(run({"scan", music()}).output, StartsWith("3 tracks: 1 new, 1 gone\n"));
    EXPECT_THAT(run({"scan", music()}).output, StartsWith("3 tracks\n"));
}

TEST_F(Folder, IsWrittenToAFileOfTheUser) {
    EXPECT_EQ(run({"scan", music(), "--output", path("mine.xml")}).exitCode, 0);
    EXPECT_EQ(m_folder.read("mine.xml"), m_folder.read(fs::relative(library(), m_folder.path()).string()));
    EXPECT_THAT(run({"find", "--library", path("mine.xml"), "--same", "name"}).output,
                HasSubstr("2 songs in 1 group"));
}

TEST_F(Folder, TellsWhatCouldNotBeReadAndWritesTheRest) {
    m_folder.write("Music/broken.mp3", "no sound");
    const RunResult result = run({"scan", music(), "--log", path("log")});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.output, StartsWith("3 tracks: 3 new\n"));
    EXPECT_EQ(result.errors, "songsweep: 1 file could not be read; --verbose tells which, and why\n");
    EXPECT_THAT(m_folder.read("log"), HasSubstr("broken.mp3: no sound was found in"));
    EXPECT_THAT(run({"find", "--library", music()}).errors, HasSubstr("1 file could not be read"));
}

TEST_F(Folder, SaysWhatIsWrong) {
    EXPECT_EQ(run({"scan"}).exitCode, 2);
    EXPECT_EQ(run({"scan", path("none")}).exitCode, 1);
    EXPECT_EQ(run({"scan", music(), "--library", "x"}).exitCode, 2);
    ASSERT_EQ(run({"scan", music()}).exitCode, 0);
    const std::string before = m_folder.read(fs::relative(library(), m_folder.path()).string());
    EXPECT_EQ(run({"scan", music(), "--output", library()}).exitCode, 2);
    EXPECT_EQ(run({"--library", "x", "scan", music()}).exitCode, 2);
    EXPECT_EQ(m_folder.read(fs::relative(library(), m_folder.path()).string()), before);
}

TEST_F(Folder, TellsInJsonWhatCouldNotBeRead) {
    m_folder.write("Music/broken.mp3", "no sound");
    const json found = json::parse(find().output);
    EXPECT_EQ(found.at("notes"), json({"1 file could not be read"}));
    ASSERT_EQ(found.at("unread").size(), 1U);
    EXPECT_THAT(std::string(found.at("unread")[0]), HasSubstr("/Music/broken.mp3: no sound was found in"));
}

TEST_F(Folder, StandsForTheITunesLibraryThatItHolds) {
    ASSERT_EQ(run({"scan", music(), "--output", path("mine.xml")}).exitCode, 0);
    fs::create_directories(music("iTunes"));
    fs::rename(path("mine.xml"), music("iTunes/iTunes Library.xml"));
    write("c/Other.ogg", {.kind = SoundKind::vorbis, .tags = song("Other")});
    EXPECT_EQ(json::parse(find().output).at("groups").size(), 1U) << "the folder itself has two";
    EXPECT_EQ(deleteTracks({"--yes"}).exitCode, 0) << "files may stay";
    EXPECT_TRUE(fs::exists(music("a/Song.mp3")));
    EXPECT_EQ(run({"restore", "--library", music(), "--yes"}).exitCode, 0);
    EXPECT_EQ(json::parse(find().output).at("groups").size(), 1U);
}

TEST_F(Folder, IsSearchedAsItIsNow) {
    EXPECT_EQ(json::parse(find().output).at("groups").size(), 1U);
    write("c/Other.ogg", {.kind = SoundKind::vorbis, .tags = song("Other")});
    EXPECT_EQ(json::parse(find().output).at("groups").size(), 2U);
    fs::remove_all(music("c"));
    EXPECT_EQ(json::parse(find().output).at("groups").size(), 1U);
}

TEST_F(Folder, LosesFilesOnlyWhereTheUserSaysSo) {
    const RunResult refused = deleteTracks({"--yes"});
    EXPECT_EQ(refused.exitCode, 2);
    EXPECT_THAT(refused.errors, HasSubstr("delete needs --files here: a track of a folder is its file"));
    EXPECT_TRUE(fs::exists(music("a/Song.mp3")));
    const RunResult result = deleteTracks({"--yes", "--files"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_FALSE(fs::exists(music("a/Song.mp3")));
    EXPECT_TRUE(fs::exists(music("b/Song.m4a")));
    EXPECT_TRUE(fs::exists(path("home/data/Trash/files/Song.mp3")));
    EXPECT_TRUE(json::parse(find().output).at("groups").empty());
}

TEST_F(Folder, IsRestoredAsItWas) {
    ASSERT_EQ(run({"scan", music()}).exitCode, 0);
    const std::string before = m_folder.read(fs::relative(library(), m_folder.path()).string());
    ASSERT_EQ(deleteTracks({"--yes", "--files"}).exitCode, 0);
    const RunResult result = run({"restore", "--library", music(), "--yes"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_TRUE(fs::exists(music("a/Song.mp3")));
    EXPECT_EQ(m_folder.read(fs::relative(library(), m_folder.path()).string()), before);
    EXPECT_EQ(json::parse(find().output).at("groups").size(), 1U);
}

TEST_F(Folder, LosesAndRegainsFilesOfEveryFormat) {
    std::map<std::string, std::string> bytes;
    for (int kind = 0; kind < sample::soundKinds; ++kind) {
        const auto sound = static_cast<SoundKind>(kind);
        const std::string title = "Format " + std::to_string(kind);
        const std::string name = "goes/" + title + "." + std::string(sample::endingOf(sound));
        write(name, {.kind = sound, .tags = song(title), .pictures = 1});
        write("stays/" + title + ".mp3", {.tags = song(title)});
        bytes[name] = m_folder.read("Music/" + name);
    }
    const RunResult result = run({"delete", "--library", music(), "--same", "name,artist", "--rule", "folder",
                                  "--folder", music("goes"), "--files", "--yes"});
    EXPECT_EQ(result.exitCode, 0) << result.output << result.errors;
    for (const auto& [name, contents] : bytes)
        EXPECT_FALSE(fs::exists(music(name))) << name;
    EXPECT_EQ(run({"restore", "--library", music(), "--yes"}).exitCode, 0);
    for (const auto& [name, contents] : bytes)
        EXPECT_EQ(m_folder.read("Music/" + name), contents) << name;
    EXPECT_EQ(json::parse(find().output).at("groups").size(), 1U + bytes.size());
}

TEST_F(Folder, KeepsItsIdsOverADeletionAScanAndARestore) {
    const auto ids = [&] {
        std::vector<std::string> all;
        const json found =
            json::parse(run({"find", "--library", music(), "--same", "none", "--format", "json"}).output);
        for (const json& track : found.at("groups").at(0).at("tracks"))
            all.push_back(track.at("pid"));
        std::sort(all.begin(), all.end());
        return all;
    };
    const std::vector<std::string> before = ids();
    ASSERT_EQ(deleteTracks({"--yes", "--files"}).exitCode, 0);
    ASSERT_EQ(run({"scan", music()}).exitCode, 0);
    ASSERT_EQ(run({"restore", "--library", music(), "--yes"}).exitCode, 0);
    EXPECT_EQ(ids(), before);
}

TEST_F(Folder, AnswersScripts) {
    EXPECT_EQ(run({"script", "--library", music(), "-"},
                  "tell application \"iTunes\" to get name of every track of playlist 1")
                  .output,
              "{\"Other\", \"Song\", \"Song\"}\n");
}

} // namespace
} // namespace songsweep
