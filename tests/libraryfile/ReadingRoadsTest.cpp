// SPDX-License-Identifier: MIT
//
// A search reads a library by libxml2, by the scanner of plain files, or goes on from tracks that were read
// with the index. Nobody sees which.
#include "library/ReaderFixture.h"
#include "library/XmlReader.h"
#include "libraryfile/LibraryDocument.h"
#include "libraryfile/LibraryFixture.h"
#include "support/TestData.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <random>
#include <tuple>

namespace songsweep {
namespace {

using Reading = LibraryDocument::Reading;

/// All that is known of a record.
using Values = std::vector<std::string>;

Values valuesOf(const TrackRecord& record) {
    const auto number = [](auto value) { return std::to_string(value); };
    return {record.name.string(),    record.artist.string(),    record.album.string(),
            record.time.string(),    record.bitrate.string(),   record.size.string(),
            record.pid.string(),     record.playcount.string(), record.location.string(),
            record.trackid.string(), number(record.dateaddedv), number(record.timev),
            number(record.rating),   number(record.hasartwork), number(record.isfile),
            number(record.isdead),   number(record.hasdate)};
}

/// What a run did, and what it left.
struct Outcome {
    test::Trace trace;
    std::vector<ReadError> errors;
    std::vector<Values> records;
    SearchCoverage::Playlist playlist = SearchCoverage::Playlist::none;
    int playlistTracks = 0;

    bool operator==(const Outcome&) const = default;
};

void PrintTo(const Outcome& outcome, std::ostream* out) {
    *out << testing::PrintToString(outcome.trace) << testing::PrintToString(outcome.records);
    for (const ReadError& error : outcome.errors)
        *out << " line " << error.line << ": " << error.reason;
}

class ReadingRoadsTest : public test::ReaderFixture {
  protected:
    ReadingRoadsTest() {
        // Behind a read error there is no end.
        m_onEvent = [this](const WorkerEvent& event, SWXMLParser& parser) {
            if (event.name == EventName::readError) parser.cancel();
            if (event.name == m_cancelAt) parser.cancel();
        };
    }

    Outcome outcome(const OpenNodes& openNodes, const std::string& playlist, int tracks) {
        m_trace.clear();
        m_readErrors.clear();
        m_list = std::make_shared<TrackList>();
        m_services.openNodes = openNodes;
        run({.playlist = playlist}, tracks);
        Outcome outcome{traceWithoutSeconds(),
                        m_readErrors,
                        {},
                        m_list->coverage.playlist,
                        m_list->coverage.playlistTracks};
        for (const TrackRecord* record : m_list->records)
            outcome.records.push_back(valuesOf(*record));
        return outcome;
    }

    /// Reads by all roads, and says whether the file was plain.
    bool expectOneOutcome(const std::string& library, const std::string& playlist) {
        useLibraryText(library);
        auto opened = LibraryDocument::open(path("library.xml"), {.reading = Reading::indexAndTracks});
        if (!opened) return false;
        LibraryDocument& document = *opened.value();
        const int tracks = document.trackCount();
        const Outcome parsed = outcome(XmlReader::open, playlist, tracks);
        bool isPlain = false;
        const OpenNodes byDocument = [&](const std::string& path) -> std::unique_ptr<NodeReader> {
            auto nodes = document.plainNodes(path);
            isPlain = nodes != nullptr;
            return isPlain ? std::move(nodes) : XmlReader::open(path);
        };
        EXPECT_EQ(outcome(byDocument, playlist, tracks), parsed) << "goes on from the tracks\n" << library;
        EXPECT_EQ(outcome(byDocument, playlist, tracks), parsed) << "by the scanner\n" << library;
        return isPlain;
    }

    EventName m_cancelAt = EventName::readError;
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
    for (const auto& entry : std::filesystem::directory_iterator(test::testData("library")))
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
