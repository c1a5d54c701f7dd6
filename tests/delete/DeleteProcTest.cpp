// SPDX-License-Identifier: MIT
#include "delete/DeleteProc.h"

#include "delete/DeleteProcFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace songsweep {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DeleteProcTest : public test::DeleteProcFixture {};

TEST_F(DeleteProcTest, AnEmptyListRunsNoScriptAndPostsOnlyTheEnd) {
    run(withFiles);
    EXPECT_THAT(wholeJournal(), ElementsAre("event deleteFinish"));
}

TEST_F(DeleteProcTest, WithNothingMarkedTheSoundGoesOffAndOnAndTheRowsAreVisited) {
    add(1, "A", false);
    add(1, "B", false);
    run(withFiles);
    EXPECT_THAT(wholeJournal(), ElementsAre("mute", "unmute", "event deleteValidity", "event deleteFinish"));
    EXPECT_THAT(pidsLeft(), ElementsAre("A", "B"));
}

TEST_F(DeleteProcTest, EachMarkedTrackIsDeletedAndCounted) {
    add(1, "A", true);
    add(1, "B", false);
    add(2, "C", true);
    run(withoutFiles);
    EXPECT_THAT(journal(),
                ElementsAre("mute", "track A", "event deleteAddCount", "track C", "event deleteAddCount",
                            "unmute", "event deleteValidity", "event deleteFinish"));
    EXPECT_THAT(pidsLeft(), ElementsAre("B"));
    EXPECT_THAT(outcomes(), ElementsAre("A: deleted", "C: deleted"));
}

TEST_F(DeleteProcTest, TheReportIsFullBeforeTheFinalEventIsHandled) {
    add(1, "A", true);
    add(1, "B", true);
    add(2, "C", true);
    std::vector<std::string> told;
    setHook([&](const std::string& entry) {
        if (entry == "track A") cancel();
        if (entry == "event deleteCancel") told = outcomes();
    });
    run(withoutFiles);
    EXPECT_THAT(told, ElementsAre("A: deleted", "B: not attempted", "C: not attempted"));
}

TEST_F(DeleteProcTest, OutcomesAreLoggedAfterTheFinalEvent) {
    addFile("A", true, "a.mp3");
    run(withFiles);
    const auto& entries = wholeJournal();
    EXPECT_EQ(entries.at(entries.size() - 2), "event deleteFinish");
    EXPECT_EQ(entries.back(), "log Track Song by Artist (A) deleted, file trashed, " + path("a.mp3"));
}

TEST_F(DeleteProcTest, AFailedScriptStillTakesTheRowAwayAndCounts) {
    addFile("A", true, "a.mp3");
    failAt("track A", "iTunes got an error");
    run(withFiles);
    EXPECT_THAT(journal("event"),
                ElementsAre("event deleteAddCount", "event deleteValidity", "event deleteFinish"));
    EXPECT_THAT(journal("file"), IsEmpty());
    EXPECT_THAT(pidsLeft(), IsEmpty());
    EXPECT_THAT(outcomes(), ElementsAre("A: failed, file kept: iTunes got an error"));
    EXPECT_FALSE(m_report.allDealtWith());
}

TEST_F(DeleteProcTest, AnIdThatCouldEndItsLiteralIsEscaped) {
    add(1, "A\" or \"1\" is \"1", true);
    run(withoutFiles);
    EXPECT_THAT(journal("track"), ElementsAre("track A\\\" or \\\"1\\\" is \\\"1"));
    EXPECT_TRUE(m_report.allDealtWith());
}

} // namespace
} // namespace songsweep
