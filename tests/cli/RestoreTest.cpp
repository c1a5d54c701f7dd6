// SPDX-License-Identifier: MIT
#include "RecordedDeletion.h"
#include "libraryfile/CleanupHistory.h"
#include "libraryfile/CleanupLock.h"
#include "platform/Native.h"
#include "restore/CleanupRestore.h"

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
using ::testing::StartsWith;

class Restore : public test::RecordedDeletionTest {};

TEST_F(Restore, BringsBackEveryByteAndFile) {
    const std::string name = deleteTracks();
    EXPECT_NE(library(), m_whole);
    const RunResult result = restore({"--yes"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_THAT(result.output, HasSubstr("Track A by X (0000000000000003) was restored, its file was put "
                                         "back, " +
                                         path(fileName(3)) + "\n"));
    EXPECT_THAT(result.output, HasSubstr("Restored 2 of 2 tracks of \"" + name + "\", 2 files put back\n"));
    expectAllBack();
}

TEST_F(Restore, IsRecordedWithABackupOfItsOwn) {
    const std::string name = deleteTracks();
    const std::string before = library();
    const json result = json::parse(restore({"--yes", "--format", "json"}).output);
    EXPECT_EQ(m_folder.read(fs::path(result.at("backup").get<std::string>()).filename().string()), before);
    const auto record = RecordedCleanup::read(result.at("record"));
    ASSERT_TRUE(record);
    EXPECT_EQ(record.value().heading.kind, RecordHeading::Kind::restore);
    EXPECT_EQ(record.value().heading.restores, name);
    EXPECT_EQ(record.value().heading.library, fs::canonical(m_library));
    ASSERT_TRUE(record.value().end);
    const RecordEnd expected{RecordEnd::How::complete, "", 2, 2, 14};
    EXPECT_EQ(*record.value().end, expected);
    EXPECT_EQ(record.value().tracks.at(1).trash, (TrashedFile{path("home/data/Trash/files"), "3.mp3"}));
}

TEST_F(Restore, TellsBeforehandAndTouchesNothing) {
    deleteTracks();
    fs::remove(path(inTrash(1)));
    const auto before = tree();
    const RunResult text = restore({"--dry-run"});
    EXPECT_EQ(text.exitCode, 1) << "one file is lost";
    EXPECT_THAT(text.output, HasSubstr("(0000000000000001) would be restored: its file is not in the Trash "
                                       "any more, "));
    EXPECT_THAT(text.output, HasSubstr("(0000000000000003) would be restored, its file would be put back, "));
    EXPECT_THAT(text.output, HasSubstr("1 file put back, 1 track not dealt with as asked\n"));
    EXPECT_EQ(tree(), before);
}

TEST_F(Restore, ForeseesALibraryThatCannotBeWritten) {
    if (::geteuid() != 0) GTEST_SKIP() << "needs to become another user";
    deleteTracks();
    for (const auto& entry : fs::recursive_directory_iterator(path("")))
        fs::permissions(entry.path(), fs::perms(0777));
    fs::permissions(path(""), fs::perms(0555));
    m_beforeStart = [] { static_cast<void>(::setuid(65534)); };
    const RunResult foretold = restore({"--dry-run"});
    EXPECT_EQ(foretold.exitCode, 1);
    EXPECT_THAT(foretold.errors, HasSubstr("Permission denied"));
}

TEST_F(Restore, NamesBackupAndRecordInEveryFormatAndInTheLog) {
    const std::string name = deleteTracks();
    const RunResult foretold = restore({"--dry-run", "--format", "csv"});
    EXPECT_THAT(foretold.output, StartsWith("pid,name,artist,location,track,file,reason,dealtwith,dryrun,"
                                            "cleanup,backup,record\r\n"));
    EXPECT_THAT(foretold.output, HasSubstr(",true,true," + name + ",,\r\n"));
    const std::string output = restore({"--yes", "--format", "csv", "--log", path("log")}).output;
    const std::string traces = ",false," + name + "," + path("Library (before restoring of ");
    EXPECT_THAT(output, HasSubstr(traces));
    const std::string log = m_folder.read("log");
    EXPECT_THAT(log, HasSubstr("A – X: track restored, file put back, " + path(fileName(3)) + "\n"));
    EXPECT_THAT(log, HasSubstr("Backup : " + path("Library (before restoring of ")));
    EXPECT_THAT(log, HasSubstr("Record : " + path("Library (before restoring of ")));
}

TEST_F(Restore, LeavesTracksOutWhoseFilesAreLostWhereTheUserSaysSo) {
    deleteTracks();
    fs::remove(path(inTrash(1)));
    const RunResult result = restore({"--yes", "--leave-lost"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_THAT(result.output, HasSubstr("(0000000000000001) is left out: its file is not in the Trash any "
                                         "more, "));
    EXPECT_THAT(result.output, HasSubstr("Restored 1 of 2 tracks of "));
    EXPECT_THAT(library(), Not(HasSubstr("0000000000000001")));
    EXPECT_THAT(library(), HasSubstr("0000000000000003"));
    EXPECT_EQ(m_folder.read(fileName(3)), "music 3");
}

TEST_F(Restore, TellsHowFarItIs) {
    const std::string record = path(deleteTracks() + ".jsonl");
    const auto desktop = nativeDesktop();
    const CleanupRestore restore(m_library, RecordedCleanup::read(record).value(), desktop->trash());
    std::vector<std::pair<std::size_t, std::size_t>> told;
    ASSERT_TRUE(restore.carryOut(
        {.program = "a test", .purpose = "a test", .progress = [&](std::size_t done, std::size_t all) {
             told.emplace_back(done, all);
         }}));
    EXPECT_THAT(told, ::testing::ElementsAre(std::pair(2, 4), std::pair(3, 4)));
}

TEST_F(Restore, NamesAFileThatLeftTheTrash) {
    deleteTracks();
    fs::remove(path(inTrash(1)));
    const RunResult result = restore({"--yes", "--format", "csv"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.output,
                HasSubstr("0000000000000001,A,X," + path(fileName(1)) +
                          ",restored,missing,its file is not in the Trash any more,false,false,"));
    EXPECT_EQ(library(), m_whole);
    EXPECT_FALSE(fs::exists(path(fileName(1))));
    EXPECT_EQ(m_folder.read(fileName(3)), "music 3");
}

TEST_F(Restore, TakesNoOtherFileOfTheTrashForTheOneThatLeftIt) {
    deleteTracks();
    fs::remove(path(inTrash(1)));
    m_folder.write(inTrash(1), "another song");
    EXPECT_EQ(restore({"--yes"}).exitCode, 1);
    EXPECT_FALSE(fs::exists(path(fileName(1))));
    EXPECT_EQ(m_folder.read(inTrash(1)), "another song");
}

TEST_F(Restore, WritesOverNothing) {
    deleteTracks();
    m_folder.write(fileName(1), "another");
    const RunResult result = restore({"--yes", "--format", "json"});
    EXPECT_EQ(result.exitCode, 1);
    const json outcome = json::parse(result.output).at("outcomes").at(0);
    EXPECT_EQ(outcome.at("file"), "kept");
    EXPECT_EQ(outcome.at("dealtwith"), false);
    EXPECT_EQ(m_folder.read(fileName(1)), "another");
    EXPECT_EQ(m_folder.read(inTrash(1)), "music 1");
    EXPECT_EQ(library(), m_whole);
}

TEST_F(Restore, TakesNoFileForLostWhoseTrashCannotBeRead) {
    const std::string name = deleteTracks();
    const std::string files = path("home/data/Trash/files");
    fs::rename(files, files + " aside");
    fs::create_symlink("files", files); // leads nowhere, whoever asks
    const RunResult result = restore({"--yes"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.output, AllOf(HasSubstr("the Trash cannot be read: " + files),
                                     Not(HasSubstr("not in the Trash any more"))));
    EXPECT_EQ(library(), m_whole);
    fs::remove(files);
    fs::rename(files + " aside", files);
    EXPECT_EQ(restore({"--yes", "--cleanup", name}).exitCode, 0);
    expectAllBack();
}

TEST_F(Restore, KeepsWhatOthersWroteSince) {
    deleteTracks();
    const std::string key = "<key>Major Version</key><integer>";
    const auto edited = [&](std::string text) { return text.insert(text.find(key) + key.size(), "20"); };
    m_folder.write("Library.xml", edited(library()));
    EXPECT_EQ(restore({"--yes"}).exitCode, 0);
    EXPECT_EQ(library(), edited(m_whole));
}

TEST_F(Restore, TakesBackACleanUpThatWasKilled) {
    deleteTracksUpToFile(3);
    EXPECT_THAT(restore({"--list"}).output, HasSubstr("not ended"));
    const RunResult result = restore({"--yes"});
    EXPECT_EQ(result.exitCode, 0) << result.output << result.errors;
    expectAllBack();
}

TEST_F(Restore, IsOfferedWhereTheNewestDeletionWasKilled) {
    const std::string name = deleteTracksUpToFile(3);
    const std::vector<std::string> find = {"find", "--library", m_library};
    const std::vector<std::string> remove = {"delete", "--library",       m_library,
                                             "--rule", "highest-bitrate", "--dry-run"};
    const std::string which = " --library \"" + m_library + "\" --cleanup \"" + name + "\" --dry-run";
    for (const auto& command : {find, remove})
        EXPECT_THAT(run(command).errors,
                    AllOf(HasSubstr("songsweep: warning: the deletion of 2"),
                          HasSubstr("Z was interrupted, and 2 tracks and 2 files can be put back: songsweep "
                                    "restore" +
                                    which +
                                    ", or it can be finished (no file is left to go to the Trash): songsweep "
                                    "finish" +
                                    which + "\n")));
    {
        const auto lock = CleanupLock::acquire(m_library, {"a window"});
        EXPECT_EQ(run(find).errors, "") << "it may be at it still";
    }
    ASSERT_EQ(restore({"--yes"}).exitCode, 0);
    EXPECT_EQ(run(find).errors, "");
}

TEST_F(Restore, OfADeletionThatWasKilledBeforeItDidAnythingIsNotOffered) {
    const std::string name = deleteNothing();
    const std::vector<std::string> find = {"find", "--library", m_library};
    EXPECT_THAT(run(find).errors,
                HasSubstr("Z was interrupted, and nothing of it is left to put back; it can be finished (no "
                          "file is left to go to the Trash): songsweep finish --library \"" +
                          m_library + "\" --cleanup \"" + name + "\" --dry-run\n"));
    EXPECT_EQ(run({"finish", "--library", m_library, "--yes"}).exitCode, 1) << "its tracks stay";
    EXPECT_EQ(library(), m_whole);
    EXPECT_EQ(run(find).errors, "");
}

TEST_F(Restore, IsOfferedAgainWhereItWasKilledItself) {
    const std::string name = deleteTracks();
    const std::vector<std::string> find = {"find", "--library", m_library};
    EXPECT_EQ(run(find).errors, "") << "the deletion came to its end";
    const std::string deleted = library();
    const json result = json::parse(restore({"--yes", "--format", "json"}).output);
    const std::string record = fs::path(result.at("record").get<std::string>()).filename();
    const std::string text = m_folder.read(record);
    m_folder.write(record, text.substr(0, text.rfind('{'))); // without its end
    EXPECT_EQ(run(find).errors, "") << "nothing is left to put back";
    m_folder.write("Library.xml", deleted); // as if it had come no further
    EXPECT_THAT(run(find).errors,
                AllOf(HasSubstr("warning: the restore of 2"), HasSubstr("and 2 tracks can be put back: "),
                      HasSubstr("--cleanup \"" + name + "\" --dry-run\n")));
}

TEST_F(Restore, LeavesAFileThatWasBroughtBackByHand) {
    deleteTracks();
    fs::rename(path(inTrash(1)), path(fileName(1)));
    fs::remove(path("home/data/Trash/info/1.mp3.trashinfo"));
    const RunResult result = restore({"--yes"});
    EXPECT_EQ(result.exitCode, 0) << result.output;
    EXPECT_THAT(result.output, HasSubstr("was restored, its file is there already, "));
    expectAllBack();
}

TEST_F(Restore, HasTheTrashForgetAFileThatIsBack) {
    deleteTracks();
    fs::rename(path(inTrash(1)), path(fileName(1))); // as far as a restore came that was killed
    EXPECT_EQ(restore({"--yes"}).exitCode, 0);
    expectAllBack();
}

TEST_F(Restore, TwiceDoesNoHarm) {
    const std::string name = deleteTracks();
    ASSERT_EQ(restore({"--yes"}).exitCode, 0);
    const auto before = tree();
    const RunResult again = restore({"--yes"});
    EXPECT_EQ(again.exitCode, 1);
    EXPECT_EQ(again.errors, "songsweep: " + m_library +
                                ": there is no clean-up that could be restored; --list shows all\n");
    EXPECT_EQ(restore({"--yes", "--cleanup", name}).exitCode, 0) << "all is there already";
    EXPECT_EQ(tree(), before);
}

TEST_F(Restore, StopsAfterTheFileInHandAndGoesOnTheNextTime) {
    const std::string record = path(deleteTracks() + ".jsonl");
    const auto desktop = nativeDesktop();
    const std::string deleted = library();
    for (const int calls : {1, 3}) { // before the library, and before the second file
        CleanupRestore restore(m_library, RecordedCleanup::read(record).value(), desktop->trash());
        int call = 0;
        const auto report = restore.carryOut(
            {.program = "a test", .purpose = "a test", .isCancelled = [&] { return ++call == calls; }});
        ASSERT_TRUE(report) << report.error().message;
        EXPECT_EQ(report.value().end, RestoreReport::End::cancelled);
        if (calls == 1) {
            EXPECT_EQ(report.value().backup + report.value().record, "") << "nothing was done";
        } else {
            EXPECT_EQ(RecordedCleanup::read(report.value().record).value().end->how,
                      RecordEnd::How::cancelled);
        }
        EXPECT_EQ(library(), calls == 1 ? deleted : m_whole);
        EXPECT_EQ(fs::exists(path(fileName(1))), calls == 3);
        EXPECT_FALSE(fs::exists(path(fileName(3))));
        EXPECT_EQ(report.value().tracks.at(1).file, RestoredTrack::File::notAttempted);
    }
    EXPECT_EQ(restore({"--yes"}).exitCode, 0);
    expectAllBack();
}

TEST_F(Restore, BringsTheFilesOfAKilledRestore) {
    deleteTracks();
    m_folder.write("Library.xml", m_whole); // as far as it came
    EXPECT_EQ(restore({"--yes"}).exitCode, 0);
    expectAllBack();
}

TEST_F(Restore, ListsTheCleanUpsOfALibrary) {
    EXPECT_EQ(restore({"--list"}).output, "0 clean-ups\n");
    const std::string name = deleteTracks();
    EXPECT_THAT(restore({"--list"}).output,
                AllOf(StartsWith("Date "), HasSubstr("Z       2      2  0.1 MB  complete  " + name + "\n"),
                      HasSubstr("\n1 clean-up\n")));
    const json before = json::parse(restore({"--list", "--format", "json"}).output).at("cleanups").at(0);
    EXPECT_EQ(before.at("tracks"), 2);
    EXPECT_EQ(before.at("files"), 2);
    EXPECT_EQ(before.at("bytes"), 14);
    EXPECT_EQ(before.at("backup"), newestBackup());
    ASSERT_EQ(restore({"--yes"}).exitCode, 0);
    EXPECT_THAT(restore({"--list", "--format", "csv"}).output,
                AllOf(StartsWith("name,date,tracks,files,bytes,state,backup,record\r\n" + name + ","),
                      HasSubstr("Z,2,2,14,restored," + newestBackup() + ",")));
}

TEST_F(Restore, TakesTheNewestOrTheOneThatIsNamed) {
    const std::string first = deleteTracks();
    ASSERT_EQ(restore({"--yes"}).exitCode, 0);
    const std::string second = deleteTracks();
    ASSERT_NE(first, second);
    for (const std::string& name : {first, first + ".jsonl", path(first + ".xml")}) {
        const RunResult named = restore({"--dry-run", "--cleanup", name});
        EXPECT_THAT(named.output, HasSubstr("tracks of \"" + first + "\"")) << named.errors;
    }
    EXPECT_THAT(restore({"--dry-run"}).output, HasSubstr("tracks of \"" + second + "\""));
    const RunResult unknown = restore({"--yes", "--cleanup", "yesterday"});
    EXPECT_EQ(unknown.exitCode, 1);
    EXPECT_THAT(unknown.errors, HasSubstr("there is no clean-up 'yesterday'"));
}

TEST_F(Restore, WaitsForNobodyWhoHoldsTheLibrary) {
    deleteTracks();
    const auto before = library();
    const auto lock = CleanupLock::acquire(m_library, {"a window"});
    ASSERT_TRUE(lock);
    const RunResult result = restore({"--yes"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.errors, HasSubstr("(a window, process "));
    EXPECT_EQ(library(), before);
    EXPECT_TRUE(fs::exists(path(inTrash(1))));
}

TEST_F(Restore, NeedsItsBackup) {
    deleteTracks();
    fs::remove(newestBackup());
    EXPECT_THAT(restore({"--list"}).output, HasSubstr("backup missing"));
    EXPECT_THAT(restore({"--yes"}).errors, HasSubstr("cannot open "));
    EXPECT_TRUE(fs::exists(path(inTrash(1))));
}

TEST_F(Restore, RefusesWhatIsNoTask) {
    for (const std::vector<std::string>& options :
         std::vector<std::vector<std::string>>{{},
                                               {"--list", "--yes"},
                                               {"--list", "--dry-run"},
                                               {"--list", "--cleanup", "x"},
                                               {"--list", "--leave-lost"},
                                               {"--dry-run", "--yes"},
                                               {"--yes", "--format", "yaml"},
                                               {"--list", "--log", m_library}})
        EXPECT_EQ(restore(options).exitCode, 2) << ::testing::PrintToString(options);
    EXPECT_EQ(run({"restore", "--list"}).exitCode, 2);
    EXPECT_EQ(library(), m_whole);
}

} // namespace
} // namespace songsweep
