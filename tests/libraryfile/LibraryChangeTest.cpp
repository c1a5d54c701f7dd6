// SPDX-License-Identifier: MIT
//
// Values, and the items of playlists, changed in a library file.
#include "libraryfile/ChangePlan.h"
#include "libraryfile/LibraryDocument.h"
#include "libraryfile/LibraryFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <random>

namespace songsweep {
namespace {

using test::contentOf;
using test::itemsOf;
using test::libraryXml;
using test::tracksOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;
using Form = ValueChange::Form;

const char* const idA = "00000000000000A1";
const char* const idB = "00000000000000B2";

class LibraryChangeTest : public testing::Test {
  protected:
    LibraryDocument& open(std::string_view text) {
        auto opened = LibraryDocument::open(m_folder.write("library.xml", text));
        EXPECT_TRUE(opened) << opened.error().message;
        m_library = std::move(opened).value();
        return *m_library;
    }

    /// Three tracks and a playlist that has one of them twice.
    static std::string small(const std::string& name, const std::vector<int>& items) {
        return libraryXml(
            {{1, idA, "<key>Name</key><string>" + name + "</string>"}, {2, idB, ""}, {3, "C3", ""}},
            {{"Library", "<key>Master</key><true/>", {1, 2, 3}}, {"Twice", "", items}});
    }

    void rename(LibraryDocument::TrackPosition track, const std::string& name) {
        EXPECT_TRUE(m_library->setValue(track, {"Name", Form::text, name}));
    }

    std::string nameOf(LibraryDocument::TrackPosition track) {
        return std::string(m_library->fields(track).value()->text(LibraryKey::name));
    }

    std::string content() const { return contentOf(m_library->path()); }

    void replaceLibrary(std::string_view text) const {
        std::filesystem::rename(m_folder.write("new.xml", text), m_library->path());
    }

