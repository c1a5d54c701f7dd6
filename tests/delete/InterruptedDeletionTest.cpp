// SPDX-License-Identifier: MIT
#include "delete/DeleteProcFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace songsweep {
namespace {

using testing::ElementsAre;

class InterruptedDeletionTest : public test::DeleteProcFixture {};

TEST_F(InterruptedDeletionTest, ACancelInTheMiddleStopsBeforeTheNextRow) {
    add(1, "A", true);
    add(1, "B", true);
    add(1, "C", false);
    cancelAt("track A");
    run(withoutFiles);
    EXPECT_THAT(journal(),
                ElementsAre("mute", "track A", "event deleteAddCount", "unmute", "event deleteCancel"));
    EXPECT_THAT(pidsLeft(), ElementsAre("B", "C"));
    EXPECT_THAT(outcomes(), ElementsAre("A: deleted", "B: not attempted"));
    EXPECT_FALSE(m_report.allDealtWith());
}

TEST_F(InterruptedDeletionTest, ACancelWhileMutingDeletesNothing) {
    add(1, "A", true);
    cancelAt("mute");
    run(withoutFiles);
    EXPECT_THAT(journal(), ElementsAre("mute", "unmute", "event deleteCancel"));
    EXPECT_THAT(pidsLeft(), ElementsAre("A"));
}

TEST_F(InterruptedDeletionTest, ACancelAfterTheLastRowPostsBothEvents) {
    add(1, "A", true);
    cancelAt("event deleteAddCount");
    run(withoutFiles);
    EXPECT_THAT(journal("event"),
                ElementsAre("event deleteAddCount", "event deleteValidity", "event deleteCancel"));
}

TEST_F(InterruptedDeletionTest, AnExceptionEndsTheLoopUnmutesAndComesOut) {
    add(1, "A", true);
    add(1, "B", true);
    add(1, "C", false);
    throwAt("track B", std::runtime_error("broken"));
    EXPECT_THROW(run(withoutFiles), std::runtime_error);
    EXPECT_THAT(journal(), ElementsAre("mute", "track A", "event deleteAddCount", "track B", "unmute",
                                       "event deleteFinish"));
    EXPECT_THAT(pidsLeft(), ElementsAre("B", "C"));
    EXPECT_THAT(outcomes(), ElementsAre("A: deleted", "B: not attempted"));
}

TEST_F(InterruptedDeletionTest, AnExceptionWhileDeletingAFileIsSwallowed) {
    addFile("A", true, "a.mp3");
    add(1, "B", true);
    throwAt(fileEntry("a.mp3"), std::runtime_error("the disk is gone"));
    run(withFiles);
    EXPECT_THAT(journal("event"), ElementsAre("event deleteAddCount", "event deleteAddCount",
                                              "event deleteValidity", "event deleteFinish"));
    EXPECT_THAT(outcomes(),
                ElementsAre("A: deleted, file kept: the disk is gone", "B: deleted, file missing"));
}

TEST_F(InterruptedDeletionTest, AnExceptionOfAnotherKindWhileDeletingAFileEndsTheLoop) {
    addFile("A", true, "a.mp3");
    throwAt(fileEntry("a.mp3"), 42);
    EXPECT_THROW(run(withFiles), int);
    EXPECT_THAT(journal("event"), ElementsAre("event deleteFinish"));
    EXPECT_THAT(journal("unmute"), ElementsAre("unmute"));
    EXPECT_THAT(pidsLeft(), ElementsAre("A"));
}

TEST_F(InterruptedDeletionTest, AnExceptionAfterACancelPostsTheCancel) {
    add(1, "A", true);
    setHook([this](const std::string& entry) {
        if (entry != "track A") return;
        cancel();
        throw std::runtime_error("broken");
    });
    EXPECT_THROW(run(withoutFiles), std::runtime_error);
    EXPECT_THAT(journal("event"), ElementsAre("event deleteCancel"));
}

TEST_F(InterruptedDeletionTest, AnExceptionWhileMutingUnmutesAndEnds) {
    add(1, "A", true);
    throwAt("mute", std::runtime_error("no sound"));
    EXPECT_THROW(run(withoutFiles), std::runtime_error);
    EXPECT_THAT(journal(), ElementsAre("mute", "unmute", "event deleteFinish"));
}

TEST_F(InterruptedDeletionTest, AnExceptionWhileUnmutingStillEnds) {
    add(1, "A", true);
    throwAt("unmute", std::runtime_error("no sound"));
    EXPECT_THROW(run(withoutFiles), std::runtime_error);
    EXPECT_THAT(journal("event"),
                ElementsAre("event deleteAddCount", "event deleteValidity", "event deleteFinish"));
}

} // namespace
} // namespace songsweep
