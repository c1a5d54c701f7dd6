// SPDX-License-Identifier: MIT
#include "TwoGroups.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sys/stat.h>
#include <unistd.h>

#include <map>

namespace songsweep {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using test::libraryText;
using test::RunResult;
using test::SampleTrack;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

class MarkAndDelete : public test::TwoGroups {};

TEST_F(MarkAndDelete, MarksWhatARuleLosesAndSaysWhy) {
    const auto before = tree();
    const RunResult result = command("mark", {"--rule", "highest-bitrate", "--format", "json"});
    ASSERT_EQ(result.exitCode, 0) << result.errors;
    std::vector<std::string> marked;
    const json parsed = json::parse(result.output);
    for (const json& group : parsed.at("groups"))
        for (const json& track : group.at("tracks")) {
            EXPECT_EQ(track.at("checkbox").get<bool>(), !track.at("reason").get<std::string>().empty());
            if (track.at("checkbox")) marked.push_back(track.at("trackid"));
        }
    EXPECT_THAT(marked, ElementsAre("1", "3"));
    EXPECT_EQ(tree(), before) << "nothing is changed";
}

TEST_F(MarkAndDelete, NamesTheBackupTheRecordAndEachFileInTheTrash) {
    const std::vector<std::string> options = {"--rule", "highest-bitrate", "--files", "--yes"};
    auto withFormat = options;
    withFormat.insert(withFormat.end(), {"--format", "json"});
    const std::string before = m_folder.read("Library.xml");
    const json parsed = json::parse(command("delete", withFormat).output);
    const std::string backup = parsed.at("backup");
    EXPECT_EQ(m_folder.read(fs::path(backup).filename().string()), before);
    EXPECT_TRUE(fs::exists(parsed.at("record").get<std::string>()));
    for (const json& outcome : parsed.at("outcomes"))
        EXPECT_TRUE(fs::exists(outcome.at("trash").get<std::string>())) << outcome;

    m_folder.write("Library.xml", before);
    for (const int id : {1, 3})
        m_folder.write("music/" + std::to_string(id) + ".mp3", "music");
    const std::string text = command("delete", options).output;
    EXPECT_THAT(text, HasSubstr("music/1.mp3, in the Trash as 1.2.mp3\n"));
    EXPECT_THAT(text, HasSubstr("\nBackup: " + path("Library (")));
    EXPECT_THAT(text, HasSubstr("\nRecord: " + path("Library (")));

    m_folder.write("Library.xml", before);
    m_folder.write("music/1.mp3", "music");
    withFormat.back() = "csv";
    const std::string csv = command("delete", withFormat).output;
    for (const std::string& told : {path("home/data/Trash/files/1.3.mp3,"),
                                    path("Library (before deletions of"), std::string(".jsonl")})
        EXPECT_THAT(csv, HasSubstr(told));
}

TEST_F(MarkAndDelete, DeletesNothingWhereTheLibraryCannotBeWritten) {
    fs::create_directory(path("closed"));
    fs::rename(m_library, path("closed/Library.xml"));
    m_library = path("closed/Library.xml");
    for (const char* folder : {"", "music"})
        fs::permissions(path(folder), fs::perms::all);
    fs::permissions(path("closed"), fs::perms(0555));
    // Root writes anywhere.
    if (::geteuid() == 0) m_beforeStart = [] { static_cast<void>(::setuid(65534)); };
    const auto before = tree();
    const RunResult result =
        command("delete", {"--rule", "highest-bitrate", "--files", "--yes", "--format", "json"});
    EXPECT_EQ(tree(), before);
    EXPECT_EQ(result.exitCode, 1) << result.errors;
    EXPECT_THAT(result.errors, HasSubstr("Permission denied"));
    int outcomes = 0;
    const json parsed = json::parse(result.output);
    for (const json& outcome : parsed.at("outcomes")) {
        EXPECT_EQ(outcome.at("track"), "not attempted");
        ++outcomes;
    }
    EXPECT_EQ(outcomes, 2);
}

TEST_F(MarkAndDelete, MarksEveryCopyButOne) {
    const RunResult result =
        command("mark", {"--rule", "highest-bitrate", "--except-one", "--format", "json"});
    int marked = 0;
    const json parsed = json::parse(result.output);
    for (const json& group : parsed.at("groups"))
        for (const json& track : group.at("tracks"))
            marked += track.at("checkbox").get<bool>() ? 1 : 0;
    EXPECT_EQ(marked, 3);
}

TEST_F(MarkAndDelete, CountsTheMarksInTheSummary) {
    EXPECT_THAT(command("mark", {"--rule", "highest-bitrate"}).output,
                HasSubstr("5 songs in 2 groups, 2 marked\n"));
}

TEST_F(MarkAndDelete, KnowsEveryRule) {
    for (const char* rule : {"highest-bitrate", "lowest-bitrate", "longest", "shortest", "largest",
                             "smallest", "earliest-added", "latest-added", "with-artwork", "without-artwork",
                             "highest-rating", "lowest-rating", "most-played", "least-played"})
        EXPECT_EQ(command("mark", {"--rule", rule}).exitCode, 0) << rule;
    EXPECT_THAT(command("mark", {"--rule", "kind", "--kind", "MP3"}).output, HasSubstr("5 marked"));
    EXPECT_THAT(command("mark", {"--rule", "folder", "--folder", path("music")}).output,
                HasSubstr("5 marked"));
}

TEST_F(MarkAndDelete, MarksNothingByARuleThatMatchesNoTrack) {
    const auto before = tree();
    const std::string elsewhere = path("elsewhere");
    for (const std::string name : {"mark", "delete"}) {
        const auto marked = [&](std::vector<std::string> rule) {
            if (name == "delete") rule.emplace_back("--yes");
            return command(name, rule);
        };
        const RunResult folder = marked({"--rule", "folder", "--folder", elsewhere, "--except-one"});
        EXPECT_EQ(folder.exitCode, 2) << name;
        EXPECT_THAT(folder.errors, HasSubstr("no track of these groups is in " + elsewhere + "\n"));
        EXPECT_EQ(folder.output, "");
        const RunResult kind = marked({"--rule", "kind", "--kind", "ogg", "--except-one"});
        EXPECT_EQ(kind.exitCode, 2) << name;
        EXPECT_THAT(kind.errors, HasSubstr("no track of these groups is of the kind OGG\n"));
    }
    EXPECT_EQ(tree(), before);
}

TEST_F(MarkAndDelete, KnowsAKindHoweverItIsWritten) {
    for (const char* kind : {"mp3", ".mp3", "MP3", ".Mp3"})
        EXPECT_THAT(command("mark", {"--rule", "kind", "--kind", kind}).output, HasSubstr("5 marked"))
            << kind;
}

TEST_F(MarkAndDelete, KnowsAFolderByItsPlaceHere) {
    EXPECT_THAT(command("mark", {"--rule", "folder", "--folder", path("music/")}).output,
                HasSubstr("5 marked"));
    fs::rename(path("music"), path("moved"));
    const std::string map = path("music") + "=" + path("moved");
    EXPECT_THAT(command("mark", {"--map", map, "--rule", "folder", "--folder", path("moved/")}).output,
                HasSubstr("5 marked"));
}

TEST_F(MarkAndDelete, FindsNothingToMarkWithoutComplaint) {
    m_library = m_folder.write("Library.xml", libraryText(tracks({1, 4})));
    EXPECT_EQ(command("mark", {"--rule", "kind", "--kind", "OGG"}).exitCode, 0);
}

TEST_F(MarkAndDelete, ForetellsADeletionAndTouchesNothing) {
    const auto before = tree();
    const RunResult result = command("delete", {"--rule", "highest-bitrate", "--files", "--dry-run"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_THAT(result.output, HasSubstr("Would delete 2 of 2 tracks"));
    EXPECT_THAT(result.output, HasSubstr(path("music/1.mp3")));
    EXPECT_EQ(tree(), before);
}

TEST_F(MarkAndDelete, DeletesTheMarkedTracksFromTheLibrary) {
    const RunResult result = command("delete", {"--rule", "highest-bitrate", "--yes"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_THAT(result.output, HasSubstr("Deleted 2 of 2 tracks"));
    EXPECT_EQ(m_folder.read("Library.xml"), libraryText(tracks({2, 4, 5})));
    for (int id = 1; id <= 5; ++id)
        EXPECT_TRUE(hasFile(id)) << id;
}

TEST_F(MarkAndDelete, DeletesNothingWhoseOutcomeCannotBeTold) {
    const auto before = tree();
    const RunResult result = command(
        "delete", {"--rule", "highest-bitrate", "--files", "--yes", "--output", path("missing/result")});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.errors, HasSubstr(path("missing/result")));
    EXPECT_EQ(tree(), before);
}

TEST_F(MarkAndDelete, MovesTheFilesToTheTrashWhenAsked) {
    const RunResult result = command("delete", {"--rule", "highest-bitrate", "--files", "--yes"});
    EXPECT_EQ(result.exitCode, 0) << result.errors << result.output;
    EXPECT_FALSE(hasFile(1));
    EXPECT_TRUE(hasFile(2));
    EXPECT_FALSE(hasFile(3));
    EXPECT_EQ(m_folder.read("home/data/Trash/files/1.mp3"), "music");
    EXPECT_EQ(m_folder.read("home/data/Trash/files/3.mp3"), "music");
}

TEST_F(MarkAndDelete, KeepsABackupOfTheLibrary) {
    const std::string before = m_folder.read("Library.xml");
    ASSERT_EQ(command("delete", {"--rule", "highest-bitrate", "--yes"}).exitCode, 0);
    int backups = 0;
    for (const auto& entry : fs::directory_iterator(m_folder.path()))
        if (entry.path() != m_library && entry.is_regular_file())
            backups += m_folder.read(entry.path().filename().string()) == before ? 1 : 0;
    EXPECT_EQ(backups, 1);
}

TEST_F(MarkAndDelete, RefusesToDeleteEveryCopyOfASong) {
    const auto before = tree();
    const std::vector<std::string> everything = {"--rule", "kind", "--kind", "MP3", "--yes"};
    const RunResult refused = command("delete", everything);
    EXPECT_EQ(refused.exitCode, 1);
    EXPECT_THAT(refused.errors, HasSubstr("--allow-all-copies"));
    EXPECT_EQ(tree(), before);

    std::vector<std::string> allowed = everything;
    allowed.emplace_back("--allow-all-copies");
    EXPECT_EQ(command("delete", allowed).exitCode, 0);
    EXPECT_EQ(m_folder.read("Library.xml"),
              libraryText({}, {{.name = "Library", .items = {}, .master = true}}));
}

TEST_F(MarkAndDelete, RefusesToTrashFilesWhoseOtherCopiesAreBroken) {
    m_folder.write("music/2.mp3", ""); // the one to keep
    const auto before = tree();
    for (const char* const end : {"--yes", "--dry-run"}) {
        const RunResult refused = command("delete", {"--rule", "highest-bitrate", "--files", end});
        EXPECT_EQ(refused.exitCode, 1) << end;
        EXPECT_THAT(refused.errors, HasSubstr("no copy of 1 song would be left; nothing was deleted")) << end;
        EXPECT_EQ(refused.output, "") << end;
    }
    EXPECT_EQ(tree(), before);
    EXPECT_EQ(
        command("delete", {"--rule", "highest-bitrate", "--files", "--yes", "--allow-all-copies"}).exitCode,
        0);
    EXPECT_FALSE(hasFile(1));
}

TEST_F(MarkAndDelete, LeavesFilesWhoseOtherCopiesAreBrokenWhereTracksGoAlone) {
    m_folder.write("music/2.mp3", "");
    EXPECT_EQ(command("delete", {"--rule", "highest-bitrate", "--yes"}).exitCode, 0);
    EXPECT_EQ(m_folder.read("Library.xml"), libraryText(tracks({2, 4, 5})));
    EXPECT_TRUE(hasFile(1));
}

TEST_F(MarkAndDelete, TakesAlongNoTrackThatSharesAPersistentId) {
    std::string text = m_folder.read("Library.xml");
    const std::string id = "0000000000000002";
    text.replace(text.find(id), id.size(), "0000000000000001"); // track 2 stays, 1 is marked
    m_folder.write("Library.xml", text);
    for (const char* const end : {"--dry-run", "--yes"}) {
        const RunResult result = command("delete", {"--rule", "highest-bitrate", "--files", end});
        EXPECT_EQ(result.exitCode, 1) << result.errors;
        EXPECT_THAT(result.output, HasSubstr("“A” by X, which is not marked, has its persistent ID, too"));
        EXPECT_THAT(result.output, HasSubstr("elete"));
        EXPECT_THAT(result.output, HasSubstr(" 1 of 2 tracks"));
    }
    EXPECT_TRUE(hasFile(1));
    EXPECT_TRUE(hasFile(2));
    EXPECT_FALSE(hasFile(3));
    for (const char* const track : {"\t\t<key>1</key>\n", "\t\t<key>2</key>\n"})
        EXPECT_THAT(m_folder.read("Library.xml"), HasSubstr(track));
}

TEST_F(MarkAndDelete, FailsWhereAFileWasKept) {
    fs::create_directories(path("home/data"));
    m_folder.write("home/data/Trash", "in the way of the Trash");
    const RunResult result = command("delete", {"--rule", "highest-bitrate", "--files", "--yes"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.output, HasSubstr("file kept: "));
    EXPECT_THAT(result.output, Not(HasSubstr("column"))) << "a place in a text that nobody knows";
    EXPECT_TRUE(hasFile(1));
    EXPECT_TRUE(hasFile(3));
}

TEST_F(MarkAndDelete, LeavesAFileThatAStayingTrackUses) {
    std::vector<SampleTrack> shared = tracks({1, 2});
    shared[0].path = shared[1].path;
    m_library = m_folder.write("Library.xml", libraryText(shared));
    const RunResult result = command("delete", {"--rule", "highest-bitrate", "--files", "--yes"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_THAT(result.output, HasSubstr("file kept: a track that is not marked uses it too"));
    EXPECT_TRUE(hasFile(2));
}

TEST_F(MarkAndDelete, TrashesASharedFileWhenTold) {
    std::vector<SampleTrack> shared = tracks({1, 2});
    shared[0].path = shared[1].path;
    m_library = m_folder.write("Library.xml", libraryText(shared));
    EXPECT_EQ(command("delete", {"--rule", "highest-bitrate", "--files", "--shared-files", "--yes"}).exitCode,
              0);
    EXPECT_FALSE(hasFile(2));
}

TEST_F(MarkAndDelete, FindsTheGroupsGoneAfterwards) {
    ASSERT_EQ(command("delete", {"--rule", "highest-bitrate", "--except-one", "--yes"}).exitCode, 0);
    EXPECT_EQ(command("find", {}).output, "0 songs in 0 groups\n");
}

TEST_F(MarkAndDelete, TellsOutcomesInJsonAndCsv) {
    const json outcomes =
        json::parse(command("delete", {"--rule", "highest-bitrate", "--dry-run", "--format", "json"}).output);
    EXPECT_EQ(outcomes.at("outcomes").size(), 2U);
    EXPECT_EQ(outcomes.at("outcomes").at(0).at("pid"), "0000000000000001");
    EXPECT_THAT(command("delete", {"--rule", "highest-bitrate", "--dry-run", "--format", "csv"}).output,
                ::testing::StartsWith("pid,name,artist,location,track,file,reason,dealtwith,dryrun,trash,"
                                      "backup,record,mergedto,merged\r\n"));
}

} // namespace
} // namespace songsweep
