// SPDX-License-Identifier: MIT
#include "delete/DeleteConfirmationFacts.h"

#include "delete/DeletePlanFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

namespace songsweep {
namespace {

class DeleteConfirmationFactsTest : public test::DeletePlanFixture {};

TEST_F(DeleteConfirmationFactsTest, TheFactsCountFilesBytesAndWhatIsShared) {
    addFile("A", true, "four");        // 4 bytes
    addFile("B", true, "sixsix");      // 6 bytes
    add(2, "C", true, path("sixsix")); // the file of B once more
    add(2, "D", true, path("gone"));
    addFile("E", true, "shared9"); // 7 bytes
    add(3, "F", false, path("four2"));
    const DeleteConfirmationFacts expected = {
        .filesToTrash = 2, .bytesToTrash = 10, .sharedFiles = 1, .sharedBytes = 7, .missingFiles = 1};
    EXPECT_EQ(facts({{"X", path("shared9")}}), expected);
}

TEST_F(DeleteConfirmationFactsTest, SongsThatLoseTheirFileWithTheSharedOnesAreCounted) {
    addFile("A", true, "shared.mp3");
    add(m_list.rows.back()->gid, "B", false, path("shared.mp3"));
    add(7, "C", false, path("shared.mp3")); // of a song of which nothing is marked
    add(7, "D", false, path("gone"));
    add(8, "E", false, path("shared.mp3"));
    addFile("F", false, "own.mp3");
    m_list.rows.back()->gid = 8;
    DeleteConfirmationFacts found;
    ASSERT_TRUE(
        surveyFiles(SurveyedRows(m_list.rows), {m_files, libraryWith({})}, found, [] { return false; }));
    EXPECT_EQ(found.groupsLosingEveryFile, 0);
    EXPECT_EQ(found.groupsLosingSharedFiles, 2);
}

TEST_F(DeleteConfirmationFactsTest, TheNamesOfOneFileCountItsBytesOnce) {
    addFile("A", true, "four");
    std::filesystem::create_hard_link(path("four"), path("other name"));
    add(1, "B", true, path("other name"));
    EXPECT_EQ(facts(), (DeleteConfirmationFacts{.filesToTrash = 2, .bytesToTrash = 4}));
}

TEST_F(DeleteConfirmationFactsTest, ALinkToAMarkedFileIsNoFileOfItsOwn) {
    addFile("A", true, "four");
    std::filesystem::create_symlink(path("four"), path("link"));
    add(1, "B", true, path("link"));
    EXPECT_EQ(facts(), (DeleteConfirmationFacts{.filesToTrash = 1, .bytesToTrash = 4}));
}

TEST_F(DeleteConfirmationFactsTest, AFileWithQuotesInItsNameIsCountedAsGoing) {
    addFile("A", true, "say \"hi\".mp3");
    EXPECT_EQ(facts().filesToTrash, 1);
}

TEST_F(DeleteConfirmationFactsTest, AFolderIsNotCountedAsGoingOrMissing) {
    add(1, "A", true, m_folder.path());
    EXPECT_EQ(facts(), DeleteConfirmationFacts());
}

TEST_F(DeleteConfirmationFactsTest, TheFactsTellWhyTheLibraryWillNotBeWritten) {
    SurveySources sources = {m_files};
    sources.libraryForesight = [](const CleanupSize&) {
        return Error{Error::Code::noPermission, "it is closed"};
    };
    DeleteConfirmationFacts facts;
    EXPECT_TRUE(surveyFiles(SurveyedRows(m_list.rows), sources, facts, [] { return false; }));
    EXPECT_EQ(facts.libraryObstacle, "it is closed");
}

} // namespace
} // namespace songsweep
