// SPDX-License-Identifier: MIT
#pragma once

#include "ProgramRun.h"
#include "sample-library/SoundSample.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace songsweep::test {

/// A folder with one song twice, in two formats and bit rates, and another song.
class FolderFixture : public ProgramTest {
  protected:
    using SoundKind = sample::SoundKind;
    using SoundSample = sample::SoundSample;

    FolderFixture() {
        write("a/Song.mp3", {.kilobits = 128, .tags = song("Song")});
        write("b/Song.m4a", {.kind = SoundKind::aac, .kilobits = 256, .tags = song("Song")});
        write("Other.flac", {.kind = SoundKind::flac, .tags = song("Other")});
    }

    static std::map<std::string, std::string> song(const std::string& title) {
        return {{"TITLE", title}, {"ARTIST", "Artist"}};
    }
    void write(const std::string& name, const SoundSample& sample) {
        std::filesystem::create_directories(std::filesystem::path(music(name)).parent_path());
        ASSERT_TRUE(sample::writeSound(music(name), sample));
    }
    std::string music(const std::string& name = {}) const { return path("Music/" + name); }
    std::string library() const {
        for (const auto& entry : std::filesystem::directory_iterator(path("home/data/songsweep")))
            if (entry.path().extension() == ".xml" &&
                entry.path().string().find("before") == std::string::npos)
                return entry.path();
        return {};
    }
    RunResult find() {
        return run({"find", "--library", music(), "--same", "name,artist", "--format", "json"});
    }
    RunResult deleteTracks(std::vector<std::string> options) {
        options.insert(options.begin(), {"delete", "--library", music(), "--same", "name,artist", "--rule",
                                         "highest-bitrate"});
        return run(options);
    }
};

} // namespace songsweep::test
