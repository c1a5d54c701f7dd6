// SPDX-License-Identifier: MIT
// Deletions that were interrupted, and what `finish` makes of them.
#include "RecordedDeletion.h"
#include "libraryfile/CleanupLock.h"
#include "libraryfile/RecordedCleanup.h"
#include "libraryfile/TemporaryName.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace songsweep {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using test::RunResult;
using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;

class Finish : public test::RecordedDeletionTest {
  protected:
    RunResult finish(std::vector<std::string> options) {
        options.insert(options.begin(), {"finish", "--library", m_library});
        return run(options);
    }
    RecordedCleanup record(const std::string& name) {
        const auto read = RecordedCleanup::read(path(name + ".jsonl"));
        EXPECT_TRUE(read);
        return read ? read.value() : RecordedCleanup();
    }
};

TEST_F(Finish, MovesTheFilesThatWereLeftAndEndsTheRecord) {
    const std::string name = deleteTracksAndNoFile();
    const std::string deleted = library();
    const RunResult result = finish({"--yes", "--log", path("log")});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    for (const std::string& trace : {"Backup : " + newestBackup(), "Record : " + path(name + ".jsonl")})
        EXPECT_THAT(m_folder.read("log"), HasSubstr(trace + "\n"));
    EXPECT_THAT(result.output, AllOf(HasSubstr("Track A by X (0000000000000003) deleted, file trashed, " +
                                               path(fileName(3)) + ", in the Trash as 3.mp3\n"),
                                     HasSubstr("Deleted 2 of 2 tracks, files of 2 in the Trash\n"),
                                     HasSubstr("Record: " + path(name + ".jsonl"))));
    EXPECT_EQ(library(), deleted);
    for (const int id : m_gone)
        EXPECT_EQ(m_folder.read(inTrash(id)), "music " + std::to_string(id));
    EXPECT_EQ(record(name).end, (RecordEnd{RecordEnd::How::complete, "", 2, 2, 14}));
    EXPECT_EQ(run({"find", "--library", m_library}).errors, "") << "nothing is offered any more";
    EXPECT_EQ(restore({"--yes"}).exitCode, 0);
    expectAllBack();
}

TEST_F(Finish, KnowsTheFilesThatWereMovedAndNotTold) {
    const std::string name = deleteTracksUpToFile(1);
    EXPECT_EQ(finish({"--yes"}).exitCode, 0);
    EXPECT_EQ(record(name).tracks.at(0).trash, (TrashedFile{path("home/data/Trash/files"), "1.mp3"}));
    EXPECT_EQ(record(name).end->files, 2U);
    EXPECT_EQ(restore({"--yes"}).exitCode, 0);
    expectAllBack();
}

TEST_F(Finish, IsForeseenWithoutATrace) {
    const std::string name = deleteTracksAndNoFile();
    fs::remove(path(TemporaryName::ofLock("Library.xml"))); // nobody's any more, and the next lock takes it
    const auto before = tree();
    const RunResult result = finish({"--dry-run", "--format", "json"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    const json outcome = json::parse(result.output).at("outcomes").at(1);
    EXPECT_EQ(outcome.at("track"), "deleted");
    EXPECT_EQ(outcome.at("file"), "trashed");
    EXPECT_THAT(finish({"--dry-run"}).output, HasSubstr(" would be deleted, file would go to the Trash, "));
    EXPECT_EQ(tree(), before);
    EXPECT_THAT(run({"find", "--library", m_library}).errors,
                HasSubstr(", or it can be finished (2 files go to the Trash): songsweep finish --library "));
}

TEST_F(Finish, LeavesTracksThatAreStillInTheLibraryWithTheirFiles) {
    const std::string name = deleteTracksAndNoFile();
    std::string text = library();
    m_folder.write("Library.xml", m_whole); // another program has put them back
    const RunResult result = finish({"--yes"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.output, HasSubstr("not attempted: it is still in the library, "));
    EXPECT_EQ(library(), m_whole);
    EXPECT_EQ(m_folder.read(fileName(1)), "music 1");
    EXPECT_EQ(record(name).end->tracks, 0U);
}

TEST_F(Finish, LeavesAFileThatATrackOfTheLibraryUsesByNow) {
    deleteTracksAndNoFile();
    std::string text = library();
    const std::string stays = path(fileName(2));
    text.replace(text.find(stays), stays.size(), path(fileName(1)));
    m_folder.write("Library.xml", text);
    const RunResult result = finish({"--yes"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.output, HasSubstr("deleted, file kept: a track of the library uses it, "));
    EXPECT_EQ(m_folder.read(fileName(1)), "music 1");
    EXPECT_FALSE(fs::exists(path(fileName(3))));
}

TEST_F(Finish, LeavesAFileThatIsAnotherOneByNow) {
    deleteTracksAndNoFile();
    m_folder.write(fileName(1), "another song");
    const RunResult result = finish({"--yes"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.output, HasSubstr("deleted, file kept: it is not the file any more that it was, "));
    EXPECT_EQ(m_folder.read(fileName(1)), "another song");
}

TEST_F(Finish, IsRefusedWhileAnotherHoldsTheLibraryAndWhereNothingWasInterrupted) {
    deleteTracksAndNoFile();
    {
        const auto lock = CleanupLock::acquire(m_library, {"a window"});
        for (const char* const mode : {"--yes", "--dry-run"})
            EXPECT_THAT(finish({mode}).errors, HasSubstr("(a window, process "));
    }
    ASSERT_EQ(finish({"--yes"}).exitCode, 0);
    const RunResult again = finish({"--yes"});
    EXPECT_EQ(again.exitCode, 1);
    EXPECT_THAT(again.errors, HasSubstr("no deletion was interrupted; restore --list shows all\n"));
}

TEST_F(Finish, RefusesADeletionThatCameToItsEnd) {
    const std::string name = deleteTracks();
    const RunResult result = finish({"--yes", "--cleanup", name});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.errors, HasSubstr("\"" + name + "\" is no deletion that was interrupted\n"));
    EXPECT_EQ(finish({}).exitCode, 2);
    EXPECT_EQ(finish({"--yes", "--dry-run"}).exitCode, 2);
    EXPECT_EQ(run({"finish", "--yes"}).exitCode, 2);
}

TEST_F(Finish, GoesOnBehindALineThatWasCutOff) {
    const std::string name = deleteTracksAndNoFile();
    m_folder.write(name + ".jsonl", m_folder.read(name + ".jsonl") + "{\"step\":\"tra");
    EXPECT_EQ(finish({"--yes"}).exitCode, 0);
    EXPECT_TRUE(record(name).end);
    EXPECT_THAT(m_folder.read(name + ".jsonl"), Not(HasSubstr("{\"step\":\"tra{")));
}

} // namespace
} // namespace songsweep
