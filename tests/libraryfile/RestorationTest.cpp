// SPDX-License-Identifier: MIT
#include "libraryfile/Restoration.h"

#include "libraryfile/EntryNumbers.h"
#include "libraryfile/LibraryFixture.h"
#include "libraryfile/LibraryReplacement.h"
#include "libraryfile/LibraryRewrite.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace songsweep {
namespace {

using test::contentOf;
using test::FixturePlaylist;
using test::FixtureTrack;
using test::Folder;
using test::libraryXml;
using testing::ElementsAre;
using testing::HasSubstr;

using Fate = Restoration::Fate;

RecordedTrack track(const std::string& persistentId, std::int64_t trackId = -1) {
    RecordedTrack wanted;
    wanted.persistentId = persistentId;
    wanted.trackId = trackId;
    return wanted;
}

class RestorationTest : public testing::Test {
  protected:
    /// What the library becomes when the tracks come back from the backup.
    std::string restored(const std::string& backup, const std::string& present,
                         const std::vector<RecordedTrack>& wanted) {
        const auto old = IndexedLibrary::open(m_folder.write("backup.xml", backup));
        const auto now = IndexedLibrary::open(m_folder.write("library.xml", present));
        if (!old || !now) return "cannot be indexed";
        const auto planned = Restoration::plan(old.value(), now.value(), wanted);
        if (!planned) return planned.error().message;
        m_fates = planned.value().fates();
        m_notes = planned.value().notes();
        LibraryReplacement replacement(m_folder.pathOf("library.xml"));
        const auto written = replacement.write(now.value().file, planned.value().pieces());
        if (!written) return written.error().message;
        const auto readBack = IndexedLibrary::open(written.value().path());
        if (!readBack) return readBack.error().message;
        if (!planned.value().isResult(readBack.value().index)) return "does not read back the same";
        return contentOf(written.value().path());
    }

    /// The text without the tracks of these positions, as a deletion writes it.
    std::string without(const std::string& text, const std::set<std::uint32_t>& tracks) {
        auto library = IndexedLibrary::open(m_folder.write("whole.xml", text));
        if (!library) return library.error().message;
        IndexedLibrary& whole = library.value();
        for (const std::uint32_t position : tracks)
            whole.index.tracks[position].deleted = true;
        LibraryReplacement replacement(m_folder.pathOf("whole.xml"));
        const auto written =
            replacement.write(whole.file, piecesWithout(whole.file, rangesOfDeletions(whole.index)));
        return written ? contentOf(written.value().path()) : written.error().message;
    }

