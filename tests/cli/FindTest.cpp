// SPDX-License-Identifier: MIT
#include "ProgramRun.h"
#include "SampleLibrary.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <sstream>

namespace songsweep {
namespace {

using nlohmann::ordered_json;
using test::libraryText;
using test::RunResult;
using test::SamplePlaylist;
using test::SampleTrack;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::StartsWith;

class Find : public test::ProgramTest {
  protected:
    Find() { m_library = m_folder.write("Library.xml", libraryText(sampleTracks(), samplePlaylists())); }

    std::vector<SampleTrack> sampleTracks() const {
        for (const char* file : {"song1.mp3", "song2.mp3", "other.mp3", "gone2.mp3"})
            m_folder.write(file, "x");
        return {{.id = 1,
                 .name = "Song",
                 .artist = "Artist",
                 .album = "One",
                 .milliseconds = 180'000,
                 .bitRate = 128,
                 .size = "5242880",
                 .rating = 90,
                 .plays = 7,
                 .added = "2009-03-14T15:09:26Z",
                 .path = path("song1.mp3")},
                {.id = 2,
                 .name = "song",
                 .artist = "ARTIST",
                 .album = "Two",
                 .milliseconds = 180'400,
                 .bitRate = 320,
                 .path = path("song2.mp3")},
                {.id = 3, .name = "Other", .artist = "Artist", .path = path("other.mp3")},
                {.id = 4,
                 .name = "Gone",
                 .artist = "Bj\u00f6rk",
                 .milliseconds = 60'000,
                 .path = path("gone1.mp3")},
                {.id = 5,
                 .name = "gone",
                 .artist = "BJ\u00d6RK",
                 .milliseconds = 60'000,
                 .path = path("gone2.mp3")},
                {.id = 6, .name = "Gone", .artist = "Bj\u00f6rk", .milliseconds = 60'000, .type = "URL"}};
    }
    static std::vector<SamplePlaylist> samplePlaylists() {
        return {{.name = "Mediathek", .items = {1, 2, 3, 4, 5, 6}, .master = true},
                {.name = "Few", .items = {1, 2, 3}},
                {.name = "few", .items = {4, 5}}};
    }

    RunResult find(std::vector<std::string> options) {
        options.insert(options.begin(), {"find", "--library", m_library});
        return run(options);
    }
    static void expectRights(const std::string& path, uid_t user, gid_t group, mode_t mode) {
        struct stat status = {};
        ASSERT_EQ(::stat(path.c_str(), &status), 0);
        EXPECT_EQ(status.st_uid, user);
        EXPECT_EQ(status.st_gid, group);
        EXPECT_EQ(status.st_mode & 07777U, mode);
    }
    ordered_json json(std::vector<std::string> options) {
        options.insert(options.end(), {"--format", "json"});
        const RunResult result = find(options);
        EXPECT_EQ(result.exitCode, 0) << result.errors;
        EXPECT_EQ(result.errors, "");
        return ordered_json::parse(result.output, nullptr, false);
    }
    /// The names of every group's tracks.
    static std::vector<std::vector<std::string>> namesOf(const ordered_json& result) {
        std::vector<std::vector<std::string>> groups;
        for (const ordered_json& group : result.at("groups")) {
            groups.emplace_back();
            for (const ordered_json& track : group.at("tracks"))
                groups.back().push_back(track.at("name"));
        }
        return groups;
    }

    std::string m_library;
};

TEST_F(Find, PrintsGroupsAsATableWithASummary) {
    const RunResult result = find({});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_THAT(result.output, HasSubstr("4 songs in 2 groups, 1 file missing\n"));
    EXPECT_THAT(result.output, HasSubstr("Bj\u00f6rk"));
    EXPECT_THAT(result.output, ::testing::Not(HasSubstr("Other")));
}

TEST_F(Find, AlignsTheColumnsOfTheTable) {
    std::istringstream lines(find({}).output);
    std::vector<std::string> artistLines;
    for (std::string line; std::getline(lines, line);)
        if (line.find("Song  ") != std::string::npos || line.find("song  ") != std::string::npos)
            artistLines.push_back(line);
    ASSERT_EQ(artistLines.size(), 2U);
    EXPECT_EQ(artistLines[0].find("Artist"), artistLines[1].find("ARTIST"));
    EXPECT_EQ(artistLines[0].find("128"), artistLines[1].find("320"));
}

TEST_F(Find, GivesExactlyTheKeysOfARecordInJson) {
    const ordered_json result = json({});
    std::vector<std::string> outer;
    for (const auto& item : result.items())
        outer.push_back(item.key());
    EXPECT_THAT(outer, ElementsAre("tracks", "listed", "songs", "groups"));
    EXPECT_EQ(result.at("tracks"), 6);
    EXPECT_EQ(result.at("listed"), 5);
    EXPECT_EQ(result.at("songs"), 4);

    const ordered_json& group = result.at("groups").at(1);
    EXPECT_EQ(group.size(), 2U);
    EXPECT_EQ(group.at("gid"), 2);
    ordered_json track = group.at("tracks").at(0);
    const std::string dateadded = track.at("dateadded");
    EXPECT_THAT(dateadded, HasSubstr("9")) << "the year in the locale's short style";
    track.erase("dateadded");
    const ordered_json expected = {{"checkbox", false},
                                   {"name", "Song"},
                                   {"artist", "Artist"},
                                   {"album", "One"},
                                   {"timev", 180},
                                   {"time", "3:00"},
                                   {"bitrate", "128"},
                                   {"size", "5242880"},
                                   {"sizestring", "5.1 MB"},
                                   {"rating", 4},
                                   {"pid", "0000000000000001"},
                                   {"gid", 2},
                                   {"showid", "0"},
                                   {"playcount", 7},
                                   {"location", path("song1.mp3")},
                                   {"dateaddedv", 1237043366},
                                   {"hasartwork", false},
                                   {"isfile", true},
                                   {"isdead", false},
                                   {"trackid", "1"},
                                   {"playlists", {"Few"}}};
    EXPECT_EQ(track, expected) << track.dump(1);
}

TEST_F(Find, KeepsTheFirstValuesOfWhatTheLibraryLacks) {
    const ordered_json track = json({}).at("groups").at(1).at("tracks").at(1);
    EXPECT_EQ(track.at("size"), "");
    EXPECT_EQ(track.at("sizestring"), "");
    EXPECT_EQ(track.at("rating"), 0);
    EXPECT_EQ(track.at("playcount"), 0);
    EXPECT_EQ(track.at("dateaddedv"), 0);
    EXPECT_EQ(track.at("dateadded"), "");
}

TEST_F(Find, GroupsWithoutRegardToCase) {
    EXPECT_THAT(namesOf(json({})), ElementsAre(ElementsAre("Gone", "gone"), ElementsAre("Song", "song")));
}

TEST_F(Find, FlagsMissingFilesOrLeavesThemOut) {
    EXPECT_EQ(json({}).at("groups").at(0).at("tracks").at(0).at("isdead"), true);
    const ordered_json result = json({"--ignore-missing"});
    EXPECT_EQ(result.at("listed"), 4);
    EXPECT_THAT(namesOf(result), ElementsAre(ElementsAre("Song", "song")));
}

TEST_F(Find, SearchesThePlaylistThatIsNamed) {
    EXPECT_THAT(namesOf(json({"--playlist", "Few"})), ElementsAre(ElementsAre("Song", "song")));
}

TEST_F(Find, TakesTheFirstOfTwoPlaylistsOfOneNameWhateverItsCase) {
    EXPECT_THAT(namesOf(json({"--playlist", "FEW"})), ElementsAre(ElementsAre("Song", "song")));
}

TEST_F(Find, RefusesASearchThatWasNotLimitedToItsPlaylist) {
    const std::vector<test::SampleTrack> tracks = {{.id = 1, .name = "A", .artist = "X"},
                                                   {.id = 2, .name = "A", .artist = "X"}};
    const std::string library = m_folder.write(
        "Quotes.xml", test::libraryText(tracks, {{"Lib\"rary", {1, 2}, true}, {"Par\"ty", {1}, false}}));
    const auto find = [&](const std::string& playlist) {
        return run({"find", "--library", library, "--itunes-version", "9.0", "--playlist", playlist});
    };
    const test::RunResult missed = find("Par\"ty");
    EXPECT_EQ(missed.exitCode, 1);
    EXPECT_EQ(missed.output, "");
    EXPECT_NE(missed.errors.find("could not be limited to the playlist 'Par\"ty'"), std::string::npos)
        << missed.errors;
    EXPECT_EQ(find("Lib\"rary").exitCode, 0);
}

TEST_F(Find, ComparesTheFieldsThatAreNamed) {
    EXPECT_EQ(json({"--same", "name,artist,album"}).at("songs"), 2);
    EXPECT_EQ(json({"--same", "artist"}).at("songs"), 5);
    EXPECT_EQ(json({"--same", "artist,time"}).at("songs"), 4) << "a track without a time has no duplicates";
}

TEST_F(Find, PutsAllTracksIntoOneGroupWhereNothingIsCompared) {
    const ordered_json result = json({"--same", "none"});
    EXPECT_EQ(result.at("groups").size(), 1U);
    EXPECT_EQ(result.at("songs"), 5);
}

TEST_F(Find, ListsNothingWhereThereAreNoPlaylists) {
    m_library = m_folder.write("Library.xml", libraryText(sampleTracks(), {}));
    const RunResult found = find({"--format", "json"});
    EXPECT_EQ(found.exitCode, 1);
    const ordered_json result = ordered_json::parse(found.output);
    EXPECT_EQ(result.at("tracks"), 6);
    EXPECT_EQ(result.at("listed"), 0);
    EXPECT_THAT(result.at("notes").at(0), HasSubstr("0 of 6 tracks were searched"));
    EXPECT_EQ(result.at("groups"), ordered_json::array());
}

TEST_F(Find, SaysThatThereAreNoDuplicates) {
    m_library = m_folder.write("Library.xml", libraryText({}));
    const RunResult result = find({});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, "0 songs in 0 groups\n");
}

TEST_F(Find, WritesOneCsvRowATrack) {
    const RunResult result = find({"--format", "csv"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_THAT(
        result.output,
        ::testing::StartsWith("checkbox,name,artist,album,timev,time,bitrate,size,sizestring,rating,pid,gid,"
                              "showid,playcount,location,dateaddedv,dateadded,hasartwork,isfile,isdead,"
                              "trackid\r\n"));
    EXPECT_EQ(std::count(result.output.begin(), result.output.end(), '\n'), 5);
}

TEST_F(Find, QuotesCsvFieldsThatNeedIt) {
    const std::string name = "One, \"two\"\n& <three>";
    m_library = m_folder.write("Library.xml",
                               libraryText({{.id = 1, .name = name, .artist = "A", .milliseconds = 1000},
                                            {.id = 2, .name = name, .artist = "A", .milliseconds = 1000}}));
    EXPECT_THAT(find({"--format", "csv"}).output, HasSubstr(",\"One, \"\"two\"\"\n& <three>\",A,"));
}

TEST_F(Find, WritesTheResultToAFile) {
    const RunResult result = find({"--format", "json", "--output", path("result.json")});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(ordered_json::parse(m_folder.read("result.json")), json({}));
}

TEST_F(Find, ReplacesAFormerResultAsAWhole) {
    m_folder.write("result", "old");
    ASSERT_EQ(find({"--output", path("result")}).exitCode, 0);
    EXPECT_EQ(m_folder.read("result"), find({}).output);
    for (const auto& entry : std::filesystem::directory_iterator(m_folder.path()))
        EXPECT_FALSE(entry.path().filename().string().starts_with("result.")) << entry.path();
}

TEST_F(Find, KeepsALinkAndTheModeOfWhatItReplaces) {
    m_folder.write("far/result", "old");
    std::filesystem::permissions(path("far/result"), std::filesystem::perms(0640));
    std::filesystem::create_symlink("far/result", path("link"));
    ASSERT_EQ(find({"--output", path("link")}).exitCode, 0);
    EXPECT_TRUE(std::filesystem::is_symlink(path("link")));
    EXPECT_EQ(m_folder.read("far/result"), find({}).output);
    EXPECT_EQ(std::filesystem::status(path("far/result")).permissions(), std::filesystem::perms(0640));
}

TEST_F(Find, WritesOnWhereItsOwnDescriptorsLead) {
    const std::string file = path("all");
    const RunResult result = runInShell("{ echo before; \"$0\" \"$@\"; echo after; } > '" + file + "'",
                                        {"find", "--library", m_library, "--output", "/dev/stdout"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_THAT(m_folder.read("all"), AllOf(StartsWith("before\nGroup"), EndsWith("\nafter\n")));
}

TEST_F(Find, WritesWhereALinkLeadsThatLedNowhere) {
    std::filesystem::create_symlink("new", path("link"));
    ASSERT_EQ(find({"--output", path("link")}).exitCode, 0);
    EXPECT_TRUE(std::filesystem::is_symlink(path("link")));
    EXPECT_EQ(m_folder.read("new"), find({}).output);
}

TEST_F(Find, KeepsTheOwnerAndTheModeOfWhatItReplaces) {
    if (::geteuid() != 0) GTEST_SKIP() << "no file can be given to another user";
    const std::string result = m_folder.write("result", "old");
    ASSERT_EQ(::chown(result.c_str(), 1234, 5678), 0);
    ASSERT_EQ(::chmod(result.c_str(), 0640), 0);
    ASSERT_EQ(find({"--output", result}).exitCode, 0);
    EXPECT_EQ(m_folder.read("result"), find({}).output);
    expectRights(result, 1234, 5678, 0640);
}

TEST_F(Find, ReplacesTheContentsOfAFileWhoseOwnerItCannotGive) {
    if (::geteuid() != 0) GTEST_SKIP() << "no file can be another user's";
    const std::string expected = find({}).output;
    const std::string result = m_folder.write("result", std::string(1'000'000, 'o'));
    ASSERT_EQ(::chmod(result.c_str(), 0666), 0);
    ASSERT_EQ(::chmod(m_folder.path().c_str(), 0777), 0);
    m_beforeStart = [] { static_cast<void>(::setuid(65534)); };
    ASSERT_EQ(find({"--output", result}).exitCode, 0);
    EXPECT_EQ(m_folder.read("result"), expected);
    expectRights(result, 0, 0, 0666);
    for (const auto& entry : std::filesystem::directory_iterator(m_folder.path()))
        EXPECT_FALSE(entry.path().filename().string().starts_with("result.")) << entry.path();
    ASSERT_EQ(::chmod(result.c_str(), 0644), 0);
    EXPECT_EQ(find({"--output", result}).exitCode, 1) << "a file of another user is not replaced";
    EXPECT_EQ(m_folder.read("result"), expected);
}

TEST_F(Find, ComparesWhatTheDialogDoes) {
    EXPECT_EQ(find({}).output, find({"--same", "name,artist,time"}).output);
}

TEST_F(Find, WritesTheLogToTheFileThatIsNamed) {
    ASSERT_EQ(find({"--log", path("log")}).exitCode, 0);
    const std::string log = m_folder.read("log");
    for (const char* line :
         {"XML Parsing\n", "Begin Parse XML\n", "End Parse XML\n", "Handler : addFinish\n"})
        EXPECT_THAT(log, HasSubstr(line));
}

TEST_F(Find, NeverTouchesTheLogInTheDocumentsFolder) {
    m_folder.write("home/Documents/songsweep-log.txt", "kept");
    ASSERT_EQ(find({}).exitCode, 0);
    EXPECT_EQ(m_folder.read("home/Documents/songsweep-log.txt"), "kept");
}

TEST_F(Find, LooksForFilesWhereAMapPoints) {
    m_folder.write("here/a.mp3", "x");
    m_library = m_folder.write(
        "Library.xml",
        libraryText(
            {{.id = 1, .name = "A", .artist = "B", .milliseconds = 1000, .path = "/C:/Music/a.mp3"},
             {.id = 2, .name = "A", .artist = "B", .milliseconds = 1000, .path = "/C:/Musical/a.mp3"}}));
    const ordered_json tracks = json({"--map", "/C:/Music=" + path("here")}).at("groups").at(0).at("tracks");
    EXPECT_EQ(tracks.at(0).at("isdead"), false);
    EXPECT_EQ(tracks.at(0).at("location"), "/C:/Music/a.mp3") << "records keep the original";
    EXPECT_EQ(tracks.at(1).at("isdead"), true);
}

TEST_F(Find, ReadsByScriptsWhereITunesIsOld) {
    const ordered_json result = json({"--itunes-version", "9.2.1"});
    EXPECT_EQ(result.at("songs"), 5) << "streams count too";
    const ordered_json track = result.at("groups").at(1).at("tracks").at(0);
    EXPECT_FALSE(track.contains("isfile"));
    EXPECT_FALSE(track.contains("trackid"));
    EXPECT_EQ(track.at("dateaddedv"), 1237043340) << "kept to the minute";
}

/// Qt cannot pass such names on, a shell can.
TEST_F(Find, ReadsNamesThatAreNotUtf8) {
    const std::string song = m_folder.write("caf\xe9.mp3", "x");
    const std::string library = m_folder.write(
        "Bj\xf6rk.xml",
        libraryText(
            {{.id = 1, .name = "A", .artist = "B", .milliseconds = 1000, .path = song},
             {.id = 2, .name = "A", .artist = "B", .milliseconds = 1000, .path = path("song1.mp3")}}));
    for (const std::string version : {"12.0", "9.2.1"}) {
        const std::string command = "'" + program() + "' find --library '" + library + "' --itunes-version " +
                                    version + " --format json --output '" + path("found.json") + "'";
        ASSERT_EQ(std::system(command.c_str()), 0);
        const ordered_json tracks =
            ordered_json::parse(m_folder.read("found.json")).at("groups").at(0).at("tracks");
        EXPECT_EQ(tracks.at(0).at("isdead"), false);
        EXPECT_EQ(tracks.at(0).at("locationurl"), "file://" + path("caf%E9.mp3"));
        EXPECT_EQ(tracks.at(0).at("location"), path("caf\uFFFD.mp3"));
        EXPECT_FALSE(tracks.at(1).contains("locationurl"));
    }
}

TEST_F(Find, LeavesTheLibraryAsItIs) {
    const std::string before = m_folder.read("Library.xml");
    ASSERT_EQ(find({}).exitCode, 0);
    EXPECT_EQ(m_folder.read("Library.xml"), before);
}

} // namespace
} // namespace songsweep
