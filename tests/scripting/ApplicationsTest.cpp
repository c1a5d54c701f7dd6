// SPDX-License-Identifier: MIT
#include "scripting/FakeApplications.h"
#include "scripting/InterpretedAppleScript.h"
#include "scripting/SourceNotation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace songsweep {
namespace {

test::FakeWorld smallWorld() {
    test::FakeWorld world;
    world.playlists = {{"Library", true, true, {}},
                       {"Music", false, false, {}},
                       {"Rock", false, true, {}},
                       {"Top", true, true, {}}};
    world.playlists[0].tracks = {test::fakeTrack("One", "00A1", "/music/one.mp3", 1),
                                 test::fakeTrack("Two", "00A2", ""),
                                 test::fakeTrack("Three", "00A3", "/music/three.mp3")};
    world.playlists[0].tracks[2]->properties["rating"] = std::int64_t(100);
    world.playlists[2].tracks = {world.playlists[0].tracks[2], world.playlists[0].tracks[0]};
    return world;
}

std::string outcomeOf(test::FakeWorld& world, const std::string& source) {
    InterpretedAppleScript script(test::fakeApplications(world));
    const Result<std::optional<Descriptor>> result = script.run(source);
    if (!result) return "error: " + result.error().message;
    return result.value() ? sourceNotation(*result.value()) : "";
}

/// Statements told to the player, and what they give.
struct Case {
    const char* statements;
    const char* result;
};

class PlayerTextTest : public testing::TestWithParam<Case> {};

TEST_P(PlayerTextTest, GivesTheResult) {
    test::FakeWorld world = smallWorld();
    const std::string source =
        std::string("tell application \"iTunes\"\n") + GetParam().statements + "\nend tell";
    EXPECT_EQ(outcomeOf(world, source), GetParam().result) << GetParam().statements;
}

const Case references[] = {
    {"version", "\"12.0\""},
    {"name of playlist 1", "\"Library\""},
    {"name of playlist \"rock\"", "\"Rock\""},
    {"name of playlist named \"Top\"", "\"Top\""},
    {"set n to \"Rock\"\ncount of tracks of playlist n", "2"},
    {"name of last playlist", "\"Top\""},
    {"name of playlist -1", "\"Top\""},
    {"the name of the first user playlist", "\"Library\""},
    {"name of second user playlist", "\"Rock\""},
    {"name of middle user playlist", "\"Rock\""},
    {"count of playlist", "4"},
    {"count playlists", "4"},
    {"number of user playlists", "3"},
    {"count every playlist", "4"},
    {"count of tracks in playlist 3", "2"},
    {"playlist 3's name", "\"Rock\""},
    {"name of playlist 3's first track", "\"Three\""},
    {"name of track 1 of playlist \"Rock\"", "\"Three\""},
    {"name of tracks of playlist \"Rock\"", "{\"Three\", \"One\"}"},
    {"name of every track of playlist \"Rock\"", "{\"Three\", \"One\"}"},
    {"name of tracks 1 thru 2 of playlist 1", "{\"One\", \"Two\"}"},
    {"name of tracks from 2 to -1 of playlist 1", "{\"Two\", \"Three\"}"},
    {"count of tracks 1 thru 2", "2"},
    {"name of every track of every user playlist whose smart is false", "{{\"Three\", \"One\"}}"},
    {"{name, rating} of track 1", "{\"One\", 60}"},
    {"{name, bit rate} of every track", "{{\"One\", \"Two\", \"Three\"}, {192, 192, 192}}"},
    {"{name, rating} of (tracks whose rating is 100)", "{{\"Three\"}, {100}}"},
    {"{name} of tracks of every user playlist whose smart is false", "{{{\"Three\", \"One\"}}}"},
    {"set {n, r} to {name, rating} of every track of playlist \"Rock\"\n{r, n}",
     "{{100, 60}, {\"Three\", \"One\"}}"},
    {"tell track 2 to {name, rating} of it", "{\"Two\", 60}"},
    {"set t to track 1\nset {n, r} to {name, rating} of t\nn", "\"One\""},
    {"item 2 of {name, rating} of track 1", "60"},
    {"{name, lyrics} of track 1", "error: line 2, column 8: track id 00A1 has no property “lyrics”"},
    {"{name, playlist} of track 1", "error: line 2, column 8: expected a property, but found “playlist”"},
    {"application \"iTunes\" is running", "true"},
    {"if it is running then 1", "1"},
    {"application \"Finder\" is not running", "false"},
    {"application \"Finder\" isn't running", "false"},
    {"tell playlist 1 to it is running", "error: line 2, column 23: an object is no application"},
    {"playlist 1", "playlist 1 of application \"iTunes\""},
    {"it", "application \"iTunes\""},
    {"artworks of track 1", "{artwork 1 of application \"iTunes\"}"},
    {"count of artworks of track 1 of playlist 1", "1"},
    {"set t to track 1\n{name of t, rating of t}", "{\"One\", 60}"},
    {"track 1 = first track of playlist 1", "true"},
    {"track 1 = track 2", "false"},
    {"item 2 of (name of every playlist)", "\"Music\""},
    {"name of item 2 of (tracks of playlist 1)", "\"Two\""},
    {"exists playlist \"Rock\"", "true"},
    {"if playlist \"Jazz\" exists then 1", ""},
    {"exists (first track whose name is \"Four\")", "false"},
    {"its version", "\"12.0\""},
    {"date added of track 1", "date \"Sunday, January 24, 1999 at 5:20:00 AM\""},
    {"time of track 1", "\"4:05\""},
    {"time of (date added of track 1)", "19200"},
    {"location of track 1", "alias \"Macintosh HD:music:one.mp3\""},
    {"location of track 2", "missing value"},
    {"location of track 1 as text", "\"Macintosh HD:music:one.mp3\""},
    {"POSIX path of (location of track 1 as text)", "\"/music/one.mp3\""},
    {"(bit rate of track 1 as text) & \" kbps\"", "\"192 kbps\""},
};

const Case filters[] = {
    {"name of every playlist whose smart is true", "{\"Library\", \"Top\"}"},
    {"name of playlists whose smart = false", "{\"Music\", \"Rock\"}"},
    {"name of (playlists whose smart is false and name is not \"Music\")", "{\"Rock\"}"},
    {"name of every playlist whose not smart", "{\"Music\", \"Rock\"}"},
    {"name of every playlist where smart or name contains \"oc\"", "{\"Library\", \"Rock\", \"Top\"}"},
    {"name of every track of playlist 1 whose rating > 60", "{\"Three\"}"},
    {"name of every track whose rating ≥ 60 and name begins with \"t\"", "{\"Two\", \"Three\"}"},
    {"name of every track whose name ends with \"o\"", "{\"Two\"}"},
    {"name of every track whose name is in {\"one\", \"two\"}", "{\"One\", \"Two\"}"},
    {"name of first track whose rating is 100", "\"Three\""},
    {"name of last track of playlist 1 whose rating is 60", "\"Two\""},
    {"count of (tracks whose rating is 60)", "2"},
    {"count of tracks of playlist 1 whose location is missing value", "1"},
    {"name of every track whose location is not missing value", "{\"One\", \"Three\"}"},
    {"name of every track whose (count of artworks) > 0", "{\"One\"}"},
    {"name of every track whose name is it's name and rating is 100", "{\"Three\"}"},
    {"name of every playlist whose (count of name) > 4", "{\"Library\", \"Music\"}"},
    {"set r to 60\nname of every track whose rating is r", "{\"One\", \"Two\"}"},
    {"name of every track whose persistent ID is \"00a2\"", "{\"Two\"}"},
    {"name of every track whose persistent ID is \"00A2\" and rating is 100", "{}"},
    {"name of every track whose rating is 60 and persistent ID = \"00A2\"", "{\"Two\"}"},
    {"name of every track whose persistent ID is \"00A1\" or persistent ID is \"00A3\"",
     "{\"One\", \"Three\"}"},
    {"name of every track whose persistent ID is not \"00A1\"", "{\"Two\", \"Three\"}"},
    {"location of (tracks whose persistent ID is \"00A2\")", "{missing value}"},
    {"location of (tracks whose persistent ID is \"none\")", "{}"},
    {"name of every track whose grouping is \"\"", "{}"},
    {"name of every track whose grouping is not \"x\"", "{}"},
    {"name of every track whose not (grouping is \"x\")", "{}"},
    {"name of every track whose grouping is \"x\" or name is \"One\"", "{\"One\"}"},
};

const Case statements[] = {
    {"set name of track 1 to \"Uno\"\nname of track 1", "\"Uno\""},
    {"set rating of every track to 20\nrating of tracks", "{20, 20, 20}"},
    {"set sound volume to 30\nsound volume", "30"},
    {"tell playlist \"Rock\" to get name", "\"Rock\""},
    {"tell playlist 3\ntell track 2\nname\nend tell\nend tell", "\"One\""},
    {"tell (first track whose rating is 100) to get name", "\"Three\""},
    {"tell application \"Finder\" to set volume 3\ncount playlists", "4"},
    {"set l to {}\nrepeat with p in user playlists\nif smart of p then set end of l to name of p\nend "
     "repeat\nl",
     "{\"Library\", \"Top\"}"},
    {"set l to {}\nrepeat with t in (tracks of playlist 1 whose rating = 60)\nset end of l to t's name\nend "
     "repeat\nl",
     "{\"One\", \"Two\"}"},
    {"(duplicate track 1 to playlist 3)", "\"made\""},
    {"set x to duplicate track 1\nx", "\"made\""},
    {"play", ""},
    {"try\nname of playlist 9\non error m number n\n{m, n}\nend try", "{\"there is no playlist 9\", -1728}"},
    {"try\nstop 5\nend try\n1", "1"},
};

INSTANTIATE_TEST_SUITE_P(References, PlayerTextTest, testing::ValuesIn(references));
INSTANTIATE_TEST_SUITE_P(Filters, PlayerTextTest, testing::ValuesIn(filters));
INSTANTIATE_TEST_SUITE_P(Statements, PlayerTextTest, testing::ValuesIn(statements));

const Case failures[] = {
    {"name of playlist 9", "error: line 2, column 9: there is no playlist 9"},
    {"name of playlist \"Jazz\"", "error: line 2, column 9: there is no playlist “Jazz”"},
    {"rating of playlist 1", "error: line 2, column 1: there is no such thing"},
    {"length of playlist 1", "error: line 2, column 1: playlist 1 has no property “length”"},
    {"set version to 5", "error: line 2, column 5: cannot be set"},
    {"set size of track 1 to 5", "error: line 2, column 5: the property cannot be set"},
    {"locked of track 1", "error: line 2, column 1: track id 00A1 has no property “locked”"},
    {"count of tracks of every playlist",
     "error: line 2, column 1: cannot count the elements of several objects"},
    {"name of tracks 2 thru 9", "error: line 2, column 1: there is no track in all of that range"},
    {"every 5", "error: line 2, column 7: expected a class of elements, but found “5”"},
    {"playlist \"Rock\" whose smart",
     "error: line 2, column 17: expected the end of the line, but found “whose”"},
    {"tracks 1 thru 2 whose rating > 0",
     "error: line 2, column 17: expected the end of the line, but found “whose”"},
    {"set volume with output muted",
     "error: line 2, column 12: expected “to”, but found “with” behind “volume”"},
    {"play track 1 with joy", "error: line 2, column 19: expected a parameter of “play”, but found “joy”"},
    {"name of {track 1, track 2}", "error: line 2, column 1: a list has no such part"},
    {"tracks whose rating", "error: line 2, column 1: cannot make a number into a truth value"},
};

INSTANTIATE_TEST_SUITE_P(Failures, PlayerTextTest, testing::ValuesIn(failures));

TEST(CommandTest, TakesADirectParameterAndLabelledArguments) {
    test::FakeWorld world = smallWorld();
    outcomeOf(world,
              "tell application \"iTunes\"\nplay track 1 once true\nplay track 1 with once\nplay\nend tell");
    outcomeOf(world, "tell application \"iTunes\" to tell track 1 to play");
    outcomeOf(world, "tell application \"Finder\" to set volume output volume 40 without output muted");
    const std::vector<std::string> expected{"play track id 00A1 true", "play track id 00A1 true", "play",
                                            "play track id 00A1",
                                            "set volume output volume 40 output muted false"};
    EXPECT_EQ(world.commands, expected);
}

TEST(CommandTest, GetsAllObjectsOfAFilter) {
    test::FakeWorld world = smallWorld();
    outcomeOf(world, "tell application \"iTunes\" to delete (every track whose rating is 60)");
    EXPECT_EQ(world.commands, std::vector<std::string>{"delete { track id 00A1 track id 00A2}"});
}

TEST(LazinessTest, CountsWithoutTakingElements) {
    test::FakeWorld world = smallWorld();
    EXPECT_EQ(outcomeOf(world, "tell application \"iTunes\" to count of tracks"), "3");
    EXPECT_EQ(world.elementsTaken, 0);
}

TEST(LazinessTest, StopsAtTheFirstMatch) {
    test::FakeWorld world = smallWorld();
    outcomeOf(world, "tell application \"iTunes\" to get name of first track whose rating is 60");
    EXPECT_EQ(world.elementsTaken, 1);
}

TEST(LazinessTest, TakesEachElementOnceForSeveralProperties) {
    test::FakeWorld world = smallWorld();
    outcomeOf(world, "tell application \"iTunes\" to get {name, artist, rating} of every track");
    EXPECT_EQ(world.elementsTaken, 3);
    EXPECT_EQ(world.propertiesRead, 9);
}

/// What is copied of a long text leaves room for some tens of thousands of steps.
std::string afterMostSteps(const std::string& reference) {
    return "set t to \"0123456789abcdef\"\nrepeat 18 times\nset t to t & t\nend repeat\n"
           "repeat 20 times\nset u to t & \"\"\nend repeat\n"
           "tell application \"iTunes\"\nset u to " +
           reference + "\n1\nend tell";
}

TEST(LimitsTest, CountEachPropertyOfEachElementAsAStep) {
    test::FakeWorld world = smallWorld();
    for (int i = 0; i < 40; ++i)
        world.playlists[0].tracks.push_back(test::fakeTrack("More", "00B" + std::to_string(i), ""));
    std::string properties = "name";
    for (int i = 1; i < 5'000; ++i)
        properties += ", name";
    EXPECT_EQ(outcomeOf(world, afterMostSteps("{name} of every track")), "1");
    EXPECT_THAT(outcomeOf(world, afterMostSteps("{" + properties + "} of every track")),
                testing::HasSubstr("too many steps"));
}

TEST(LazinessTest, UsesTheIndexForAnyPartOfAConjunction) {
    test::FakeWorld world = smallWorld();
    outcomeOf(world,
              "tell application \"iTunes\" to get tracks whose rating is 60 and persistent ID is \"00A2\"");
    EXPECT_EQ(world.elementsTaken, 0);
    EXPECT_EQ(world.candidatesAsked, 2);
}

TEST(LazinessTest, TestsNoElementThatTheIndexIsSureOf) {
    test::FakeWorld world = smallWorld();
    outcomeOf(world, "tell application \"iTunes\" to get tracks whose persistent ID is \"00A2\"");
    EXPECT_EQ(world.propertiesRead, 0);
}

TEST(LazinessTest, TestsEveryElementThatTheIndexIsNotSureOf) {
    test::FakeWorld world = smallWorld();
    world.indexCertainty = interpreter::Candidates::Certainty::tentative;
    outcomeOf(world, "tell application \"iTunes\" to get tracks whose persistent ID is \"00A2\"");
    EXPECT_EQ(world.propertiesRead, 1);
}

TEST(LazinessTest, TestsWhatTheRestOfAConjunctionAsks) {
    test::FakeWorld world = smallWorld();
    EXPECT_EQ(outcomeOf(world, "tell application \"iTunes\" to get count of (tracks whose persistent ID is "
                               "\"00A2\" and name is \"nobody\")"),
              "0");
}

TEST(LazinessTest, AsksNoIndexForATestThatNeedsTheElement) {
    test::FakeWorld world = smallWorld();
    outcomeOf(world, "tell application \"iTunes\" to get tracks whose persistent ID is name");
    EXPECT_EQ(world.candidatesAsked, 0);
    EXPECT_EQ(world.elementsTaken, 3);
}

TEST(ObjectsTest, KeepTheWordsOfTheirOwnApplication) {
    test::FakeWorld world = smallWorld();
    const char* const source = "tell application \"iTunes\" to set t to track 1\n"
                               "tell application \"Finder\" to get name of t";
    EXPECT_EQ(outcomeOf(world, source), "\"One\"");
}

} // namespace
} // namespace songsweep