    Folder m_folder;
    std::vector<Fate> m_fates;
    std::vector<std::string> m_notes;
};

const std::vector<FixtureTrack> fiveTracks = {{1, "A1", ""},
                                              {2, "A2", "<key>Name</key><string>two</string>"},
                                              {3, "A3", ""},
                                              {4, "A4", ""},
                                              {5, "A5", ""}};
const std::vector<FixturePlaylist> twoLists = {{"Library", "<key>Master</key><true/>", {1, 2, 3, 4, 5}},
                                               {"Mine", "", {5, 2, 1, 2, 2, 4}}};

TEST_F(RestorationTest, OfALibraryThatNobodyChangedMakesTheBackup) {
    const std::string text = libraryXml(fiveTracks, twoLists);
    EXPECT_EQ(restored(text, without(text, {1, 3}), {track("A2", 2), track("A4", 4)}), text);
    EXPECT_THAT(m_fates, ElementsAre(Fate::comesBack, Fate::comesBack));
    EXPECT_TRUE(m_notes.empty());
}

TEST_F(RestorationTest, OfEveryTrackMakesTheBackup) {
    const std::string text = libraryXml(fiveTracks, twoLists);
    EXPECT_EQ(restored(text, without(text, {0, 1, 2, 3, 4}),
                       {track("A1"), track("A2"), track("A3"), track("A4"), track("A5")}),
              text);
}

/// Libraries with all that may stand between entries, repeated and missing IDs, and items of no track.
std::string oddLibrary(std::mt19937& random) {
    const auto chance = [&](int of) { return static_cast<int>(random() % static_cast<unsigned>(of)) == 0; };
    const auto between = [&] {
        return std::string(chance(6) ? "<!-- c" + std::to_string(random() % 3) + " -->" : "") +
               (chance(8) ? "\r\n" : "") + (chance(8) ? "  " : "");
    };
    std::string xml = "<plist><dict><key>Tracks</key><dict>";
    const int count = 1 + static_cast<int>(random() % 12);
    for (int n = 0; n < count; ++n) {
        const std::string id = std::to_string(chance(9) && n > 0 ? n - 1 : n);
        xml += between() + "\n<key>" + id + "</key><dict><key>Track ID</key><integer>" + id + "</integer>";
        if (!chance(10))
            xml += "<key>Persistent ID</key><string>B" + std::to_string(chance(9) ? 1 : n) + "</string>";
        xml += "<key>Rating</key><integer>" + std::to_string(random() % 3) + "</integer></dict>";
    }
    xml += between() + "</dict><key>Playlists</key><array>";
    for (unsigned list = 0; list < random() % 4; ++list) {
        xml += "<dict><key>Name</key><string>L" + std::to_string(list) +
               "</string><key>Playlist Items</key><array>";
        for (unsigned item = 0; item < random() % 20; ++item)
            xml += between() + "<dict><key>Track ID</key><integer>" +
                   std::to_string(random() % static_cast<unsigned>(count + 2)) + "</integer></dict>";
        xml += between() + "</array></dict>";
    }
    return xml + "</array></dict></plist>";
}

TEST_F(RestorationTest, OfAnyTracksOfAnyLibraryMakesTheBackup) {
    std::mt19937 random(20261121);
    int restorations = 0;
    for (int round = 0; round < 400; ++round) {
        const std::string text = oddLibrary(random);
        const auto library = IndexedLibrary::open(m_folder.write("whole.xml", text));
        ASSERT_TRUE(library) << library.error().message << text;
        const auto& tracks = library.value().index.tracks;
        std::set<std::uint32_t> deleted;
        std::vector<RecordedTrack> wanted;
        for (std::uint32_t n = 0; n < tracks.size(); ++n) {
            // All tracks of a persistent ID go together, as iTunes is told by it; those without one stay.
            if (tracks[n].persistentIdKind == PersistentId::Kind::none || tracks[n].persistentId % 3 == 0)
                continue;
            deleted.insert(n);
            const auto bytes = library.value().file.read(tracks[n].range());
            const std::string entry = bytes.value();
            const std::size_t begin = entry.find("<string>") + 8;
            wanted.push_back(track(entry.substr(begin, entry.find("</string>") - begin)));
        }
        restorations += deleted.empty() ? 0 : 1;
        ASSERT_EQ(restored(text, without(text, deleted), wanted), text) << "round " << round;
    }
    EXPECT_GT(restorations, 200);
}

TEST_F(RestorationTest, TwiceDoesNothingMore) {
    const std::string text = libraryXml(fiveTracks, twoLists);
    EXPECT_EQ(restored(text, text, {track("A2", 2)}), text);
    EXPECT_THAT(m_fates, ElementsAre(Fate::isThere));
}

TEST_F(RestorationTest, OfSomeTracksLeavesTheOthersOut) {
    const std::string text = libraryXml(fiveTracks, twoLists);
    EXPECT_EQ(restored(text, without(text, {1, 3}), {track("A2", 2)}), without(text, {3}));
}

TEST_F(RestorationTest, ATrackThatTheBackupLacksIsNamedAndChangesNothing) {
    const std::string text = libraryXml(fiveTracks, twoLists);
    EXPECT_EQ(restored(text, text, {track("B1"), track("B2", 1)}), text);
    EXPECT_THAT(m_fates, ElementsAre(Fate::isUnknown, Fate::isUnknown));
}

TEST_F(RestorationTest, ATrackThatWasNumberedAnewIsFound) {
    const std::string text = libraryXml(fiveTracks, twoLists);
    EXPECT_EQ(restored(text, without(text, {1}), {track("A2", 77)}), text);
    EXPECT_THAT(m_fates, ElementsAre(Fate::comesBack));
}

TEST_F(RestorationTest, WhatOthersChangedStays) {
    const std::string rated = "<key>Rating</key><integer>60</integer>";
    const std::string text = libraryXml(fiveTracks, twoLists);
    // Since the deletion of A2 and A4: A1 rated, A3 gone, A6 new, "Mine" in another order, a list more.
    const std::string present = libraryXml(
        {{1, "A1", rated}, {5, "A5", ""}, {6, "A6", ""}},
        {{"Library", "<key>Master</key><true/>", {1, 5, 6}}, {"Mine", "", {1, 6, 5}}, {"New", "", {6}}});
    const std::string expected = libraryXml({{1, "A1", rated},
                                             {2, "A2", "<key>Name</key><string>two</string>"},
                                             {4, "A4", ""},
                                             {5, "A5", ""},
                                             {6, "A6", ""}},
                                            {{"Library", "<key>Master</key><true/>", {1, 2, 4, 5, 6}},
                                             {"Mine", "", {1, 2, 2, 4, 6, 5, 2}},
                                             {"New", "", {6}}});
    EXPECT_EQ(restored(text, present, {track("A2", 2), track("A4", 4)}), expected);
    EXPECT_TRUE(m_notes.empty());
}

/// A library whose tracks and items others change.
struct Model {
    std::vector<FixtureTrack> tracks;
    std::vector<FixturePlaylist> lists;

