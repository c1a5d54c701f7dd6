// SPDX-License-Identifier: MIT
#include "libraryfile/LibraryDocument.h"

#include "libraryfile/LibraryFixture.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace songsweep {
namespace {

using test::Folder;
using test::libraryXml;

class LibraryDocumentTest : public testing::Test {
  protected:
    LibraryDocument& open(std::string_view text) {
        auto opened = LibraryDocument::open(m_folder.write("library.xml", text));
        EXPECT_TRUE(opened) << opened.error().message;
        m_library = std::move(opened).value();
        return *m_library;
    }

    std::string text(LibraryDocument::TrackPosition track, LibraryKey key) {
        return std::string(m_library->fields(track).value()->text(key));
    }

    Folder m_folder;
    std::unique_ptr<LibraryDocument> m_library;
};

TEST_F(LibraryDocumentTest, PutsTheLibraryFirstAndListsTheOthersInFileOrder) {
    LibraryDocument& library = open(
        libraryXml({{1, "", ""}, {2, "", ""}, {3, "", ""}}, {{"B", "", {1}},
                                                             {"All", "<key>Master</key><true/>", {3, 1}},
                                                             {"A", "<key>Smart Info</key><data/>", {2, 2}},
                                                             {"B", "<key>Folder</key><true/>", {}}}));
    const auto playlists = library.playlists();
    ASSERT_EQ(playlists.size(), 4U);
    EXPECT_EQ(playlists[0].name, "All");
    EXPECT_TRUE(playlists[0].library);
    EXPECT_TRUE(playlists[0].smart);
    EXPECT_EQ(playlists[0].trackCount, 3);
    EXPECT_EQ(playlists[1].name, "B");
    EXPECT_FALSE(playlists[1].smart);
    EXPECT_EQ(playlists[2].name, "A");
    EXPECT_TRUE(playlists[2].smart);
    EXPECT_EQ(playlists[2].trackCount, 2);
    EXPECT_TRUE(playlists[3].folder);
    EXPECT_EQ(playlists[3].trackCount, 0);
}

TEST_F(LibraryDocumentTest, TheLibraryHoldsItsItemsAndThenEveryOtherTrackOnce) {
    LibraryDocument& library = open(libraryXml({{1, "", ""}, {2, "", ""}, {3, "", ""}, {4, "", ""}},
                                               {{"All", "<key>Master</key><true/>", {4, 2, 4, 77}}}));
    EXPECT_EQ(test::tracksOf(library.listing(0)), (std::vector<std::uint32_t>{3, 1, 0, 2}));
    EXPECT_EQ(library.trackCount(), 4);
}

TEST_F(LibraryDocumentTest, WithoutAMasterTheFirstPlaylistIsTheLibrary) {
    LibraryDocument& library =
        open(libraryXml({{1, "", ""}, {2, "", ""}}, {{"First", "", {2}}, {"Second", "", {}}}));
    EXPECT_EQ(library.playlists()[0].name, "First");
    EXPECT_EQ(library.playlists()[0].trackCount, 2);
}

TEST_F(LibraryDocumentTest, WithoutPlaylistsAllTracksAreThereAndNothingIsListed) {
    LibraryDocument& library =
        open("<plist><dict><key>Tracks</key><dict><key>1</key><dict/></dict></dict></plist>");
    EXPECT_TRUE(library.playlists().empty());
    EXPECT_EQ(library.listing(0).size(), 1U);
}

TEST_F(LibraryDocumentTest, ReadsTheValuesOfATrackAsTheyStand) {
    LibraryDocument& library = open(
        libraryXml({{1, "00A1B2C3D4E5F607",
                     "<key>Name</key><string> A &#38; B &lt;x&gt; <![CDATA[<&>]]><!-- no -->\r\n! </string>"
                     "<key>Album</key><string/><key>Track Type</key><true/>"
                     "<key>Location</key><array><string>x</string></array><key>Other</key><string>y</string>"
                     "<key>BIT rate</key><integer>192</integer>"}},
                   {}));
    const auto track = library.tracksWithPersistentId("00a1b2c3d4e5f607").at(0);
    EXPECT_EQ(text(track, LibraryKey::name), " A & B <x> <&>\n! ");
    EXPECT_EQ(text(track, LibraryKey::persistentId), "00A1B2C3D4E5F607");
    EXPECT_EQ(text(track, LibraryKey::bitRate), "192");
    EXPECT_TRUE(library.fields(track).value()->find(LibraryKey::album));
    EXPECT_TRUE(library.fields(track).value()->find(LibraryKey::trackType));
    EXPECT_FALSE(library.fields(track).value()->find(LibraryKey::location));
    EXPECT_FALSE(library.fields(track).value()->find(LibraryKey::other));
    EXPECT_FALSE(library.fields(track).value()->find(LibraryKey::none));
}

TEST_F(LibraryDocumentTest, ReplacesDeclaredEntitiesWithinBounds) {
    std::string text = libraryXml({{1, "", "<key>Name</key><string>&who; &nobody; &deep;</string>"}}, {});
    const std::string end = "PropertyList-1.0.dtd\"";
    text.insert(text.find(end) + end.size(), " [<!ENTITY who 'Ann &#38;amp; Bob'><!ENTITY deep '&who;'>]");
    open(text);
    EXPECT_EQ(this->text(0, LibraryKey::name), "Ann & Bob  Ann & Bob");
}

TEST_F(LibraryDocumentTest, EntitiesThatGrowWithoutBoundGiveNoValue) {
    std::string entities = " [<!ENTITY a0 ''>";
    for (int i = 1; i < 16; ++i) {
        const std::string inner = "&a" + std::to_string(i - 1) + ";";
        entities += "<!ENTITY a" + std::to_string(i) + " '" + inner + inner + inner + inner + inner + "'>";
    }
    std::string text = libraryXml({{1, "", "<key>Name</key><string>&a15;</string>"}}, {});
    const std::string end = "PropertyList-1.0.dtd\"";
    text.insert(text.find(end) + end.size(), entities + "]");
    EXPECT_FALSE(open(text).fields(0));
}

TEST_F(LibraryDocumentTest, FindsOddPersistentIdsByTheirText) {
    LibraryDocument& library =
        open(libraryXml({{1, "A1", ""}, {2, "00A1", ""}, {3, "", ""}, {4, "a1", ""}}, {}));
    EXPECT_EQ(library.tracksWithPersistentId("A1"), (std::vector<std::uint32_t>{0, 3}));
    EXPECT_EQ(library.tracksWithPersistentId("00A1"), (std::vector<std::uint32_t>{1}));
    EXPECT_TRUE(library.tracksWithPersistentId("").empty());
    EXPECT_TRUE(library.tracksWithPersistentId("0").empty());
}

TEST_F(LibraryDocumentTest, WhiteSpaceAroundAnIdOrALocationIsNoPartOfIt) {
    LibraryDocument& library = open(
        libraryXml({{1, "\n A1 \t", "<key>Location</key><string>\n\tfile:///a.mp3\u00a0</string>"}}, {}));
    std::vector<std::string> found;
    ASSERT_TRUE(library.locations().run([&](std::string_view id, const std::string& path) {
        found.push_back(std::string(id) + " " + path);
        return true;
    }));
    EXPECT_EQ(found, std::vector<std::string>{"A1 /a.mp3"});
    EXPECT_EQ(library.tracksWithPersistentId("A1").size(), 1U);
}

TEST_F(LibraryDocumentTest, NamesFilesWhoseLocationIsNotQuiteAUrl) {
    LibraryDocument& library =
        open(libraryXml({{1, "A1", "<key>Location</key><string>file://localhost/a b%20c.mp3</string>"}}, {}));
    std::vector<std::string> seen;
    ASSERT_TRUE(library.locations().run([&](std::string_view, const std::string& path) {
        seen.push_back(path);
        return true;
    }));
    EXPECT_EQ(seen, std::vector<std::string>{"/a b c.mp3"});
}

TEST_F(LibraryDocumentTest, NamesEveryFileThatTracksUse) {
    LibraryDocument& library =
        open(libraryXml({{1, "A1", "<key>Location</key><string>file://localhost/M/a%20b.mp3</string>"},
                         {2, "A2", ""},
                         {3, "", "<key>Location</key><string>file:///C:/M/c.mp3</string>"},
                         {4, "A4", "<key>Location</key><string>not a url</string>"},
                         {5, "A5", "<key>Location</key><string>file://localhost/gone.mp3</string>"}},
                        {}));
    ASSERT_TRUE(library.remove(4));
    std::vector<std::string> seen;
    ASSERT_TRUE(library.locations().run([&](std::string_view id, const std::string& path) {
        seen.push_back(std::string(id) + " " + path);
        return true;
    }));
    EXPECT_EQ(seen, (std::vector<std::string>{"A1 /M/a b.mp3", " /C:/M/c.mp3"}));
}

TEST_F(LibraryDocumentTest, APassOverTheFilesGoesOnWithoutTheDocument) {
    const std::string location = "<key>Location</key><string>file:///M/a.mp3</string>";
    std::optional<LocationPass> pass =
        open(libraryXml({{1, "A1", location}, {2, "A2", location}}, {})).locations();
    m_library.reset();
    int seen = 0;
    EXPECT_TRUE(pass->run([&](std::string_view, const std::string&) { return ++seen < 3; }));
    EXPECT_EQ(seen, 2);
}

TEST_F(LibraryDocumentTest, APassOverTheFilesSaysThatTheLibraryIsAnotherAtItsEnd) {
    const std::string text =
        libraryXml({{1, "A1", "<key>Location</key><string>file:///M/a.mp3</string>"}}, {});
    const LocationPass pass = open(text).locations();
    std::filesystem::rename(m_folder.write("new.xml", libraryXml({}, {})), m_library->path());
    int seen = 0;
    const Result<void> done = pass.run([&](std::string_view, const std::string&) { return ++seen > 0; });
    ASSERT_FALSE(done);
    EXPECT_EQ(done.error().code, Error::Code::busy);
    EXPECT_EQ(seen, 1) << "the version that it is of stays readable";
}

TEST_F(LibraryDocumentTest, NamesATrackWhoseEntryIsNotWellFormed) {
    LibraryDocument& library = open(libraryXml(
        {{1, "A1", "<key>Name</key><string>A</string>"}, {2, "A2", "<key>Name</key><string>A & B</string>"}},
        {}));
    EXPECT_TRUE(library.fields(0));
    const auto fields = library.fields(1);
    ASSERT_FALSE(fields);
    EXPECT_EQ(fields.error().code, Error::Code::invalid);
    EXPECT_EQ(fields.error().message, "the entry of track 2 is not well formed");
}

TEST_F(LibraryDocumentTest, ADeletedTrackIsGoneAtOnce) {
    LibraryDocument& library =
        open(libraryXml({{1, "A1", ""}, {2, "A2", ""}}, {{"All", "", {1, 2}}, {"P", "", {1, 1, 2}}}));
    EXPECT_EQ(library.playlists()[1].trackCount, 3);
    ASSERT_TRUE(library.remove(0));
    ASSERT_TRUE(library.remove(0));
    EXPECT_EQ(library.trackCount(), 1);
    EXPECT_EQ(library.pendingDeletions(), 1U);
    EXPECT_EQ(library.playlists()[0].trackCount, 1);
    EXPECT_EQ(library.playlists()[1].trackCount, 1);
    EXPECT_TRUE(library.tracksWithPersistentId("A1").empty());
}

TEST_F(LibraryDocumentTest, SeesAFileThatSomebodyElseRewrote) {
    LibraryDocument& library = open(libraryXml({{1, "A1", ""}}, {}));
    ASSERT_TRUE(library.refresh());
    m_folder.write("library.xml", libraryXml({{1, "A1", ""}, {2, "A2", ""}}, {}));
    ASSERT_TRUE(library.refresh());
    EXPECT_EQ(library.trackCount(), 2);
}

TEST(LibraryDocumentOpen, SaysWhatIsWrongWithAPath) {
    const Folder folder;
    const auto missing = LibraryDocument::open(folder.pathOf("none.xml"));
    EXPECT_EQ(missing.error().code, Error::Code::notFound);
    EXPECT_EQ(missing.error().message,
              "cannot open " + folder.pathOf("none.xml") + ": No such file or directory");
    const auto itself = LibraryDocument::open(folder.path());
    EXPECT_EQ(itself.error().code, Error::Code::invalid);
    EXPECT_EQ(itself.error().message, folder.path() + " is a folder");
    ASSERT_EQ(::mkfifo(folder.pathOf("pipe").c_str(), 0600), 0);
    EXPECT_EQ(LibraryDocument::open(folder.pathOf("pipe")).error().message,
              folder.pathOf("pipe") + " is not a regular file");
}

TEST(LibraryDocumentOpen, SaysThatThereIsNoPermission) {
    if (::geteuid() == 0) GTEST_SKIP() << "root may read everything";
    const Folder folder;
    const std::string path = folder.write("library.xml", "<plist/>");
    ASSERT_EQ(::chmod(path.c_str(), 0), 0);
    EXPECT_EQ(LibraryDocument::open(path).error().code, Error::Code::noPermission);
}

TEST(LibraryDocumentOpen, FollowsLinks) {
    const Folder folder;
    folder.write("real.xml", libraryXml({{1, "", ""}}, {}));
    ASSERT_EQ(::symlink("real.xml", folder.pathOf("link.xml").c_str()), 0);
    const auto library = LibraryDocument::open(folder.pathOf("link.xml"));
    ASSERT_TRUE(library);
    EXPECT_EQ(library.value()->trackCount(), 1);
}

} // namespace
} // namespace songsweep
