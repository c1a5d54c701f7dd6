// SPDX-License-Identifier: MIT
// The part of a deletion that comes before it, in which copies that stay are given what others know.
#include "app/ControllerFixture.h"

#include <algorithm>
#include <array>
#include <semaphore>

namespace songsweep::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

/// A plan that gives the kept copy of each song five plays.
MergePlan plansFor(const SongsToMerge& songs) {
    MergePlan plan;
    for (const SongsToMerge::Song& song : songs.songs)
        plan.songs.push_back({song,
                              std::vector<CopyFacts>(song.removed.size(), {.plays = 5}),
                              {{MergedProperty::plays, 5, {}}},
                              {}});
    return plan;
}

class DeletionMergeTest : public ControllerFixture {
  protected:
    DeletionMergeTest() {
        ControllerServices merging = services(files);
        merging.embeddedLibrary = [] { return true; };
        merging.planMerge = [this](const SongsToMerge& songs, const MergeChoice& choice) {
            chosen = choice;
            return planned ? Result<MergePlan>(plansFor(songs)) : Result<MergePlan>(planned.error());
        };
        controller = std::make_unique<AppController>(merging, view.views());
        controller->awakeFromNib();
        addRows({1, 1, 2, 2, 2});
        constexpr std::array pids = {"A0", "A1", "A2", "A3", "A4"};
        for (std::size_t row = 0; row < records.size(); ++row)
            records[row]->pid = pids.at(row);
        for (const std::size_t row : {0, 2, 3})
            records[row]->checkbox = true;
    }

    void begin(MergeChoice choice) {
        controller->deleteButtonClick();
        controller->delConfOkButtonClick(false, true, choice);
        view.calls.clear();
        controller->beginDelete();
    }
    /// The merge's worker ends before the deletion's begins.
    void runUntilEnd() {
        ASSERT_TRUE(runEventLoopUntil([this] {
            return !controller->isDeleting() && !controller->isWorking();
        })) << "a worker does not end";
    }
    /// Texts that are merges and deletions, by what they are about.
    std::vector<std::string> steps() const {
        std::vector<std::string> steps;
        for (const std::string& text : iTunes.texts()) {
            if (isMerge(text)) steps.emplace_back("merge");
            if (text.starts_with("tell application \"iTunes\" to delete")) steps.emplace_back("delete");
        }
        return steps;
    }
    static bool isMerge(const std::string& text) { return text.find("set kept to") != std::string::npos; }
    std::ptrdiff_t logged(const std::string& part) const {
        const auto lines = log.lines();
        return std::count_if(lines.begin(), lines.end(),
                             [&](const std::string& line) { return line.find(part) != std::string::npos; });
    }

    MergeChoice chosen;
    Result<void> planned;
};

constexpr MergeChoice history{.places = false, .history = true, .fillIns = false};

TEST_F(DeletionMergeTest, EachSongIsMergedBeforeTheFirstTrackIsDeleted) {
    begin(history);
    EXPECT_THAT(view.calls, ElementsAre("setProgressTitle Merging...", "beginProgress progress"));
    EXPECT_EQ(controller->progress().total, 2);
    runUntilEnd();
    EXPECT_EQ(chosen, history);
    EXPECT_THAT(steps(), ElementsAre("merge", "merge", "delete", "delete", "delete"));
    EXPECT_TRUE(view.has("setProgressTitle Deleting..."));
    EXPECT_EQ(controller->progress().total, 3);
    EXPECT_EQ(std::count(view.calls.begin(), view.calls.end(), "endProgress progress"), 1);
    ASSERT_NE(controller->lastDeleteReport(), nullptr);
    ASSERT_TRUE(controller->lastDeleteReport()->outcomes.at(0).merged);
    EXPECT_EQ(controller->lastDeleteReport()->outcomes.at(0).merged->keptId, "A1");
}

TEST_F(DeletionMergeTest, NothingIsMergedThatNobodyAskedFor) {
    begin({});
    EXPECT_THAT(view.calls, ElementsAre("setProgressTitle Deleting...", "beginProgress progress"));
    runUntilEnd();
    EXPECT_THAT(steps(), ElementsAre("delete", "delete", "delete"));
}

TEST_F(DeletionMergeTest, ACancelDuringTheMergeDeletesNothing) {
    std::binary_semaphore merging{0};
    std::binary_semaphore cancelled{0};
    iTunes.onScript = [&](const std::string& text) {
        if (!isMerge(text)) return;
        merging.release();
        cancelled.acquire();
    };
    begin(history);
    merging.acquire();
    controller->cancelButtonClick();
    cancelled.release();
    runUntilEnd();
    EXPECT_THAT(steps(), ElementsAre("merge"));
    EXPECT_FALSE(controller->isDeleting());
    EXPECT_EQ(controller->getCheckedCount(), 3);
    EXPECT_EQ(controller->tableDataSource().rows.size(), 5U);
    ASSERT_NE(controller->lastDeleteReport(), nullptr);
    EXPECT_EQ(controller->lastDeleteReport()->outcomes.at(0).track, DeleteOutcome::Track::notAttempted);
}

TEST_F(DeletionMergeTest, AMergeThatCannotBeginIsToldAsADeletionThatCannot) {
    planned = Error{Error::Code::busy, "the library is being rewritten"};
    begin(history);
    runUntilEnd();
    EXPECT_TRUE(view.has("alertCantBeginDelete the library is being rewritten"));
    EXPECT_THAT(steps(), ElementsAre());
    EXPECT_FALSE(controller->isDeleting());
    planned = {};
    begin(history);
    runUntilEnd();
    EXPECT_THAT(steps(), ElementsAre("merge", "merge", "delete", "delete", "delete"));
}

TEST_F(DeletionMergeTest, TheCopiesOfASongWhoseMergeFailedAreNotDeleted) {
    iTunes.fails = [](const std::string& text) {
        return isMerge(text) && text.find("\"A4\"") != std::string::npos;
    };
    begin(history);
    runUntilEnd();
    EXPECT_THAT(steps(), ElementsAre("merge", "merge", "delete"));
    const auto& outcomes = controller->lastDeleteReport()->outcomes;
    EXPECT_EQ(outcomes.at(0).track, DeleteOutcome::Track::deleted);
    for (const std::size_t copy : {1, 2}) {
        EXPECT_EQ(outcomes.at(copy).track, DeleteOutcome::Track::failed);
        EXPECT_THAT(outcomes.at(copy).reason, HasSubstr("could not be given to the copy that stays"));
    }
    EXPECT_EQ(logged("Not merged : A4"), 1);
}

} // namespace
} // namespace songsweep::test
