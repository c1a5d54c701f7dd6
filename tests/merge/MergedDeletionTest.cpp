// SPDX-License-Identifier: MIT
//
// What becomes of a library when copies are deleted of which others know something.
#include "merge/MergedDeletion.h"

#include "library/WorkerEvent.h"
#include "libraryfile/LibraryDocument.h"
#include "libraryfile/RecordedCleanup.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace songsweep {
namespace {

using test::libraryXml;
using test::MergedDeletion;
using testing::ElementsAre;
using testing::HasSubstr;

constexpr MergeChoice everything{.places = true, .history = true, .fillIns = true};

std::string plays(int count) {
    return "<key>Play Count</key><integer>" + std::to_string(count) + "</integer>";
}

/// Three copies of a song and another track; a playlist has two copies, and a smart one all of them.
std::string smallLibrary() {
    return libraryXml({{1, "A1", plays(5)}, {2, "A2", plays(20)}, {3, "A3", plays(6)}, {4, "B1", ""}},
                      {{"Library", "<key>Master</key><true/>", {1, 2, 3, 4}},
                       {"List", "", {2, 4, 1, 3}},
                       {"Smart", "<key>Smart Info</key><data/>", {1, 2, 3}}});
}

std::vector<test::MarkedCopy> twoGo() { return {{1, "A1", false}, {1, "A2", true}, {1, "A3", true}}; }

TEST(MergedDeletionTest, TheCopyThatStaysGetsPlacesAndPlaysInTheSameWrite) {
    MergedDeletion deletion(smallLibrary(), twoGo());
    const DeleteReport report = deletion.carryOut(everything);
    EXPECT_EQ(deletion.content(), libraryXml({{1, "A1", plays(31)}, {4, "B1", ""}},
                                             {{"Library", "<key>Master</key><true/>", {1, 4}},
                                              {"List", "", {1, 4}},
                                              {"Smart", "<key>Smart Info</key><data/>", {1}}}));
    EXPECT_EQ(deletion.writes(), 1);
    ASSERT_EQ(report.outcomes.size(), 2U);
    EXPECT_EQ(outcomeText(report.outcomes[0]), "deleted, 1 place, 20 plays given to A1");
    EXPECT_EQ(outcomeText(report.outcomes[1]), "deleted, 6 plays given to A1");
    deletion.restore();
    EXPECT_EQ(deletion.content(), smallLibrary());
}

/// The texts for the system's iTunes are ones that any iTunes understands.
TEST(MergedDeletionTest, TheSystemsITunesPutsTheSongAtTheEndOfThePlaylist) {
    const auto library = [](const std::vector<test::FixtureTrack>& tracks, const std::vector<int>& master,
                            const std::vector<int>& list) {
        const std::string flags = "<key>Playlist Persistent ID</key><string>00000000000000AB</string>";
        return libraryXml(tracks, {{"Library", "<key>Master</key><true/>", master}, {"List", flags, list}});
    };
    MergedDeletion deletion(
        library({{1, "A1", plays(5)}, {2, "A2", plays(20)}, {3, "B1", ""}}, {1, 2, 3}, {2, 3}),
        {{1, "A1", false}, {1, "A2", true}});
    deletion.road = MergeRoad::iTunes;
    deletion.carryOut(everything);
    EXPECT_EQ(deletion.content().find(plays(20)), std::string::npos);
    EXPECT_THAT(deletion.content(), HasSubstr(plays(25)));
    const auto opened = LibraryDocument::open(deletion.path());
    ASSERT_TRUE(opened) << opened.error().message;
    std::vector<std::int64_t> items;
    for (const ItemSlot& item : opened.value()->playlist(1).items)
        items.push_back(opened.value()->trackId(item.track));
    EXPECT_THAT(items, ElementsAre(3, 1));
}

TEST(MergedDeletionTest, TheRecordHoldsTheValuesBefore) {
    MergedDeletion deletion(smallLibrary(), twoGo());
    const auto record = RecordedCleanup::read(deletion.carryOut(everything).record);
    ASSERT_TRUE(record) << record.error().message;
    ASSERT_EQ(record.value().merges.size(), 1U);
    const RecordedMerge expected{
        "A1", 1, {0, 1}, true, {{"5", {"Play Count", ValueChange::Form::integer, "31"}}}};
    EXPECT_EQ(record.value().merges.front(), expected);
}

TEST(MergedDeletionTest, NothingIsMergedThatNobodyAskedFor) {
    MergedDeletion deletion(smallLibrary(), twoGo());
    deletion.carryOut({.places = true, .history = false, .fillIns = false});
    EXPECT_THAT(deletion.content(), HasSubstr(plays(5)));
    MergedDeletion other(smallLibrary(), twoGo());
    other.carryOut({.places = false, .history = true, .fillIns = false});
    EXPECT_EQ(other.content(), libraryXml({{1, "A1", plays(31)}, {4, "B1", ""}},
                                          {{"Library", "<key>Master</key><true/>", {1, 4}},
                                           {"List", "", {4, 1}},
                                           {"Smart", "<key>Smart Info</key><data/>", {1}}}));
}

TEST(MergedDeletionTest, ACopyWhoseMergeFailedStays) {
    MergedDeletion deletion(smallLibrary(), twoGo());
    deletion.failingPart = "set kept";
    const DeleteReport report = deletion.carryOut(everything);
    EXPECT_EQ(deletion.content(), smallLibrary()) << "what the text had done is taken back";
    ASSERT_EQ(report.outcomes.size(), 2U);
    EXPECT_THAT(outcomeText(report.outcomes[0]), HasSubstr("failed: what it knows could not be given"));
}

TEST(MergedDeletionTest, ASongOfWhichACopyStaysAfterAllIsAsItWas) {
    MergedDeletion deletion(smallLibrary(), twoGo());
    deletion.refusedPart = "to delete (tracks whose persistent ID is \"A3\")";
    const DeleteReport report = deletion.carryOut(everything);
    EXPECT_EQ(deletion.content(), smallLibrary());
    ASSERT_EQ(report.outcomes.size(), 2U);
    EXPECT_EQ(report.outcomes[0].track, DeleteOutcome::Track::failed) << "it was deleted, and came back";
    EXPECT_EQ(report.outcomes[1].track, DeleteOutcome::Track::failed);
}

TEST(MergedDeletionTest, ACancelledDeletionTakesNoPartOfASong) {
    MergedDeletion deletion(smallLibrary(), twoGo());
    deletion.observer = [](const WorkerEvent& event) {
        if (event.name == EventName::deleteAddCount) const_cast<Operation*>(event.sender)->cancel();
    };
    const DeleteReport report = deletion.carryOut(everything);
    EXPECT_EQ(deletion.content(), smallLibrary());
    ASSERT_EQ(report.outcomes.size(), 2U);
    EXPECT_EQ(report.outcomes[0].track, DeleteOutcome::Track::failed);
    EXPECT_FALSE(report.outcomes[0].merged);
    EXPECT_EQ(report.merge.places, 0U);
}

TEST(MergedDeletionTest, AMergeThatIsCancelledLeavesNothingBehind) {
    MergedDeletion deletion(smallLibrary(), twoGo());
    deletion.observer = [](const WorkerEvent& event) {
        if (event.name == EventName::mergeAddCount) const_cast<Operation*>(event.sender)->cancel();
        if (event.name == EventName::mergeCancel) throw std::runtime_error("cancelled");
    };
    EXPECT_THROW(deletion.carryOut(everything), std::runtime_error);
    ASSERT_TRUE(deletion.scripts().flush());
    EXPECT_EQ(deletion.content(), smallLibrary());
    EXPECT_THAT(deletion.names(), ElementsAre("library.xml"));
}

TEST(MergedDeletionTest, NothingIsWrittenBetweenAMergeAndItsDeletion) {
    MergedDeletion deletion(smallLibrary(), twoGo());
    deletion.observer = [&](const WorkerEvent& event) {
        if (event.name != EventName::mergeFinish) return;
        ASSERT_TRUE(deletion.scripts().flush());
        EXPECT_EQ(deletion.content(), smallLibrary());
    };
    deletion.carryOut(everything);
}

TEST(MergedDeletionTest, ALibraryThatAnotherProgramChangedMeanwhileIsLeftAlone) {
    MergedDeletion deletion(smallLibrary(), twoGo());
    std::string theirs = smallLibrary();
    theirs.replace(theirs.find(plays(5)), plays(5).size(), plays(7));
    deletion.observer = [&](const WorkerEvent& event) {
        if (event.name != EventName::mergeFinish) return;
        std::filesystem::rename(deletion.path(), deletion.path() + ".old");
        std::ofstream(deletion.path()) << theirs;
    };
    const DeleteReport report = deletion.carryOut(everything);
    EXPECT_THAT(report.notBegun, HasSubstr("was changed by another program meanwhile"));
    EXPECT_EQ(deletion.content(), theirs);
}

TEST(MergedDeletionTest, ARestoreLeavesWhatSomebodyChangedSince) {
    MergedDeletion deletion(smallLibrary(), twoGo());
    deletion.carryOut(everything);
    std::string theirs = deletion.content();
    theirs.replace(theirs.find(plays(31)), plays(31).size(), plays(40));
    std::ofstream(deletion.path()) << theirs;
    deletion.restore();
    std::string expected = smallLibrary();
    expected.replace(expected.find(plays(5)), plays(5).size(), plays(40));
    EXPECT_EQ(deletion.content(), expected);
}

TEST(MergedDeletionTest, SongsThatKeepSeveralCopiesAreCounted) {
    MergedDeletion deletion(smallLibrary(), {{1, "A1", false}, {1, "A2", true}, {1, "A3", false}});
    const DeleteReport report = deletion.carryOut(everything);
    EXPECT_EQ(report.merge, MergeCounts{.keepSeveral = 1});
    EXPECT_FALSE(report.outcomes.at(0).merged);
}

} // namespace
} // namespace songsweep
