// SPDX-License-Identifier: MIT
//
// Random libraries, groups and marks: no playlist loses a song, no play is lost, and a restore gives every
// byte back.
#include "libraryfile/LibraryDocument.h"
#include "merge/MergedDeletion.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <set>

namespace songsweep {
namespace {

using test::MergedDeletion;

/// A library of songs of one to six copies, with marks.
class RandomLibrary {
  public:
    explicit RandomLibrary(unsigned seed)
        : m_random(seed) {
        const int songs = 1 + below(8);
        for (int song = 1; song <= songs; ++song)
            for (int copy = 1 + below(6); copy > 0; --copy)
                addTrack(song);
        std::shuffle(m_tracks.begin(), m_tracks.end(), m_random);
        addPlaylists();
    }

    std::string xml() const { return test::libraryXml(m_tracks, m_playlists); }
    std::vector<test::MarkedCopy> copies() const {
        std::vector<test::MarkedCopy> copies;
        for (const auto& [id, copy] : m_copies)
            copies.push_back(copy);
        return copies;
    }
    /// Songs that lose copies and keep exactly one.
    std::set<int> mergedSongs() const {
        std::map<int, int> marked;
        std::map<int, int> staying;
        for (const auto& [id, copy] : m_copies)
            ++(copy.isMarked ? marked : staying)[copy.gid];
        std::set<int> songs;
        for (const auto& [song, count] : marked)
            if (staying[song] == 1) songs.insert(song);
        return songs;
    }
    const test::MarkedCopy& copy(int id) const { return m_copies.at(id); }

  private:
    int below(int end) { return static_cast<int>(m_random() % static_cast<unsigned>(end)); }
    bool oneIn(int count) { return below(count) == 0; }

    std::string number(const std::string& key, int end) {
        if (oneIn(3)) return {};
        return "<key>" + key + "</key><integer>" + std::to_string(below(end)) + "</integer>\n\t\t\t";
    }
    std::string date(const std::string& key) {
        if (oneIn(3)) return {};
        return "<key>" + key + "</key><date>20" + std::to_string(10 + below(10)) + "-0" +
               std::to_string(1 + below(9)) + "-01T10:20:30Z</date>\n\t\t\t";
    }
    std::string truth(const std::string& key) {
        return oneIn(3) ? "<key>" + key + "</key><true/>\n\t\t\t" : std::string();
    }

    void addTrack(int song) {
        const int id = 100 + static_cast<int>(m_copies.size());
        const std::string pid = test::persistentIdOf(id);
        m_tracks.push_back({id, pid,
                            number("Play Count", 50) + number("Skip Count", 9) + number("Rating", 100) +
                                truth("Rating Computed") + date("Play Date UTC") + date("Skip Date") +
                                date("Date Added") + truth("Loved") + truth("Disabled") +
                                number("Year", 2000) + number("Album Rating", 100) +
                                "<key>Name</key><string>Song &#38; " + std::to_string(song) + "</string>"});
        m_copies[id] = {song, pid, !oneIn(3)};
    }

    void addPlaylists() {
        const std::vector<std::string> flags{"",
                                             "",
                                             "",
                                             "<key>Smart Info</key><data/>",
                                             "<key>Folder</key><true/>",
                                             "<key>Distinguished Kind</key><integer>4</integer>"};
        if (!oneIn(4)) m_playlists.push_back({"Library", oneIn(4) ? "" : "<key>Master</key><true/>", {}});
        if (!m_playlists.empty())
            for (const auto& track : m_tracks)
                m_playlists.front().trackIds.push_back(track.id);
        for (int i = below(6); i >= 0; --i) {
            test::FixturePlaylist& playlist = m_playlists.emplace_back();
            playlist.name = "List " + std::to_string(i);
            playlist.flags = flags[static_cast<std::size_t>(below(static_cast<int>(flags.size())))];
            for (int items = below(20); items > 0; --items)
                playlist.trackIds.push_back(
                    m_tracks[static_cast<std::size_t>(below(static_cast<int>(m_tracks.size())))].id);
        }
    }