    std::string text() const { return libraryXml(tracks, lists); }

    void remove(const std::set<int>& ids) {
        std::erase_if(tracks, [&](const FixtureTrack& track) { return ids.contains(track.id); });
        for (FixturePlaylist& list : lists)
            std::erase_if(list.trackIds, [&](int id) { return ids.contains(id); });
    }
};

/// What others do to a library: tracks go, get values, and come to the ends of the library and its lists.
struct LaterChanges {
    std::set<int> removed;
    std::set<int> rated;
    int added = 0;
    bool hasNewList = false;

    void applyTo(Model& model, int firstNewId) const {
        model.remove(removed);
        for (FixtureTrack& track : model.tracks)
            if (rated.contains(track.id)) track.values += "<key>Rating</key><integer>60</integer>";
        if (hasNewList) model.lists.push_back({"New", "", {}});
        for (int id = firstNewId; id < firstNewId + added; ++id) {
            model.tracks.push_back({id, test::persistentIdOf(id), "<key>Name</key><string>new</string>"});
            for (FixturePlaylist& list : model.lists)
                list.trackIds.push_back(id);
        }
    }
};

TEST_F(RestorationTest, AnyLaterChangesOfOthersStay) {
    std::mt19937 random(20261121);
    const auto below = [&](int end) { return static_cast<int>(random() % static_cast<unsigned>(end)); };
    int changed = 0;
    for (int round = 0; round < 400; ++round) {
        const int count = 1 + below(20);
        Model whole{{}, {{"Library", "<key>Master</key><true/>", {}}, {"Mine", "", {}}, {"Other", "", {}}}};
        std::set<int> deleted;
        LaterChanges changes{{}, {}, below(4), below(3) == 0};
        std::vector<RecordedTrack> wanted;
        for (int id = 1; id <= count; ++id) {
            whole.tracks.push_back({id, test::persistentIdOf(id), ""});
            for (FixturePlaylist& list : whole.lists)
                if (list.name == "Library" || id == 1 || below(2) == 0) list.trackIds.push_back(id);
            // One stays everywhere, or nothing would tell the places.
            const int fate = id == 1 ? 3 : below(4);
            if (fate == 0) deleted.insert(id);
            if (fate == 0) wanted.push_back(track(test::persistentIdOf(id), id));
            if (fate == 1) changes.removed.insert(id);
            if (fate == 2) changes.rated.insert(id);
        }
        std::shuffle(whole.lists[1].trackIds.begin(), whole.lists[1].trackIds.end(), random);
        Model present = whole;
        present.remove(deleted);
        changes.applyTo(present, count + 1);
        Model expected = whole;
        changes.applyTo(expected, count + 1);
        changed += deleted.empty() || changes.removed.empty() ? 0 : 1;
        ASSERT_EQ(restored(whole.text(), present.text(), wanted), expected.text()) << "round " << round;
    }
    EXPECT_GT(changed, 200);
}

TEST_F(RestorationTest, AnIdThatHasAnotherOwnerIsReplacedInEntryAndItems) {
    const std::string text = libraryXml(fiveTracks, twoLists);
    // The library was numbered anew: 2 is A1 now, and A4 is 7.
    const std::string present = libraryXml({{2, "A1", ""}, {3, "A3", ""}, {7, "A4", ""}, {8, "A5", ""}},
                                           {{"Library", "<key>Master</key><true/>", {2, 3, 7, 8}}});
    const std::string expected = libraryXml({{2, "A1", ""},
                                             {9, "A2", "<key>Name</key><string>two</string>"},
                                             {3, "A3", ""},
                                             {7, "A4", ""},
                                             {8, "A5", ""}},
                                            {{"Library", "<key>Master</key><true/>", {2, 9, 3, 7, 8}}});
    EXPECT_EQ(restored(text, present, {track("A2", 2)}), expected);
    EXPECT_THAT(m_notes, ElementsAre(HasSubstr("new track ID"), "the playlist \"Mine\" is no longer there"));
}

TEST_F(RestorationTest, OfARebuiltLibraryGoesToItsEndAndSaysSo) {
    const std::string text = libraryXml(fiveTracks, twoLists);
    const std::string present = libraryXml({{1, "C1", ""}, {20, "C2", ""}}, {{"Mine", "", {1, 20}}});
    const std::string expected =
        libraryXml({{1, "C1", ""}, {20, "C2", ""}, {2, "A2", "<key>Name</key><string>two</string>"}},
                   {{"Mine", "", {2, 2, 2, 1, 20}}});
    EXPECT_EQ(restored(text, present, {track("A2", 2)}), expected);
    EXPECT_THAT(m_notes, ElementsAre("the library was rebuilt: the tracks go to its end",
                                     "the playlist \"Library\" is no longer there"));
}

TEST_F(RestorationTest, PlaylistsAreKnownByTheirIdBeforeTheirName) {
    const std::string id = "<key>Playlist Persistent ID</key><string>P1</string>";
    const std::string text = libraryXml({{1, "A1", ""}, {2, "A2", ""}}, {{"Mine", id, {1, 2}}});
    const std::string present = libraryXml({{1, "A1", ""}}, {{"Mine", "", {1}}, {"Renamed", id, {1}}});
    EXPECT_EQ(restored(text, present, {track("A2")}),
              libraryXml({{1, "A1", ""}, {2, "A2", ""}}, {{"Mine", "", {1}}, {"Renamed", id, {1, 2}}}));
}

TEST_F(RestorationTest, FillsContainersThatWereWrittenAsEmpty) {
    const auto xml = [](const std::string& tracks, const std::string& items) {
        return "<plist><dict><key>Tracks</key>" + tracks +
               "<key>Playlists</key><array>\n\t\t<dict>\n\t\t\t<key>Name</key><string>L</string>" + items +
               "\n\t\t</dict></array></dict></plist>";
    };
    const std::string entry = "\n<key>1</key><dict><key>Track ID</key><integer>1</integer><key>Persistent ID"
                              "</key><string>A1</string></dict>";
    const std::string item = "\n<dict><key>Track ID</key><integer>1</integer></dict>";
    const std::string itemsKey = "\n\t\t\t<key>Playlist Items</key>";
    const std::string text = xml("<dict>" + entry + "</dict>", itemsKey + "<array>" + item + "</array>");
    EXPECT_EQ(
        restored(text, xml("<dict/>", ""), {track("A1")}),
        xml("<dict>" + entry + "\n\t</dict>", itemsKey + "\n\t\t\t<array>" + item + "\n\t\t\t</array>"));
    EXPECT_EQ(restored(text, xml("<dict />", itemsKey + "<array/>"), {track("A1")}),
              xml("<dict>" + entry + "\n\t</dict>", itemsKey + "<array>" + item + "\n\t\t\t</array>"));
}

TEST_F(RestorationTest, OneOfSeveralTracksOfAnIdIsKnownByItsBytes) {
    const std::string second = "<key>Name</key><string>second</string>";
    const std::string text = libraryXml({{1, "A1", ""}, {2, "A1", second}, {3, "A1", ""}}, {});
    EXPECT_EQ(restored(text, without(text, {0, 2}), {track("A1")}), text);
    EXPECT_EQ(restored(text, without(text, {1}), {track("A1", 2)}), text);
}

TEST(EntryNumbers, AreChangedWhereITunesWritesThem) {
    EXPECT_EQ(entryWithTrackId("\n<key>12</key>\n<dict><key>Track ID</key><integer>12</integer></dict>", 345),
              "\n<key>345</key>\n<dict><key>Track ID</key><integer>345</integer></dict>");
    EXPECT_EQ(itemWithTrackId("<dict>\n<key>Track ID</key>\n<integer>1</integer>\n</dict>", 22),
              "<dict>\n<key>Track ID</key>\n<integer>22</integer>\n</dict>");
    EXPECT_FALSE(itemWithTrackId("<dict><key>Track ID</key><string>1</string></dict>", 2));
    EXPECT_FALSE(itemWithTrackId("<dict><key>Track ID</key><integer>x</integer></dict>", 2));
    EXPECT_FALSE(itemWithTrackId("<dict/>", 2));
    EXPECT_FALSE(entryWithTrackId("<key>a</key><dict><key>Track ID</key><integer>1</integer></dict>", 2));
}

} // namespace
} // namespace songsweep
