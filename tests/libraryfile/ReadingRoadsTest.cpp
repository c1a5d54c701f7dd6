// SPDX-License-Identifier: MIT
//
// A search reads a library by libxml2, by the scanner of plain files, or goes on from tracks that were read
// with the index. Nobody sees which.
#include "libraryfile/ReadingRoads.h"

#include "libraryfile/LibraryDocument.h"
#include "libraryfile/LibraryFixture.h"
#include "support/TestData.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <random>

namespace songsweep {

namespace test {

void PrintTo(const RoadOutcome& outcome, std::ostream* out) { *out << shown(outcome); }

} // namespace test

namespace {

using Reading = LibraryDocument::Reading;

class ReadingRoadsTest : public testing::Test {
  protected:
    void useLibraryText(const std::string& library) { m_folder.write("library.xml", library); }
    std::string path(const std::string& name) const { return m_folder.pathOf(name); }

    /// Reads by all roads, and says whether the file was plain.
    bool expectOneOutcome(const std::string& library, const std::string& playlist) {
        useLibraryText(library);
        auto outcomes = test::readByAllRoads(path("library.xml"), playlist, m_cancelAt);
        EXPECT_EQ(outcomes.fromTracks, outcomes.parsed) << "goes on from the tracks\n" << library;
        EXPECT_EQ(outcomes.scanned, outcomes.parsed) << "by the scanner\n" << library;
        EXPECT_EQ(test::differenceOfIndexes(path("library.xml"), library), "") << library;
        m_trace = std::move(outcomes.parsed.trace);
        return outcomes.isPlain;
    }

    EventName m_cancelAt = EventName::readError;
    std::vector<std::string> m_trace;
    test::Folder m_folder;
};

/// A library with all that a record keeps.
std::string usualLibrary() {
    const std::string values =
        "<key>Total Time</key><integer>187429</integer>\n"
        "<key>Date Added</key><date>2009-03-14T15:09:26Z</date>\n"
        "<key>Bit Rate</key><integer>256</integer>\n"
        "<key>Rating</key><integer>80</integer><key>Play Count</key>"
        "<integer>3</integer><key>Artwork Count</key><integer>1</integer>\n"
        "<key>Track Type</key><string>File</string><key>Album</key><string>( )</string>"
        "<key>Location</key><string>file://localhost/no/a%20b.mp3</string>\n";
    return test::libraryXml({{1, "AB12", "<key>Name</key><string>R&#38;B é</string>" + values},
                             {3, "CD34", "<key>Name</key><string>Two</string>" + values},
                             {5, "", ""}},
                            {{"Library", "<key>Master</key><true/>", {1, 3, 5}}, {"Some", "", {3, 3, 7}}});
}

const std::vector<std::string> pieces{"&amp;",
                                      "&#38;",
                                      "&#32;",
                                      "&",
                                      " ",
                                      "\r\n",
                                      "x",
                                      "é",
                                      "\xC3",
                                      "\x01",
                                      "<",
                                      "<!-- c -->",
                                      "<![CDATA[c]]>",
                                      "<dict/>",
                                      "<dict>",
                                      "</dict>",
                                      "<dict></dict>",
                                      "<string/>",
                                      "<string> </string>",
                                      "<key>Name</key>",
                                      "<key>NAME</key><string> y </string>",
                                      "<key></key>",
                                      "<key>Playlists</key>",
                                      "<key>Tracks</key>",
                                      "<key>Master</key><true/>",
                                      "<key>Name</key><string>some</string>",
                                      "<key>Track ID</key><integer>3</integer>",
                                      "<key>Date Added</key><date>never</date>",
                                      "<key>1</key><dict><key>Name</key><string>n</string></dict>",
                                      "<array><dict></dict></array>",
                                      "<true/>"};

std::string changedAtRandom(std::string text, std::mt19937& random) {
    for (unsigned changes = 1 + random() % 3; changes > 0; --changes) {
        std::size_t place = random() % text.size();
        if (random() % 5 != 0) place = std::min(text.find_first_of("<>", place), text.size() - 1);
        if (text[place] == '>') ++place;
        // An element put beside others leaves a library that is plain.
        if (random() % 3 == 0) place = std::min(text.find("<key>", place), text.size() - 1);
        if (random() % 8 == 0)
            text.erase(place, 1 + random() % 30);
        else
            text.insert(place, pieces[random() % pieces.size()]);
    }
    return text;
}

TEST_F(ReadingRoadsTest, AllLeadToTheSameForLibrariesChangedAtRandom) {
    const std::string library = usualLibrary();
    std::mt19937 random(41);
    int plain = 0;
    for (int turn = 0; turn < 3000; ++turn)
        plain += expectOneOutcome(changedAtRandom(library, random), turn % 2 == 0 ? "Library" : "SOME");
    EXPECT_GT(plain, 300);
}

TEST_F(ReadingRoadsTest, AllLeadToTheSameForTheTestLibraries) {
    for (const char* folder : {"library", "reading-roads"})
        for (const auto& entry : std::filesystem::directory_iterator(test::testData(folder)))
            expectOneOutcome(test::contentOf(entry.path()), "Library");
    EXPECT_TRUE(expectOneOutcome(usualLibrary(), "Some"));
    EXPECT_TRUE(expectOneOutcome(usualLibrary(), "None"));
    EXPECT_TRUE(expectOneOutcome(test::libraryXml({}, {}), "Library"));
}

TEST_F(ReadingRoadsTest, AllTellTheSameOfManyTracks) {
    EXPECT_TRUE(expectOneOutcome(test::manyTracks(1600), "Third"));
    EXPECT_EQ(std::ranges::count(m_trace, "> progressx 500"), 3);
}

TEST_F(ReadingRoadsTest, AllEndWhereTheyAreCancelled) {
    m_cancelAt = EventName::progressx;
    EXPECT_TRUE(expectOneOutcome(test::manyTracks(1600), "Third"));
    EXPECT_EQ(std::ranges::count(m_trace, "> progressx 500"), 1);
    EXPECT_EQ(m_trace.back(), "End XML Finally");
}

TEST_F(ReadingRoadsTest, TheTracksReadWithTheIndexAreTakenOnce) {
    useLibraryText(usualLibrary());
    const auto document =
        std::move(LibraryDocument::open(path("library.xml"), {.reading = Reading::indexAndTracks})).value();
    EXPECT_NE(document->plainNodes(path("library.xml"))->takeTracks(), nullptr);
    EXPECT_EQ(document->plainNodes(path("library.xml"))->takeTracks(), nullptr);
}

TEST_F(ReadingRoadsTest, TracksAreReadWithTheIndexWhereThatIsAskedForAlone) {
    useLibraryText(usualLibrary());
    const auto document = std::move(LibraryDocument::open(path("library.xml"))).value();
    EXPECT_EQ(document->plainNodes(path("library.xml"))->takeTracks(), nullptr);
}

TEST_F(ReadingRoadsTest, TracksOfAnOldVersionAreNobodys) {
    useLibraryText(usualLibrary());
    const auto document =
        std::move(LibraryDocument::open(path("library.xml"), {.reading = Reading::indexAndTracks})).value();
    useLibraryText(test::manyTracks(2));
    EXPECT_EQ(document->plainNodes(path("library.xml")), nullptr);
    ASSERT_TRUE(document->refresh());
    EXPECT_EQ(document->plainNodes(path("library.xml"))->takeTracks(), nullptr);
}

} // namespace
} // namespace songsweep