    test::Folder m_folder;
    std::unique_ptr<LibraryDocument> m_library;
};

TEST_F(LibraryChangeTest, AValueIsSeenAtOnceAndWrittenByAFlush) {
    open(small("old", {1, 2, 1}));
    rename(0, "new & better");
    EXPECT_EQ(nameOf(0), "new & better");
    EXPECT_EQ(m_library->values(0).value()->find("name")->text, "new & better");
    EXPECT_EQ(content(), small("old", {1, 2, 1}));
    EXPECT_EQ(m_library->pendingChanges(), 1U);
    ASSERT_TRUE(m_library->flush());
    EXPECT_EQ(content(), small("new &#38; better", {1, 2, 1}));
    EXPECT_EQ(m_library->pendingChanges(), 0U);
    EXPECT_EQ(nameOf(0), "new & better");
    EXPECT_THAT(m_folder.names(), ElementsAre(StartsWith("library (before changes of "), "library.xml"));
    EXPECT_EQ(contentOf(m_library->backup()), small("old", {1, 2, 1}));
}

TEST_F(LibraryChangeTest, TheLastOfSeveralValuesIsWritten) {
    open(small("old", {}));
    rename(0, "first");
    EXPECT_EQ(nameOf(0), "first");
    rename(0, "second");
    EXPECT_EQ(nameOf(0), "second");
    ASSERT_TRUE(m_library->flush());
    EXPECT_EQ(content(), small("second", {}));
}

TEST_F(LibraryChangeTest, WhatCannotBeChangedIsRefusedAtOnce) {
    open(small("old", {}));
    EXPECT_FALSE(m_library->setValue(0, {"Name", Form::text, "\x01"}));
    EXPECT_EQ(m_library->pendingChanges(), 0U);
    EXPECT_EQ(nameOf(0), "old");
}

TEST_F(LibraryChangeTest, AnItemIsTakenOutAndItsTrackStays) {
    open(small("a", {1, 2, 1}));
    EXPECT_THAT(itemsOf(m_library->listing(1)), ElementsAre(0, 1, 2));
    m_library->takeOut(1, 2);
    m_library->takeOut(1, 2);
    EXPECT_TRUE(m_library->isTakenOut(1, 2));
    EXPECT_THAT(tracksOf(m_library->listing(1)), ElementsAre(0, 1));
    EXPECT_THAT(itemsOf(m_library->listing(1)), ElementsAre(0, 1));
    EXPECT_EQ(m_library->pendingChanges(), 1U);
    ASSERT_TRUE(m_library->flush());
    EXPECT_EQ(content(), small("a", {1, 2}));
    EXPECT_EQ(m_library->trackCount(), 3);
}

TEST_F(LibraryChangeTest, AnItemBecomesAnotherTracksAndStaysWhenItsFirstTrackGoes) {
    open(small("a", {1, 2, 1, 3}));
    EXPECT_THAT(tracksOf(m_library->listing(1)), ElementsAre(0, 1, 0, 2));
    ASSERT_TRUE(m_library->putInPlaceOf(1, 2, 1));
    EXPECT_THAT(m_library->listing(1).placesOfTrack(1), ElementsAre(1, 2));
    ASSERT_TRUE(m_library->remove(0));
    EXPECT_THAT(tracksOf(m_library->listing(1)), ElementsAre(1, 1, 2));
    EXPECT_FALSE(m_library->putInPlaceOf(1, 0, 1)) << "the track of that item is gone";
    ASSERT_TRUE(m_library->flush());
    EXPECT_EQ(content(),
              libraryXml({{2, idB, ""}, {3, "C3", ""}},
                         {{"Library", "<key>Master</key><true/>", {2, 3}}, {"Twice", "", {2, 2, 3}}}));
}

TEST_F(LibraryChangeTest, AnItemThatAnotherTrackGotGoesWithThatTrack) {
    open(small("a", {1, 2, 1}));
    ASSERT_TRUE(m_library->putInPlaceOf(1, 1, 2));
    ASSERT_TRUE(m_library->remove(2));
    EXPECT_THAT(tracksOf(m_library->listing(1)), ElementsAre(0, 0));
    ASSERT_TRUE(m_library->flush());
    EXPECT_THAT(tracksOf(m_library->listing(1)), ElementsAre(0, 0));
}

TEST_F(LibraryChangeTest, WhatIsWithdrawnLeavesNothingBehind) {
    open(small("a", {1, 2, 1, 3}));
    rename(1, "kept");
    rename(2, "other");
    ASSERT_TRUE(m_library->putInPlaceOf(1, 0, 1));
    m_library->takeOut(1, 1);
    ASSERT_TRUE(m_library->add(1, 1));
    ASSERT_TRUE(m_library->remove(0));
    m_library->withdraw({1}, {0});
    EXPECT_THAT(tracksOf(m_library->listing(1)), ElementsAre(0, 1, 0, 2));
    EXPECT_EQ(m_library->pendingDeletions(), 0U);
    ASSERT_TRUE(m_library->flush());
    EXPECT_EQ(nameOf(1), "");
    EXPECT_EQ(nameOf(2), "other");
    EXPECT_THAT(tracksOf(m_library->listing(1)), ElementsAre(0, 1, 0, 2));
}

TEST_F(LibraryChangeTest, ChangesBoundToTheirVersionAreNotMadeInAnother) {
    open(small("old", {}));
    ASSERT_TRUE(m_library->bindChangesToVersion({"a test"}));
    rename(0, "new");
    replaceLibrary(small("theirs", {}));
    EXPECT_FALSE(m_library->flush());
    EXPECT_EQ(content(), small("theirs", {}));
    m_library->endCleanup();
    rename(0, "ours");
    replaceLibrary(small("theirs again", {}));
    EXPECT_TRUE(m_library->flush()) << "the next changes are not bound";
    EXPECT_EQ(content(), small("ours", {}));
}

TEST_F(LibraryChangeTest, WhatIsListedChangesWithEachTrackAndItem) {
    LibraryDocument& library = open(small("a", {1, 2, 1, 3, 2}));
    EXPECT_THAT(tracksOf(library.listing(0)), ElementsAre(0, 1, 2));
    EXPECT_THAT(tracksOf(library.listing(1)), ElementsAre(0, 1, 0, 2, 1));
    ASSERT_TRUE(library.remove(0));
    EXPECT_THAT(tracksOf(library.listing(0)), ElementsAre(1, 2));
    library.takeOut(1, 1);
    ASSERT_TRUE(library.remove(2));
    EXPECT_THAT(itemsOf(library.listing(1)), ElementsAre(4));
    EXPECT_EQ(library.add(1, 1).value(), 5U);
    EXPECT_THAT(itemsOf(library.listing(1)), ElementsAre(4, 5));
    EXPECT_THAT(tracksOf(library.listing(0)), ElementsAre(1));
    library.rollback();
    EXPECT_THAT(tracksOf(library.listing(0)), ElementsAre(0, 1, 2));
    EXPECT_THAT(itemsOf(library.listing(1)), ElementsAre(0, 1, 2, 3, 4));
}

TEST_F(LibraryChangeTest, AnItemIsPutBehindTheLastOneAsThatIsWritten) {
    const auto withItems = [](const std::string& items) {
        std::string text = small("a", {});
        const std::string end = "</array>\n\t\t</dict>\n\t</array>";
        return text.replace(text.rfind(end), 0, items);
    };
    const auto item = [](int id) {
        return "\n  <dict><key>Track ID</key> <integer>" + std::to_string(id) + "</integer></dict>";
    };
    open(withItems(item(1) + item(2) + "<!-- end -->"));
    EXPECT_EQ(m_library->add(1, 2).value(), 2U);
    EXPECT_THAT(tracksOf(m_library->listing(1)), ElementsAre(0, 1, 2));
    EXPECT_EQ(m_library->add(1, 0).value(), 3U);
    EXPECT_THAT(itemsOf(m_library->listing(1)), ElementsAre(0, 1, 2, 3));
    ASSERT_TRUE(m_library->flush());
    EXPECT_EQ(content(), withItems(item(1) + item(2) + item(3) + item(1) + "<!-- end -->"));
}

TEST_F(LibraryChangeTest, AnItemThatSaysMoreThanItsTrackIsNoPattern) {
    std::string text = small("a", {1});
    const std::string id = "<key>Track ID</key><integer>1</integer>";
    text.insert(text.rfind(id) + id.size(), "<key>More</key><true/>");
    open(text);
    ASSERT_TRUE(m_library->add(1, 2));
    ASSERT_TRUE(m_library->flush());
    std::string expected = small("a", {1, 3});
    expected.insert(expected.rfind(id) + id.size(), "<key>More</key><true/>");
    EXPECT_EQ(content(), expected);
}

TEST_F(LibraryChangeTest, APlaylistWithoutItemsGetsThem) {
    const auto withPlaylist = [](const std::string& items) {
        return "<plist><dict><key>Tracks</key><dict><key>1</key><dict><key>Track "
               "ID</key><integer>1</integer></dict>"
               "</dict><key>Playlists</key><array><dict><key>Name</key><string>All</string></"
               "dict><dict><key>Name</key>"
               "<string>New</string>" +
               items + "</dict></array></dict></plist>";
    };
    const std::string item =
        "\n\t\t\t\t<dict>\n\t\t\t\t\t<key>Track ID</key><integer>1</integer>\n\t\t\t\t</dict>";
    const std::string added = "<array>" + item + "\n\t\t\t</array>";
    const std::string key = "<key>Playlist Items</key>";
    const auto outcome = [&](const std::string& items) {
        open(withPlaylist(items));
        EXPECT_TRUE(m_library->add(1, 0));
        EXPECT_TRUE(m_library->flush());
        return content();
    };
    EXPECT_EQ(outcome(""), withPlaylist("\n\t\t\t" + key + "\n\t\t\t" + added));
    EXPECT_EQ(outcome(key + "<array/>"), withPlaylist(key + added));
    EXPECT_EQ(outcome(key + "<array></array>"), withPlaylist(key + "<array>" + item + "</array>"));
}

TEST_F(LibraryChangeTest, AnItemThatWasPutInIsTakenOutAgain) {
    open(small("a", {1}));
    const std::uint32_t item = m_library->add(1, 2).value();
    m_library->takeOut(1, item);
    EXPECT_TRUE(m_library->isTakenOut(1, item));
    EXPECT_THAT(tracksOf(m_library->listing(1)), ElementsAre(0));
    EXPECT_EQ(m_library->add(1, 1).value(), 2U);
    EXPECT_THAT(tracksOf(m_library->listing(1)), ElementsAre(0, 1));
    EXPECT_THAT(itemsOf(m_library->listing(1)), ElementsAre(0, 2));
    ASSERT_TRUE(m_library->flush());
    EXPECT_EQ(content(), small("a", {1, 2}));
}

TEST_F(LibraryChangeTest, ATrackWhoseIdAnotherHasIsInNoNewItem) {
    open(libraryXml({{1, idA, ""}, {1, idB, ""}}, {{"All", "", {}}, {"Mine", "", {}}}));
    EXPECT_THAT(m_library->add(1, 0).error().message, HasSubstr("no ID of its own"));
    EXPECT_EQ(m_library->pendingChanges(), 0U);
}

TEST_F(LibraryChangeTest, DeletionsAndChangesAreWrittenTogether) {
    open(small("a", {1, 2, 1, 3}));
    rename(0, "b");
    rename(1, "gone");
    m_library->takeOut(1, 0);
    m_library->takeOut(1, 1);
    ASSERT_TRUE(m_library->add(1, 1));
    ASSERT_TRUE(m_library->remove(1));
    EXPECT_THAT(tracksOf(m_library->listing(1)), ElementsAre(0, 2));
    ASSERT_TRUE(m_library->flush());
    EXPECT_EQ(content(),
              libraryXml({{1, idA, "<key>Name</key><string>b</string>"}, {3, "C3", ""}},
                         {{"Library", "<key>Master</key><true/>", {1, 3}}, {"Twice", "", {1, 3}}}));
    EXPECT_EQ(m_library->pendingChanges(), 0U);
    EXPECT_EQ(m_library->pendingDeletions(), 0U);
}

TEST_F(LibraryChangeTest, WhatIsForgottenIsAsBefore) {
    open(small("a", {1}));
    rename(0, "b");
    ASSERT_TRUE(m_library->add(1, 1));
    EXPECT_THAT(tracksOf(m_library->listing(1)), ElementsAre(0, 1));
    m_library->rollback();
    EXPECT_EQ(nameOf(0), "a");
    EXPECT_THAT(tracksOf(m_library->listing(1)), ElementsAre(0));
    EXPECT_EQ(m_library->pendingChanges(), 0U);
}

TEST_F(LibraryChangeTest, AValueIsChangedInWhatAnotherProgramWrote) {
    open(small("a", {1}));
    rename(0, "b");
    replaceLibrary(libraryXml({{7, idB, ""}, {8, idA, "<key>Name</key><string>c</string>"}}, {}));
    ASSERT_TRUE(m_library->flush());
    EXPECT_EQ(content(), libraryXml({{7, idB, ""}, {8, idA, "<key>Name</key><string>b</string>"}}, {}));
}

TEST_F(LibraryChangeTest, AChangeThatAnotherProgramLeftNoPlaceForFailsTheWrite) {
    const std::string other = libraryXml({{7, idB, ""}}, {});
    for (const bool isOfPlaylist : {false, true}) {
        open(small("a", {1}));
        ASSERT_TRUE(m_library->remove(1));
        if (isOfPlaylist) m_library->takeOut(1, 0);
        if (!isOfPlaylist) rename(0, "b");
        replaceLibrary(other);
        ASSERT_TRUE(m_library->refresh());
        EXPECT_EQ(m_library->pendingChanges(), 1U) << "the loss is still to be told";
        const auto written = m_library->flush();
        ASSERT_FALSE(written);
        EXPECT_THAT(written.error().message, HasSubstr("was changed by another program meanwhile"));
        EXPECT_EQ(content(), other) << "what was told as not written is not written later";
        EXPECT_EQ(m_library->pendingChanges(), 0U);
        EXPECT_TRUE(m_library->flush());
    }
}

TEST_F(LibraryChangeTest, ATrackWithoutAnIdOfItsOwnIsNotChangedInWhatAnotherProgramWrote) {
    for (const std::string id : {"", "C3"}) {
        open(libraryXml({{1, id, ""}}, {}));
        rename(0, "b");
        replaceLibrary(libraryXml({{1, id, "<key>Name</key><string>c</string>"}}, {}));
        EXPECT_FALSE(m_library->flush()) << id;
    }
}

/// The names of a library that is `manyTracks`, changed in its text line by line.
std::string withNames(std::string text, const std::map<int, std::string>& names) {
    for (const auto& [number, name] : names) {
        const std::string old = "<string>Song " + std::to_string(number) + " &#38; more</string>";
        text.replace(text.find(old), old.size(), "<string>" + name + "</string>");
    }
    return text;
}

TEST_F(LibraryChangeTest, RandomNamesLeaveTheOtherBytesUnchanged) {
    std::mt19937 random(20261121);
    for (int round = 0; round < 20; ++round) {
        const std::string text = test::manyTracks(60);
        open(text);
        std::map<int, std::string> names;
        for (int change = 0; change < 25; ++change) {
            const int number = static_cast<int>(random() % 60);
            const std::string name(random() % 90 + 1, static_cast<char>('a' + random() % 26));
            rename(static_cast<std::uint32_t>(number), name);
            names[number] = name;
        }
        ASSERT_TRUE(m_library->flush());
        EXPECT_TRUE(content() == withNames(text, names));
    }
}

TEST_F(LibraryChangeTest, WhatReadsBackOtherwiseIsNoResult) {
    open(small("a", {1, 2}));
    const auto file = LibraryFile::open(m_library->path());
    const auto index = LibraryIndex::read(file.value());
    LibraryChanges changes;
    changes.set(0, {"Name", Form::text, "bb"});
    changes.takeOut(1, 0, 2);
    changes.add(1, 2);
    const auto plan = ChangePlan::of(file.value(), index.value(), changes);
    const auto isResult = [&](const std::string& text) {
        const auto other = LibraryFile::open(m_folder.write("other.xml", text));
        return plan.value().isResult(LibraryIndex::read(other.value()).value());
    };
    EXPECT_TRUE(isResult(small("bb", {2, 3})));
    EXPECT_FALSE(isResult(small("b", {2, 3}))) << "a longer or a shorter entry";
    const auto with = [](const std::string& added, const std::string& before) {
        std::string text = small("bb", {2, 3});
        return text.insert(text.find(before), added);
    };
    EXPECT_FALSE(isResult(with("<key>9</key><dict></dict>", "\n\t\t<key>1</key>")));
    EXPECT_FALSE(isResult(with("<key>9</key><dict></dict>", "\n\t</dict>\n\t<key>Playlists")));
    EXPECT_FALSE(isResult(with("2", "Twice")));
    EXPECT_FALSE(isResult(small("bb", {1, 2, 3})));
    EXPECT_FALSE(isResult(small("bb", {3, 2})));
    EXPECT_FALSE(isResult(small("bb", {2})));
    EXPECT_EQ(plan.value().size(), small("bb", {2, 3}).size());
}

} // namespace
} // namespace songsweep
