// SPDX-License-Identifier: MIT
#include "ProgramRun.h"
#include "SampleLibrary.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <thread>

namespace songsweep {
namespace {

namespace fs = std::filesystem;
using std::chrono::milliseconds;
using test::RunResult;
using ::testing::HasSubstr;

constexpr int songs = 100;

/// Two copies of each song, and two deletions of which each keeps what the other deletes.
class TwoRuns : public test::ProgramTest {
  protected:
    void SetUp() override { makeAnew(); }

    void makeAnew() {
        for (const auto& entry : fs::directory_iterator(m_folder.path()))
            fs::remove_all(entry.path());
        fs::create_directories(path("home/data"));
        std::vector<test::SampleTrack> tracks;
        for (int id = 1; id <= 2 * songs; ++id) {
            tracks.push_back({.id = id,
                              .name = "Song " + std::to_string((id + 1) / 2),
                              .artist = "X",
                              .milliseconds = 1000,
                              .bitRate = id % 2 == 0 ? 320 : 128,
                              .path = fileOf(id)});
            m_folder.write(fs::relative(fileOf(id), m_folder.path()).string(), "music");
        }
        m_folder.write("Library.xml", test::libraryText(tracks));
    }
    std::string fileOf(int id) const { return path("music/" + std::to_string(id) + ".mp3"); }

    std::vector<std::string> command(const std::string& rule) const {
        return {"delete", "--library", path("Library.xml"), "--rule", rule, "--files", "--yes"};
    }

    /// Each song has a track whose file is there.
    void expectACopyOfEachSong() {
        const std::string library = m_folder.read("Library.xml");
        int left = 0;
        for (int id = 1; id <= 2 * songs; id += 2) {
            const auto works = [&](int copy) {
                const bool isListed =
                    library.find("<key>" + std::to_string(copy) + "</key>\n") != std::string::npos;
                return isListed && m_folder.read("music/" + std::to_string(copy) + ".mp3") == "music";
            };
            left += works(id) || works(id + 1) ? 1 : 0;
        }
        EXPECT_EQ(left, songs);
    }
};

TEST_F(TwoRuns, OfOppositeRulesLeaveACopyOfEachSongOneAfterTheOther) {
    const RunResult first = run(command("highest-bitrate"));
    EXPECT_EQ(first.exitCode, 0) << first.errors;
    EXPECT_FALSE(fs::exists(fileOf(1)));
    const RunResult second = run(command("lowest-bitrate"));
    EXPECT_EQ(second.exitCode, 0) << second.errors;
    EXPECT_THAT(second.output, HasSubstr("Deleted 0 of 0 tracks"));
    expectACopyOfEachSong();
}

TEST_F(TwoRuns, OfOppositeRulesLeaveACopyOfEachSongAtOnce) {
    int deleted = 0;
    for (const milliseconds delay : {milliseconds(0), milliseconds(15), milliseconds(30), milliseconds(60),
                                     milliseconds(90), milliseconds(130), milliseconds(200)}) {
        SCOPED_TRACE(std::to_string(delay.count()) + " ms apart");
        makeAnew();
        QProcess first;
        QProcess second;
        prepare(first, command("highest-bitrate"));
        prepare(second, command("lowest-bitrate"));
        first.start();
        std::this_thread::sleep_for(delay);
        second.start();
        const RunResult one = test::resultOf(first);
        const RunResult two = test::resultOf(second);
        EXPECT_TRUE(one.exitCode == 0 || one.exitCode == 1) << one.errors;
        EXPECT_TRUE(two.exitCode == 0 || two.exitCode == 1) << two.errors;
        deleted += (one.exitCode == 0 || two.exitCode == 0) ? 1 : 0;
        expectACopyOfEachSong();
    }
    EXPECT_GT(deleted, 0) << "one of them does its work";
}

TEST_F(TwoRuns, OfADeletionAndARestoreAtOnceLoseNothing) {
    int refusals = 0;
    for (const milliseconds delay : {milliseconds(0), milliseconds(10), milliseconds(20), milliseconds(40),
                                     milliseconds(60), milliseconds(90), milliseconds(130)}) {
        SCOPED_TRACE(std::to_string(delay.count()) + " ms apart");
        makeAnew();
        const std::string whole = m_folder.read("Library.xml");
        ASSERT_EQ(run(command("highest-bitrate")).exitCode, 0);
        m_folder.write("Library.xml", whole); // so that there is something to delete again
        for (int id = 1; id <= 2 * songs; id += 2)
            fs::copy_file(fileOf(id + 1), fileOf(id));
        QProcess deletion;
        QProcess restore;
        prepare(deletion, command("lowest-bitrate"));
        prepare(restore, {"restore", "--library", path("Library.xml"), "--yes"});
        deletion.start();
        std::this_thread::sleep_for(delay);
        restore.start();
        const RunResult one = test::resultOf(deletion);
        const RunResult two = test::resultOf(restore);
        for (const RunResult& result : {one, two}) {
            EXPECT_TRUE(result.exitCode == 0 || result.exitCode == 1) << result.errors;
            refusals += result.errors.find("another Songsweep (") != std::string::npos ? 1 : 0;
        }
        // Each file of the library lies in its place or in the Trash.
        std::size_t files = 0;
        for (const std::string& folder : {path("music"), path("home/data/Trash/files")})
            files += static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), {}));
        EXPECT_EQ(files, static_cast<std::size_t>(3 * songs));
        EXPECT_EQ(run({"find", "--library", path("Library.xml")}).exitCode, 0) << "it can be read";
    }
    EXPECT_GT(refusals, 0) << "they met, and one was told who holds the library";
}

} // namespace
} // namespace songsweep