    std::mt19937 m_random;
    std::vector<test::FixtureTrack> m_tracks;
    std::map<int, test::MarkedCopy> m_copies; ///< by track ID
    std::vector<test::FixturePlaylist> m_playlists;
};

/// What a file says of playlists and plays, read by the index.
struct Contents {
    std::vector<std::vector<int>> playlists; ///< track IDs, in the order of the file
    std::map<int, std::int64_t> plays;
};

Contents contentsOf(const std::string& path) {
    Contents contents;
    auto opened = LibraryDocument::open(path);
    EXPECT_TRUE(opened);
    LibraryDocument& library = *opened.value();
    for (std::size_t i = 0; i < library.playlistCount(); ++i) {
        auto& ids = contents.playlists.emplace_back();
        for (const ItemSlot& item : library.playlist(i).items)
            ids.push_back(static_cast<int>(library.trackId(item.track)));
    }
    for (int id = 100; id < 200; ++id)
        for (const auto track : library.tracksWithTrackId(id)) {
            const EntryValue* const value = library.values(track).value()->find("Play Count");
            contents.plays[id] = value ? std::stoll(value->text) : 0;
        }
    return contents;
}

std::vector<bool> arePlaces(const std::string& path) {
    std::vector<bool> places;
    const auto library = LibraryDocument::open(path);
    for (std::size_t i = 0; i < library.value()->playlistCount(); ++i) {
        const PlaylistSlot& slot = library.value()->playlist(i);
        places.push_back(i > 0 && !slot.smart && !slot.folder && slot.distinguishedKind == 0);
    }
    return places;
}

/// What a playlist is to be, worked out item by item: of a merged song the first items stay, as many as the
/// copy had that stood there most often, and are the kept copy's; marked copies of others go.
std::vector<int> expectedItems(const std::vector<int>& before, const RandomLibrary& library, bool isPlace) {
    const std::set<int> merged = isPlace ? library.mergedSongs() : std::set<int>();
    std::map<int, int> kept;
    for (int id = 100; id < 200; ++id)
        try {
            if (!library.copy(id).isMarked) kept[library.copy(id).gid] = id;
        } catch (const std::out_of_range&) {
            break;
        }
    std::map<int, int> most;
    for (const int id : before)
        most[library.copy(id).gid] =
            std::max(most[library.copy(id).gid], static_cast<int>(std::ranges::count(before, id)));
    std::vector<int> items;
    for (const int id : before) {
        const int song = library.copy(id).gid;
        if (merged.contains(song)) {
            if (most[song]-- > 0) items.push_back(kept[song]);
        } else if (!library.copy(id).isMarked) {
            items.push_back(id);
        }
    }
    return items;
}

void expectMerged(const Contents& before, const Contents& after, const RandomLibrary& library,
                  const std::vector<bool>& places) {
    const std::set<int> merged = library.mergedSongs();
    ASSERT_EQ(before.playlists.size(), after.playlists.size());
    for (std::size_t i = 0; i < before.playlists.size(); ++i)
        EXPECT_EQ(after.playlists[i], expectedItems(before.playlists[i], library, places[i]))
            << "playlist " << i;
    std::map<int, std::int64_t> playsBefore;
    std::map<int, std::int64_t> playsAfter;
    for (const auto& [id, plays] : before.plays)
        if (merged.contains(library.copy(id).gid)) playsBefore[library.copy(id).gid] += plays;
    for (const auto& [id, plays] : after.plays)
        if (merged.contains(library.copy(id).gid)) playsAfter[library.copy(id).gid] += plays;
    EXPECT_EQ(playsBefore, playsAfter);
}

TEST(MergedDeletionPropertyTest, NoSongLeavesAPlaylistAndNoPlayIsLost) {
    std::size_t merged = 0;
    for (unsigned seed = 1; seed <= 150; ++seed) {
        const RandomLibrary library(seed);
        MergedDeletion deletion(library.xml(), library.copies());
        const Contents before = contentsOf(deletion.path());
        const std::vector<bool> places = arePlaces(deletion.path());
        const DeleteReport report = deletion.carryOut({.places = true, .history = true, .fillIns = true});
        EXPECT_TRUE(report.allDealtWith());
        EXPECT_LE(deletion.writes(), 1);
        expectMerged(before, contentsOf(deletion.path()), library, places);
        merged += library.mergedSongs().size();
        if (report.record.empty()) continue;
        deletion.restore();
        EXPECT_TRUE(deletion.content() == library.xml()) << "seed " << seed;
        ASSERT_FALSE(testing::Test::HasFailure()) << "seed " << seed;
    }
    EXPECT_GT(merged, 200U);
}

} // namespace
} // namespace songsweep
