// SPDX-License-Identifier: MIT
// Libraries that the library reader and iTunes read each in its own way.
#include "ProgramRun.h"
#include "SampleLibrary.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace songsweep {
namespace {

using nlohmann::json;
using test::libraryText;
using test::RunResult;
using test::SamplePlaylist;
using test::SampleTrack;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

void replace(std::string& text, const std::string& from, const std::string& to) {
    const std::size_t at = text.find(from);
    ASSERT_NE(at, std::string::npos) << from;
    text.replace(at, from.size(), to);
}

class OddLibrary : public test::ProgramTest {
  protected:
    /// Three tracks of which the first two are one song; a master playlist of all and one of the two.
    std::string text(const std::string& master = "Library", const std::string& other = "Party") const {
        return libraryText({track(1, "Song"), track(2, "Song"), track(3, "Other")},
                           {{master, {1, 2, 3}, true}, {other, {1, 2}}});
    }
    SampleTrack track(int id, const std::string& name) const {
        const std::string file = m_folder.write("song" + std::to_string(id) + ".mp3", "x");
        return {.id = id, .name = name, .artist = "Artist", .milliseconds = 180'000, .path = file};
    }

    RunResult runOn(const std::string& text, std::vector<std::string> arguments) {
        m_library = m_folder.write("Library.xml", text);
        arguments.insert(arguments.begin() + 1, {"--library", m_library});
        return run(arguments);
    }
    std::vector<std::string> foundIds(const std::string& text, std::vector<std::string> arguments = {}) {
        arguments.insert(arguments.begin(), {"find", "--format", "json"});
        const RunResult result = runOn(text, arguments);
        EXPECT_EQ(result.exitCode, 0) << result.errors;
        EXPECT_EQ(result.errors, "");
        std::vector<std::string> ids;
        const json found = json::parse(result.output);
        for (const json& group : found.at("groups"))
            for (const json& track : group.at("tracks"))
                ids.push_back(track.at("pid"));
        return ids;
    }

    std::string m_library;
};

/// The reader keeps what follows the comment, which is another track's ID.
TEST_F(OddLibrary, NeverLosesATrackThatWasNotListed) {
    std::string odd = text();
    replace(odd, "0000000000000002", "AB<!-- c -->0000000000000003");
    EXPECT_THAT(foundIds(odd), ElementsAre("0000000000000001", "AB0000000000000003"));
    EXPECT_EQ(runOn(odd, {"delete", "--rule", "kind", "--kind", "mp3", "--except-one", "--yes"}).exitCode, 0);
    const std::string left = m_folder.read("Library.xml");
    EXPECT_THAT(left, HasSubstr("<string>Other</string>"));
    EXPECT_THAT(left, Not(HasSubstr("<!-- c -->")));
}

TEST_F(OddLibrary, TakesNoIdFromADictionaryInsideATrack) {
    std::string odd = text();
    replace(odd, "<key>Persistent ID</key><string>0000000000000002</string>",
            "<key>Persistent ID</key><string>0000000000000002</string><key>Inner</key>"
            "<dict><key>Persistent ID</key><string>0000000000000003</string></dict>");
    EXPECT_THAT(foundIds(odd), ElementsAre("0000000000000001", "0000000000000002"));
}

/// The order in which Python's plistlib writes, and other programs that sort keys.
TEST_F(OddLibrary, FindsTheDuplicatesWherePlaylistsComeBeforeTracks) {
    std::string odd = text();
    const std::size_t begin = odd.find("<key>Playlists</key>");
    const std::string playlists = odd.substr(begin, odd.find("</dict>\n</plist>") - begin);
    odd.erase(begin, playlists.size());
    odd.insert(odd.find("<key>Tracks</key>"), playlists);
    EXPECT_THAT(foundIds(odd), ElementsAre("0000000000000001", "0000000000000002"));
    EXPECT_THAT(foundIds(odd, {"--playlist", "Party"}), ElementsAre("0000000000000001", "0000000000000002"));
}

TEST_F(OddLibrary, KnowsPlaylistsWhoseNamesEndInABlank) {
    for (const std::vector<std::string>& playlist :
         {std::vector<std::string>(), {"--playlist", "party"}, {"--playlist", "Party "}})
        EXPECT_THAT(foundIds(text("Library ", "Party "), playlist),
                    ElementsAre("0000000000000001", "0000000000000002"));
}

TEST_F(OddLibrary, IsNeverCleanWhereNothingWasSearched) {
    std::string nameless = text();
    replace(nameless, "\t\t\t<key>Name</key><string>Library</string>\n", "");
    const std::string noPlaylists = libraryText({track(1, "Song"), track(2, "Song")}, {});
    for (const std::string& odd : {nameless, noPlaylists}) {
        const RunResult found = runOn(odd, {"find"});
        EXPECT_EQ(found.exitCode, 1);
        EXPECT_THAT(found.errors, HasSubstr("Library.xml: 0 of "));
        EXPECT_THAT(found.errors, HasSubstr(" tracks were searched: the library "));
        EXPECT_THAT(found.output, HasSubstr("0 songs in 0 groups\n0 of "));
        const json notes = json::parse(runOn(odd, {"find", "--format", "json"}).output).at("notes");
        EXPECT_THAT(notes.at(0), HasSubstr(" tracks were searched: the library "));
        EXPECT_EQ(runOn(odd, {"mark", "--rule", "longest"}).exitCode, 1);
        EXPECT_EQ(runOn(odd, {"delete", "--rule", "longest", "--dry-run"}).exitCode, 1);
    }
}

TEST_F(OddLibrary, IsNotClearedByAPlaylistOfTheLibrarysName) {
    const std::string odd =
        libraryText({track(1, "Song"), track(2, "Song")}, {{"Library", {1}}, {"Library", {1, 2}, true}});
    const RunResult found = runOn(odd, {"find"});
    EXPECT_EQ(found.exitCode, 1);
    EXPECT_THAT(found.errors, HasSubstr("1 of 2 tracks were searched: the first playlist named “Library” in "
                                        "the library file is not the library"));
}

TEST_F(OddLibrary, IsNotClearedByALibraryPlaylistThatLeavesTracksOut) {
    const std::vector<SampleTrack> tracks = {track(1, "Song"), track(2, "Song"), track(3, "Other")};
    const std::vector<std::pair<SamplePlaylist, std::string>> cases = {
        {{"Library", {1, 3}, true},
         "2 of 3 tracks were searched: the library's own playlist leaves out 1 track"},
        {{"Library", {}, true},
         "0 of 3 tracks were searched: the library's own playlist leaves out 3 tracks"},
        {{"Party", {1}}, "1 of 3 tracks were searched: the library's own playlist leaves out 2 tracks"}};
    for (const auto& [library, note] : cases) {
        const std::string odd = libraryText(tracks, {library});
        const RunResult found = runOn(odd, {"find"});
        EXPECT_EQ(found.exitCode, 1);
        EXPECT_THAT(found.errors, HasSubstr("Library.xml: " + note + "\n"));
        EXPECT_THAT(found.output, HasSubstr("0 songs in 0 groups\n" + note + "\n"));
        const RunResult asJson = runOn(odd, {"find", "--format", "json"});
        EXPECT_EQ(asJson.exitCode, 1);
        EXPECT_EQ(json::parse(asJson.output).at("notes"), json::array({note}));
        EXPECT_THAT(foundIds(odd, {"--itunes-version", "9.2.1"}),
                    ElementsAre("0000000000000001", "0000000000000002"));
    }
}

TEST_F(OddLibrary, IsClearedThoughTheLibraryListsNoStreams) {
    SampleTrack stream = track(2, "Song");
    stream.type = "URL";
    const std::string odd = libraryText({track(1, "Song"), stream}, {{"Library", {1}, true}});
    EXPECT_THAT(foundIds(odd), IsEmpty());
}

/// The reader takes the name in two pieces, none of which is it: as where it was renamed meanwhile.
TEST_F(OddLibrary, IsNotSearchedWhereAPlaylistThatWasGivenIsMissed) {
    std::string odd = text();
    replace(odd, "<string>Party</string>", "<string>Par<!-- c -->ty</string>");
    const RunResult found = runOn(odd, {"find", "--playlist", "Party"});
    EXPECT_EQ(found.exitCode, 1);
    EXPECT_EQ(found.output, "");
    EXPECT_THAT(found.errors, HasSubstr("the search could not be limited to the playlist 'Party'"));
    EXPECT_EQ(runOn(odd, {"find"}).exitCode, 0);
}

TEST_F(OddLibrary, TellsOfAnEmptyPlaylistWithoutAFailure) {
    const std::string empty = libraryText({track(1, "Song")}, {{"Library", {1}, true}, {"None", {}}});
    const RunResult found = runOn(empty, {"find", "--playlist", "None"});
    EXPECT_EQ(found.exitCode, 0);
    EXPECT_THAT(found.errors, HasSubstr("0 of 1 tracks were searched: the playlist “None” lists none"));
}

TEST_F(OddLibrary, LeavesOutABrokenTrackAndFails) {
    std::string broken = text();
    replace(broken, "<string>Other</string>", "<string>This & That</string>");
    for (const std::string command : {"find", "mark"}) {
        std::vector<std::string> arguments = {command, "--itunes-version", "9.2.1", "--format", "json"};
        if (command == "mark") arguments.insert(arguments.end(), {"--rule", "longest"});
        const RunResult found = runOn(broken, arguments);
        EXPECT_EQ(found.exitCode, 1);
        EXPECT_THAT(found.errors,
                    HasSubstr("1 track could not be read: the entry of track 3 is not well formed"));
        EXPECT_EQ(json::parse(found.output).at("songs"), 2);
    }
}

TEST_F(OddLibrary, IsSearchedInAPlaylistWhoseNameBreaksAScript) {
    for (const std::string name : {"Par\"ty", "Par\\ty"})
        EXPECT_THAT(foundIds(text("Library", name), {"--playlist", name}),
                    ElementsAre("0000000000000001", "0000000000000002"));
}

} // namespace
} // namespace songsweep
