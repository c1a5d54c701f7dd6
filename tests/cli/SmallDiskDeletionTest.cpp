// SPDX-License-Identifier: MIT
// A deletion on a disk of its own that is nearly full, or whose library cannot be replaced.
#include "ProgramRun.h"
#include "SampleLibrary.h"
#include "libraryfile/RecordedCleanup.h"
#include "libraryfile/SmallDisk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sys/statvfs.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace songsweep {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using test::RunResult;
using test::SampleTrack;

constexpr int songs = 1200;

std::string contentOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

/// Two copies of each of some thousand songs, with library, files and Trash on one small disk; the worse copy
/// is to go.
class SmallDiskDeletion : public test::ProgramTest {
  protected:
    void SetUp() override {
        if (!m_disk.isMounted()) GTEST_SKIP() << "mounting a disk is not permitted";
        fs::create_directory(m_disk.path() + "/music");
        std::vector<SampleTrack> tracks;
        for (int id = 1; id <= 2 * songs; ++id) {
            tracks.push_back({.id = id,
                              .name = "Song " + std::to_string(id / 2),
                              .artist = "X",
                              .milliseconds = 1000,
                              .bitRate = id % 2 == 0 ? 128 : 320,
                              .path = fileOf(id)});
            std::ofstream(fileOf(id)) << "sound " << id;
        }
        m_text = test::libraryText(tracks);
        std::ofstream(m_library, std::ios::binary) << m_text;
    }

    std::string fileOf(int id) const { return m_disk.path() + "/music/" + std::to_string(id) + ".mp3"; }
    RunResult deleteCopies(const std::vector<std::string>& options = {"--files", "--yes"}) {
        std::vector<std::string> command = {"delete",          "--library",    m_library,  "--rule",
                                            "highest-bitrate", "--except-one", "--format", "json"};
        command.insert(command.end(), options.begin(), options.end());
        return run(command);
    }

    /// Leaves as little room as a dry run promises that all can be done with.
    void leaveWhatADryRunAsksFor(std::vector<std::string> options) {
        options.emplace_back("--dry-run");
        constexpr std::size_t step = 16; // kilobytes
        std::size_t tooLittle = 0;
        std::size_t enough = 20 << 10;
        while (enough - tooLittle > step) {
            const std::size_t middle = (enough + tooLittle) / 2;
            m_disk.leaveFree(middle << 10);
            (deleteCopies(options).exitCode == 0 ? enough : tooLittle) = middle;
        }
        EXPECT_GT(tooLittle, 0U);
        m_disk.leaveFree(enough << 10);
    }

    /// Takes file after file from the disk, until it has no more than so many.
    void leaveFiles(std::size_t count) const {
        fs::create_directory(m_disk.path() + "/fillers");
        struct statvfs status {};
        for (int n = 0; ::statvfs(m_disk.path().c_str(), &status) == 0 && status.f_ffree > count; ++n)
            std::ofstream(m_disk.path() + "/fillers/" + std::to_string(n)).flush();
    }

    /// What the report says of each track is what the disk says; nothing is lost. The number of files that
    /// went.
    int expectTruth(const json& report) {
        const std::string library = contentOf(m_library);
        int trashed = 0;
        for (const json& outcome : report.at("outcomes")) {
            const std::string path = outcome.at("location");
            const std::string id = fs::path(path).stem().string();
            SCOPED_TRACE(outcome.dump());
            const bool isInLibrary = library.find("<key>" + id + "</key>") != std::string::npos;
            EXPECT_EQ(outcome.at("track") == "deleted", !isInLibrary);
            EXPECT_EQ(outcome.at("file") == "trashed", !fs::exists(path));
            const std::string place = outcome.value("trash", path);
            EXPECT_EQ(contentOf(place), "sound " + id);
            trashed += place == path ? 0 : 1;
            if (place == path) continue;
            const fs::path info = fs::path(place).parent_path().parent_path() / "info" /
                                  (fs::path(place).filename().string() + ".trashinfo");
            EXPECT_THAT(contentOf(info), testing::HasSubstr("music/" + id + ".mp3"));
        }
        return trashed;
    }

    test::SmallDisk m_disk{path("disk"), 48};
    std::string m_library = m_disk.path() + "/Library.xml";
    std::string m_text;
};

TEST_F(SmallDiskDeletion, DoesNotBeginWhereItsWritesHaveNoRoom) {
    for (const std::size_t kilobytes : {0, 2400, 3600}) {
        SCOPED_TRACE(kilobytes);
        m_disk.leaveFree(kilobytes << 10);
        const RunResult result = deleteCopies();
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_THAT(result.errors, testing::HasSubstr("No space left on device"));
        EXPECT_EQ(expectTruth(json::parse(result.output)), 0);
        EXPECT_EQ(contentOf(m_library), m_text);
    }
}

TEST_F(SmallDiskDeletion, HasTheRoomThatADryRunAskedFor) {
    leaveWhatADryRunAsksFor({});
    const RunResult result = deleteCopies({"--yes"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
}

TEST_F(SmallDiskDeletion, HasTheRoomForItsFilesThatADryRunAskedFor) {
    leaveWhatADryRunAsksFor({"--files"});
    const RunResult result = deleteCopies();
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(expectTruth(json::parse(result.output)), songs - 1); // the last copy is alone
}

TEST_F(SmallDiskDeletion, LosesNothingWhereTheTrashHasNoRoomForSomeOfThousandsOfFiles) {
    leaveFiles(songs / 4);
    const RunResult result = deleteCopies();
    EXPECT_EQ(result.exitCode, 1);
    const json report = json::parse(result.output);
    const int trashed = expectTruth(report);
    EXPECT_GT(trashed, 0);
    EXPECT_LT(trashed, songs / 4);
    const auto record = RecordedCleanup::read(report.at("record"));
    ASSERT_TRUE(record) << record.error().message;
    ASSERT_TRUE(record.value().end);
    EXPECT_EQ(record.value().end->files, static_cast<std::size_t>(trashed));
    for (const RecordedCleanup::Track& track : record.value().tracks)
        EXPECT_EQ(fs::exists(track.plan.path), !track.trash) << track.plan.path;
}

TEST_F(SmallDiskDeletion, OfALibraryThatCannotBeReplacedDoesNotBegin) {
    ASSERT_EQ(std::system(("chattr +i '" + m_library + "'").c_str()), 0);
    const RunResult result = deleteCopies();
    ASSERT_EQ(std::system(("chattr -i '" + m_library + "'").c_str()), 0);
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.errors, testing::HasSubstr(m_library));
    EXPECT_EQ(contentOf(m_library), m_text);
    for (int id = 1; id <= 2 * songs; ++id)
        ASSERT_TRUE(fs::exists(fileOf(id)));
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(m_disk.path()))
        names.push_back(entry.path().filename().string());
    EXPECT_THAT(names, testing::UnorderedElementsAre("lost+found", "music", "Library.xml"));
}

} // namespace
} // namespace songsweep
