// SPDX-License-Identifier: MIT
//
// What scripts ask of tracks and playlists, and change in them.
#include "hosts/EmbeddedScriptingFixture.h"
#include "platform/LocalTime.h"
#include "scripting/SourceNotation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace songsweep {
namespace {

using test::contentOf;
using test::libraryXml;
using testing::ElementsAre;
using testing::HasSubstr;
using LibraryScriptTest = test::EmbeddedScriptingFixture;

/// Three tracks, one of them twice in a playlist.
std::string smallLibrary() {
    return libraryXml(
        {{11, "A1", "<key>Name</key><string>One</string><key>Genre</key><string>Rock</string>"},
         {12, "A2", "<key>Name</key><string>Two</string><key>Year</key><integer>1999</integer>"},
         {13, "A3", "<key>Name</key><string>Three</string><key>Disabled</key><true/>"}},
        {{"Library", "<key>Master</key><true/>", {13, 11, 12}},
         {"Twice", "", {12, 11, 12}},
         {"Smart", "<key>Smart Info</key><data/>", {11}}});
}

std::string shown(const Descriptor& result) { return sourceNotation(result); }

TEST_F(LibraryScriptTest, KnowsWhatElseTheFileSaysOfATrack) {
    open(smallLibrary());
    const auto get = [&](const std::string& what) {
        return shown(run("tell application \"iTunes\" to get " + what));
    };
    EXPECT_EQ(get("{name, genre, year, enabled} of every track"),
              "{{\"Three\", \"One\", \"Two\"}, {\"\", \"Rock\", \"\"}, {0, 0, 1999}, {false, true, true}}");
    EXPECT_EQ(get("name of every track whose genre is \"rock\""), "{\"One\"}");
    EXPECT_EQ(get("name of every track whose enabled is false"), "{\"Three\"}");
    EXPECT_EQ(get("duration of track 1"), "missing value");
}

TEST_F(LibraryScriptTest, FindsATrackByItsDatabaseId) {
    open(smallLibrary());
    const auto get = [&](const std::string& what) {
        return shown(run("tell application \"iTunes\" to get " + what));
    };
    EXPECT_EQ(get("name of track id 12"), "\"Two\"");
    EXPECT_EQ(get("{id, database ID} of track \"Three\""), "{13, 13}");
    EXPECT_EQ(get("name of every track of playlist \"Twice\" whose database ID is 12"), "{\"Two\", \"Two\"}");
    EXPECT_EQ(get("name of every track whose id > 11 and id is not 12.0"), "{\"Three\"}");
    EXPECT_EQ(get("exists track id 14"), "false");
    EXPECT_EQ(get("track id 12"), "track id 12 of playlist 1 of application \"iTunes\"");
    run("tell application \"iTunes\" to delete track id 12");
    EXPECT_EQ(get("exists track id 12"), "false");
    EXPECT_EQ(get("name of track id 13"), "\"Three\"");
    EXPECT_THAT(failure("tell application \"iTunes\" to get playlist id 1"),
                HasSubstr("playlist 1 has no “id”"));
}

TEST_F(LibraryScriptTest, TheIndexOfATrackIsItsPlaceInItsPlaylist) {
    open(smallLibrary());
    const auto get = [&](const std::string& what) {
        return shown(run("tell application \"iTunes\" to get " + what));
    };
    EXPECT_EQ(get("index of every track"), "{1, 2, 3}");
    EXPECT_EQ(get("index of track id 12"), "3");
    EXPECT_EQ(get("index of every track of playlist \"Twice\""), "{1, 2, 3}");
    EXPECT_EQ(get("index of every track of playlist \"Twice\" whose persistent ID is \"A2\""), "{1, 3}");
    EXPECT_EQ(
        shown(run("tell application \"iTunes\" \nset t to track id 12 \ndelete track id 13 \nindex of t \n"
                  "end tell")),
        "2");
}

TEST_F(LibraryScriptTest, TheLibraryIsTheOnlySource) {
    open(smallLibrary());
    const auto get = [&](const std::string& what) {
        return shown(run("tell application \"iTunes\" to get " + what));
    };
    EXPECT_EQ(get("name of library playlist 1"), "\"Library\"");
    EXPECT_EQ(get("count of tracks of library playlist 1 of source 1"), "3");
    EXPECT_EQ(get("{name of source 1, count of sources}"), "{\"Library\", 1}");
    EXPECT_EQ(get("name of user playlist \"Twice\" of source \"Library\""), "\"Twice\"");
    EXPECT_EQ(get("exists library playlist 2"), "false");
    EXPECT_THAT(failure("tell application \"iTunes\" to get track 1 of source 1"),
                HasSubstr("there are no such elements"));
}

TEST_F(LibraryScriptTest, AnErrorNamesThePropertyThatAnObjectHasNot) {
    open(smallLibrary());
    EXPECT_THAT(failure("tell application \"iTunes\" to get genre of playlist 2"),
                HasSubstr("playlist 2 has no “genre”"));
    EXPECT_THAT(failure("tell application \"iTunes\" to get smart of track 1"),
                HasSubstr("track 1 of playlist 1 has no “smart”"));
    EXPECT_THAT(failure("tell application \"iTunes\" to get lyrics of track 1"), HasSubstr("“lyrics”"));
}

TEST_F(LibraryScriptTest, ATrackOfAPlaylistIsTakenOutOfItAndStaysInTheLibrary) {
    open(smallLibrary());
    const auto names = [&](const std::string& playlist) {
        return shown(
            run("tell application \"iTunes\" to get name of every track of playlist \"" + playlist + "\""));
    };
    run("tell application \"iTunes\" to delete track 1 of playlist \"Twice\"");
    EXPECT_EQ(names("Twice"), "{\"One\", \"Two\"}");
    EXPECT_EQ(names("Library"), "{\"Three\", \"One\", \"Two\"}");
    run("tell application \"iTunes\" to delete (every track of playlist \"Twice\" whose persistent ID is "
        "\"A2\")");
    EXPECT_EQ(names("Twice"), "{\"One\"}");
    EXPECT_EQ(m_scripts->pendingDeletions(), 0U);
    EXPECT_EQ(contentOf(m_path), smallLibrary());
    ASSERT_TRUE(m_scripts->flush());
    EXPECT_EQ(names("Twice"), "{\"One\"}");
    EXPECT_EQ(names("Library"), "{\"Three\", \"One\", \"Two\"}");
    EXPECT_THAT(m_log.lines(), ElementsAre("Library written : 0 tracks deleted, 2 changes"));
}

TEST_F(LibraryScriptTest, ATrackOfTheLibraryIsDeletedHoweverTheLibraryIsNamed) {
    for (const std::string track :
         {"track id 12", "track \"Two\" of playlist 1", "track 3 of library playlist 1",
          "track 3 of playlist \"Library\" of source 1", "(every track whose persistent ID is \"A2\")"}) {
        m_scripts.reset(); // It writes what is left to the file that comes next.
        open(smallLibrary());
        run("tell application \"iTunes\" to delete " + track);
        EXPECT_EQ(m_scripts->pendingDeletions(), 1U) << track;
        EXPECT_EQ(shown(run("tell application \"iTunes\" to get name of every track of playlist \"Twice\"")),
                  "{\"One\"}");
    }
}

TEST_F(LibraryScriptTest, WhatITunesFillsItselfIsNotChanged) {
    open(
        libraryXml({{1, "A1", ""}}, {{"Library", "<key>Master</key><true/>", {1}},
                                     {"Smart", "<key>Smart Info</key><data/>", {1}},
                                     {"Folder", "<key>Folder</key><true/>", {1}},
                                     {"Bought", "<key>Distinguished Kind</key><integer>19</integer>", {1}}}));
    for (const std::string number : {"2", "3", "4"}) {
        EXPECT_THAT(failure("tell application \"iTunes\" to delete track 1 of playlist " + number),
                    HasSubstr("playlist " + number + " is filled by iTunes and cannot be changed"));
        EXPECT_THAT(failure("tell application \"iTunes\" to duplicate track 1 to playlist " + number),
                    HasSubstr("is filled by iTunes"));
    }
    EXPECT_EQ(text("tell application \"iTunes\" to get count of tracks of playlist 4"), "1");
    EXPECT_THAT(failure("tell application \"iTunes\" to duplicate track 1 to playlist 1"),
                HasSubstr("the library has each track once"));
}

TEST_F(LibraryScriptTest, DuplicatesTracksToAPlaylist) {
    open(smallLibrary());
    const auto get = [&](const std::string& what) {
        return shown(run("tell application \"iTunes\" to get " + what));
    };
    EXPECT_EQ(shown(run("tell application \"iTunes\" to duplicate track \"Three\" to playlist \"Twice\"")),
              "track 4 of playlist 2 of application \"iTunes\"");
    EXPECT_EQ(
        shown(run("tell application \"iTunes\" to duplicate (every track whose year is 1999) to playlist "
                  "\"Twice\"")),
        "{track 5 of playlist 2 of application \"iTunes\"}");
    EXPECT_EQ(get("name of every track of playlist \"Twice\""),
              "{\"Two\", \"One\", \"Two\", \"Three\", \"Two\"}");
    run("tell application \"iTunes\" to delete track 4 of playlist \"Twice\"");
    ASSERT_TRUE(m_scripts->flush());
    EXPECT_EQ(get("name of every track of playlist \"Twice\""), "{\"Two\", \"One\", \"Two\", \"Two\"}");
    EXPECT_THAT(failure("tell application \"iTunes\" to duplicate track 1"),
                HasSubstr("tracks are duplicated to a playlist"));
    EXPECT_THAT(failure("tell application \"iTunes\" to duplicate playlist 2 to playlist 2"),
                HasSubstr("only tracks can be duplicated"));
}

TEST_F(LibraryScriptTest, PutsATrackInThePlaceOfAnother) {
    open(smallLibrary());
    EXPECT_EQ(shown(run("tell application \"iTunes\" to duplicate track \"Three\" to last track of playlist "
                        "\"Twice\" whose name is \"Two\"")),
              "track 3 of playlist 2 of application \"iTunes\"");
    run("tell application \"iTunes\" to delete track \"Two\"");
    const std::string names = "tell application \"iTunes\" to get name of every track of playlist \"Twice\"";
    EXPECT_EQ(shown(run(names)), "{\"One\", \"Three\"}");
    ASSERT_TRUE(m_scripts->flush());
    EXPECT_EQ(shown(run(names)), "{\"One\", \"Three\"}");
    for (const std::string place : {"track 1", "track 1 of playlist \"Smart\""})
        EXPECT_NE(failure("tell application \"iTunes\" to duplicate track \"Three\" to " + place), "");
    EXPECT_THAT(failure("tell application \"iTunes\" to duplicate tracks to track 1 of playlist \"Twice\""),
                HasSubstr("one track takes the place of another"));
    EXPECT_THAT(failure("tell application \"iTunes\" \nset t to track 1 of playlist \"Twice\" \ndelete t \n"
                        "duplicate track \"Three\" to t \nend tell"),
                HasSubstr("the track is in the playlist no more"));
}

TEST_F(LibraryScriptTest, SetsDatesAndWhetherATrackIsLoved) {
    const auto played = [](const std::string& utc, const std::string& seconds) {
        return "<key>Play Date</key><integer>" + seconds +
               "</integer>\n\t\t\t<key>Play Date UTC</key><date>" + utc + "</date>";
    };
    const std::string later = played("2009-07-14T15:09:26Z", std::to_string(longDateTime(1247584166)));
    const std::string rated = "\n\t\t\t<key>Album Rating</key><integer>60</integer>"
                              "\n\t\t\t<key>Album Rating Computed</key><true/>";
    open(libraryXml({{1, "A1", later}, {2, "A2", played("2008-01-01T00:00:00Z", "1") + rated}}, {}));
    run("tell application \"iTunes\" \nset played date of track 2 to played date of track 1 \n"
        "set loved of track 2 to true \nset album rating of track 2 to 80 \nend tell");
    EXPECT_EQ(shown(run("tell application \"iTunes\" to get {loved, album rating} of every track")),
              "{{false, true}, {0, 80}}");
    ASSERT_TRUE(m_scripts->flush());
    EXPECT_EQ(contentOf(m_path), libraryXml({{1, "A1", later},
                                             {2, "A2",
                                              later + "\n\t\t\t<key>Album Rating</key><integer>80</integer>"
                                                      "\n\t\t\t<key>Loved</key><true/>"}},
                                            {}));
    EXPECT_THAT(failure("tell application \"iTunes\" to set date added of track 1 to 5"),
                HasSubstr("date added is a date"));
}

TEST_F(LibraryScriptTest, SetsWhatTheFileSaysOfATrack) {
    open(smallLibrary());
    run("tell application \"iTunes\" \nset rating of every track to 80 \nset name of track id 11 to \"A & "
        "B\" \n"
        "set played count of track id 11 to 3 \nset enabled of track \"Three\" to true \n"
        "set {year of track id 11, genre of track id 11} to {1984, \"\"} \nend tell");
    const std::string values =
        "{{\"Three\", \"A & B\", \"Two\"}, {80, 80, 80}, {0, 3, 0}, {true, true, true}, "
        "{0, 1984, 1999}, {\"\", \"\", \"\"}}";
    const std::string question = "tell application \"iTunes\" to get {name, rating, played count, enabled, "
                                 "year, genre} of every track";
    EXPECT_EQ(shown(run(question)), values);
    EXPECT_EQ(contentOf(m_path), smallLibrary());
    ASSERT_TRUE(m_scripts->flush());
    EXPECT_EQ(shown(run(question)), values);
    EXPECT_THAT(contentOf(m_path), HasSubstr("<key>Name</key><string>A &#38; B</string>"));
}

TEST_F(LibraryScriptTest, RefusesValuesThatAPropertyCannotHave) {
    open(smallLibrary());
    const auto refusal = [&](const std::string& what) {
        return failure("tell application \"iTunes\" to set " + what);
    };
    EXPECT_THAT(refusal("rating of track 1 to 101"), HasSubstr("rating is a whole number from 0 to 100"));
    EXPECT_THAT(refusal("rating of track 1 to \"80\""), HasSubstr("rating is a whole number"));
    EXPECT_THAT(refusal("played count of track 1 to -1"), HasSubstr("played count is a whole number"));
    EXPECT_THAT(refusal("year of track 1 to 1999.5"), HasSubstr("year is a whole number"));
    EXPECT_THAT(refusal("name of track 1 to 5"), HasSubstr("name is a text"));
    EXPECT_THAT(refusal("name of track 1 to \"\""), HasSubstr("name is never empty"));
    EXPECT_THAT(refusal("enabled of track 1 to 1"), HasSubstr("enabled is true or false"));
    EXPECT_THAT(refusal("size of track 1 to 5"), HasSubstr("“size” of track 1 of playlist 1 cannot be set"));
    EXPECT_THAT(refusal("name of playlist 2 to \"x\""), HasSubstr("“name” of playlist 2 cannot be set"));
    EXPECT_EQ(contentOf(m_path), smallLibrary());
    ASSERT_TRUE(m_scripts->flush());
    EXPECT_EQ(contentOf(m_path), smallLibrary());
}

TEST_F(LibraryScriptTest, ARatingThatWasGivenIsNoComputedOne) {
    const std::string computed = "<key>Rating</key><integer>60</integer><key>Rating Computed</key><true/>";
    open(libraryXml({{1, "A1", computed}}, {}));
    run("tell application \"iTunes\" to set rating of track 1 to 200 / 2");
    ASSERT_TRUE(m_scripts->flush());
    EXPECT_EQ(contentOf(m_path), libraryXml({{1, "A1", "<key>Rating</key><integer>100</integer>"}}, {}));
}

TEST_F(LibraryScriptTest, TheEmptyTextAndZeroTakeTheKeyOut) {
    const std::string values =
        "<key>Year</key><integer>1999</integer>\n\t\t\t<key>Genre</key><string>Rock</string>";
    open(libraryXml({{1, "A1", values}}, {}));
    run("tell application \"iTunes\" \nset year of track 1 to 0 \nset genre of track 1 to \"\" \nend tell");
    ASSERT_TRUE(m_scripts->flush());
    EXPECT_EQ(contentOf(m_path), libraryXml({{1, "A1", ""}}, {}));
}

TEST_F(LibraryScriptTest, ADeletedTrackIsNeitherSetNorDuplicated) {
    open(smallLibrary());
    EXPECT_THAT(
        failure("tell application \"iTunes\" \nset t to track id 12 \ndelete t \nset name of t to \"x\" \n"
                "end tell"),
        HasSubstr("the track has been deleted"));
    EXPECT_THAT(
        failure("tell application \"iTunes\" \nset t to track id 13 \ndelete t \nduplicate t to playlist "
                "\"Twice\" \nend tell"),
        HasSubstr("the track has been deleted"));
}

} // namespace
} // namespace songsweep
