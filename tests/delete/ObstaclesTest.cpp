// SPDX-License-Identifier: MIT
#include "delete/Obstacles.h"

#include "delete/DeletePlan.h"
#include "delete/DeleteProcFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

namespace songsweep {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ObstaclesTest : public test::DeleteProcFixture {};

TEST_F(ObstaclesTest, ATrackWhoseIdAnUnmarkedRowHasTooStaysWithItsFile) {
    addFile("00A1B2C3D4E5F607", true, "a.mp3");
    addFile("00a1b2c3d4e5f607", false, "b.mp3").name = "Other";
    addFile("C", true, "c.mp3");
    run(withFiles);
    EXPECT_THAT(journal(),
                ElementsAre("mute", "event deleteAddCount", "track C", fileEntry("c.mp3"),
                            "event deleteAddCount", "unmute", "event deleteValidity", "event deleteFinish"));
    EXPECT_THAT(pidsLeft(), ElementsAre("00a1b2c3d4e5f607"));
    EXPECT_THAT(outcomes(),
                ElementsAre("00A1B2C3D4E5F607: failed, file kept: “Other” by Artist, which is not "
                            "marked, has its persistent ID, too",
                            "C: deleted, file trashed"));
    EXPECT_TRUE(exists("a.mp3"));
    EXPECT_FALSE(m_report.allDealtWith());
}

TEST_F(ObstaclesTest, ATrackWhoseIdATrackOutsideOfTheResultsHasTooStays) {
    add(1, "A", true);
    add(1, "B", true);
    m_tracksOfId = [](std::string_view pid) {
        return pid == "A" ? std::vector<std::string>{"“One” by X", "“Two” by Y"} : std::vector<std::string>();
    };
    run(withoutFiles);
    EXPECT_THAT(journal("track"), ElementsAre("track B"));
    EXPECT_THAT(outcomes(),
                ElementsAre("A: failed: 2 tracks of the library have its persistent ID (“One” by X, "
                            "“Two” by Y), of which 1 is marked",
                            "B: deleted"));
}

TEST_F(ObstaclesTest, AReasonNamesAFewOfThousandsOfTracksAndAsksForThemOnce) {
    constexpr int marked = 3;
    for (int track = 0; track < marked; ++track)
        add(1, "A", true);
    int questions = 0;
    m_tracksOfId = [&](std::string_view) {
        ++questions;
        std::vector<std::string> tracks;
        for (int track = 0; track < 5000; ++track)
            tracks.push_back("“" + std::to_string(track) + "”");
        return tracks;
    };
    run(withoutFiles);
    EXPECT_EQ(questions, 1);
    EXPECT_EQ(outcomes(),
              std::vector<std::string>(
                  marked, "A: failed: 5000 tracks of the library have its persistent ID (“0”, “1”, "
                          "“2” and 4997 more), of which 3 are marked"));
}

TEST_F(ObstaclesTest, TracksOfOneIdGoWhereAllOfThemAreMarked) {
    add(1, "A", true);
    add(1, "A", true);
    m_tracksOfId = [](std::string_view) { return std::vector<std::string>{"“One” by X", "“Two” by Y"}; };
    run(withoutFiles);
    EXPECT_THAT(journal("track"), ElementsAre("track A", "track A"));
    EXPECT_TRUE(m_report.allDealtWith());
}

TEST_F(ObstaclesTest, TheLastCopyStaysWhereTheOneThatWasToStayHasGoneMeanwhile) {
    addFile("A", true, "a.mp3");
    addFile("B", false, "b.mp3");
    add(2, "C", true, m_folder.write("c.mp3", "c"));
    add(2, "D", false, m_folder.write("d.mp3", "d"));
    const DeletePlan plan = test::makeDeletePlan(m_list.rows, m_files, {});
    setHook([&](const std::string& entry) {
        if (entry == "event deleteAddCount") std::filesystem::remove(path("d.mp3")); // after the first track
    });
    run(withFiles, plan);
    EXPECT_THAT(journal("track"), ElementsAre("track A"));
    EXPECT_TRUE(exists("c.mp3"));
    EXPECT_THAT(outcomes(),
                ElementsAre("A: deleted, file trashed",
                            "C: failed, file kept: the copy that was to stay is no longer there, or "
                            "does not work"));
    EXPECT_THAT(pidsLeft(), ElementsAre("B", "D"));
}

TEST_F(ObstaclesTest, CopiesThatWereGivenUpGo) {
    addFile("A", true, "a.mp3");
    add(1, "B", false, path("gone.mp3"));
    run(withFiles);
    EXPECT_THAT(outcomes(), ElementsAre("A: deleted, file trashed"));
}

TEST_F(ObstaclesTest, WithoutFilesNobodyLooksAtTheCopiesThatStay) {
    addFile("A", true, "a.mp3");
    addFile("B", false, "b.mp3");
    std::filesystem::remove(path("b.mp3"));
    run(withoutFiles, {});
    EXPECT_THAT(outcomes(), ElementsAre("A: deleted"));
}

TEST_F(ObstaclesTest, ATrackWithoutAnIdStaysAndSoDoesItsFile) {
    addFile("0", true, "a.mp3");
    add(1, "", true);
    run(withFiles);
    EXPECT_THAT(journal("track"), ElementsAre("track 0", "track "));
    EXPECT_THAT(journal("event deleteAddCount"), testing::SizeIs(2));
    EXPECT_TRUE(exists("a.mp3"));
    EXPECT_THAT(outcomes(), ElementsAre("0: failed, file kept: it has no persistent ID",
                                        ": failed, file missing: it has no persistent ID"));
    EXPECT_FALSE(m_report.allDealtWith());
    EXPECT_THAT(pidsLeft(), IsEmpty());
}

} // namespace
} // namespace songsweep
