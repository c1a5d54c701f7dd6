// SPDX-License-Identifier: MIT
#include "delete/DeletePrediction.h"

#include "delete/DeleteFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

namespace songsweep {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DeletePredictionTest : public test::DeleteFixture {
  protected:
    /// Predicts a deletion with files, then runs it: both are to come to the same.
    void expectTheSameInEarnest(const DeletePlan& plan) {
        const DeleteReport predicted = predictedReport(m_list.rows, true, plan, m_tracksOfId);
        EXPECT_THAT(wholeJournal(), IsEmpty());
        run(true, plan);
        ASSERT_EQ(predicted.outcomes.size(), m_report.outcomes.size());
        for (std::size_t n = 0; n < predicted.outcomes.size(); ++n) {
            EXPECT_EQ(outcomeLine(predicted.outcomes[n]), outcomeLine(m_report.outcomes[n]));
            EXPECT_EQ(predicted.outcomes[n].dealtWith, m_report.outcomes[n].dealtWith) << n;
        }
    }
};

TEST_F(DeletePredictionTest, TellsWhatBecomesOfTheFilesInEarnest) {
    addFile("A", true, "a.mp3");
    add(1, "B", true, path("a.mp3"));
    addFile("C", true, "c.mp3");
    add(1, "D", false, path("c.mp3"));
    addFile("E", true, "say \"hi\".mp3");
    add(1, "F", true, path("gone.mp3"));
    add(1, "G", true, m_folder.path());
    expectTheSameInEarnest(test::makeDeletePlan(m_list.rows, m_files, {}));
}

TEST_F(DeletePredictionTest, SpeaksOfWhatWouldBe) {
    addFile("A", true, "a.mp3");
    add(1, "B", true, path("gone.mp3"));
    add(1, "C", true, m_folder.path());
    add(1, "", true);
    std::vector<std::string> texts;
    for (const bool withFiles : {true, false})
        for (const DeleteOutcome& outcome :
             predictedReport(m_list.rows, withFiles, test::makeDeletePlan(m_list.rows, m_files, {})).outcomes)
            texts.push_back(outcomeText(outcome, Tense::conditional));
    EXPECT_THAT(texts,
                ElementsAre("would be deleted, file would go to the Trash",
                            "would be deleted, file is missing",
                            "would be deleted, file would stay: it is a folder",
                            "would stay, file is missing: it has no persistent ID", "would be deleted",
                            "would be deleted", "would be deleted", "would stay: it has no persistent ID"));
}

TEST_F(DeletePredictionTest, TellsWhichTracksStayInEarnest) {
    addFile("AA\"1", true, "a.mp3");
    addFile("0", true, "b.mp3");
    add(1, "", true, path("gone.mp3"));
    expectTheSameInEarnest(test::makeDeletePlan(m_list.rows, m_files, {}));
}

TEST_F(DeletePredictionTest, TellsWhichFilesStayWithTracksThatStayInEarnest) {
    addFile("A", true, "a.mp3");
    add(1, "B", true, path("a.mp3"));
    addFile("C", true, "c.mp3");
    std::filesystem::create_hard_link(path("c.mp3"), path("d.mp3"));
    add(1, "", true, path("d.mp3"));
    addFile("E", true, "e.mp3");
    m_tracksOfId = [](std::string_view pid) { return std::vector<std::string>(pid == "B" ? 2 : 1, "“S”"); };
    DeletePlan plan = test::makeDeletePlan(m_list.rows, m_files, {});
    plan.giveUpSharedFiles();
    expectTheSameInEarnest(plan);
    EXPECT_TRUE(exists("a.mp3") && exists("c.mp3") && exists("d.mp3"));
    EXPECT_FALSE(exists("e.mp3"));
}

TEST_F(DeletePredictionTest, TellsWhichTracksShareTheirIdsInEarnest) {
    addFile("A", true, "a.mp3");
    addFile("A", false, "b.mp3");
    addFile("C", true, "c.mp3");
    addFile("D", true, "d.mp3");
    add(1, "C", true, path("gone.mp3"));
    m_tracksOfId = [](std::string_view pid) {
        return pid == "D" ? std::vector<std::string>{"“One” by X", "“Two” by Y"} : std::vector<std::string>();
    };
    expectTheSameInEarnest(test::makeDeletePlan(m_list.rows, m_files, {}));
    EXPECT_TRUE(exists("a.mp3"));
    EXPECT_FALSE(exists("c.mp3"));
    EXPECT_TRUE(exists("d.mp3"));
}

TEST_F(DeletePredictionTest, TellsThatFilesStayOfALibraryThatCannotBeLookedAt) {
    addFile("A", true, "a.mp3");
    add(1, "B", true, path("gone.mp3"));
    expectTheSameInEarnest(
        test::makeDeletePlan(m_list.rows, m_files, [](const LocationVisitor&) { return false; }));
    EXPECT_TRUE(exists("a.mp3"));
    EXPECT_EQ(outcomes().front(), "A: deleted, file kept: other tracks that use it could not be looked for");
    EXPECT_FALSE(m_report.allDealtWith());
}

} // namespace
} // namespace songsweep
