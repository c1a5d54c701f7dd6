// SPDX-License-Identifier: MIT
#include "../sound/Pieces.h"
#include "ProgramRun.h"
#include "SampleLibrary.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <filesystem>

namespace songsweep {
namespace {

using nlohmann::json;
using test::RunResult;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

/// One group by its tags: a recording as MP3 and, late, as FLAC, another performance, and a file that is no
/// sound.
class Sound : public test::ProgramTest {
  protected:
    Sound() {
        encode("studio", 1, {"-64.mp3", "-late.flac"});
        encode("live", 1.03, {".m4a"});
        m_folder.write("broken.mp3", "no sound");
        int id = 0;
        std::vector<test::SampleTrack> tracks;
        for (const char* file : {"studio-64.mp3", "live.m4a", "broken.mp3", "studio-late.flac"})
            tracks.push_back({.id = ++id,
                              .name = "Song",
                              .artist = "X",
                              .milliseconds = 30'000,
                              .bitRate = 100 * id,
                              .path = path(file)});
        m_library = m_folder.write("Library.xml", test::libraryText(tracks));
    }

    /// Leaves the forms that are named.
    void encode(const std::string& name, double tempo, const std::vector<std::string>& kept) {
        test::writeWave(path("a.wav"), test::play({.score = 11, .tempo = tempo}, 25));
        for (const std::string& form : test::encodeForms(path("a.wav"), m_folder.path(), name)) {
            const bool isKept = std::any_of(kept.begin(), kept.end(), [&](const std::string& suffix) {
                return form == path(name + suffix);
            });
            if (!isKept) std::filesystem::remove(form);
        }
    }
    RunResult command(const std::string& name, std::vector<std::string> options) {
        options.insert(options.begin(), {name, "--library", m_library, "--sound"});
        return run(options);
    }
    /// The group's track IDs with their sets, "1:1", and where they have one their reason.
    static std::vector<std::string> soundsOf(const RunResult& result) {
        std::vector<std::string> sounds;
        const json report = json::parse(result.output);
        for (const json& track : report.at("groups").at(0).at("tracks"))
            sounds.push_back(track.at("trackid").get<std::string>() + ":" +
                             std::to_string(track.at("sound").get<int>()) +
                             (track.at("checkbox") ? " x " : " ") + track.value("reason", ""));
        return sounds;
    }

    std::string m_library;
};

TEST_F(Sound, TellsTheSetOfEachCopyInJson) {
    const RunResult result = command("find", {"--format", "json"});
    EXPECT_THAT(soundsOf(result), ElementsAre("1:1 ", "4:1 ", "2:2 ", "3:0 ")) << result.errors;
}

TEST_F(Sound, TellsItInTheTableAndInCsv) {
    const RunResult table = command("find", {});
    for (const char* word : {"Sound", "same", "not readable"})
        EXPECT_THAT(table.output, HasSubstr(word));
    EXPECT_THAT(command("find", {"--format", "csv"}).output, HasSubstr("trackid,sound\r\n"));
}

TEST_F(Sound, ARuleKeepsTheBestOfEachRecording) {
    const RunResult result =
        command("mark", {"--rule", "highest-bitrate", "--except-one", "--format", "json"});
    EXPECT_THAT(
        soundsOf(result),
        ElementsAre("1:1 x lower bit rate than the kept copy: 100 against 400",
                    "4:1 kept: another recording than the copy below",
                    ::testing::ContainsRegex("2:2 kept: (perhaps )?another recording than the copy below"),
                    "3:0 kept: its sound could not be compared"));
}

TEST_F(Sound, DeletesNothingThatIsNoCopyOfWhatStays) {
    const RunResult result = command("delete", {"--rule", "kind", "--kind", "mp3", "--allow-all-copies",
                                                "--files", "--yes", "--format", "json"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    const json tracks = json::parse(result.output).at("outcomes");
    ASSERT_EQ(tracks.size(), 1U) << result.output;
    EXPECT_EQ(tracks[0].at("location"), path("studio-64.mp3"));
    EXPECT_TRUE(std::filesystem::exists(path("broken.mp3")));
    EXPECT_TRUE(std::filesystem::exists(path("live.m4a")));
    EXPECT_FALSE(std::filesystem::exists(path("studio-64.mp3")));
}

TEST_F(Sound, WithoutTheOptionNothingIsHeard) {
    const RunResult result = run({"find", "--library", m_library, "--format", "json"});
    EXPECT_FALSE(json::parse(result.output).at("groups").at(0).at("tracks").at(0).contains("sound"));
}

} // namespace
} // namespace songsweep
