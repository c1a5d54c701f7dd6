// SPDX-License-Identifier: MIT
#include "library/RecordFiller.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace songsweep {
namespace {

class RecordFillerTest : public testing::Test {
  protected:
    void store(LibraryKey key, std::string_view text) { m_filler.store(m_record, key, text); }

    TrackStorage m_storage;
    RecordFiller m_filler{m_storage};
    TrackRecord& m_record = m_storage.makeRecord();
};

TEST_F(RecordFillerTest, StoresEveryKnownValue) {
    store(LibraryKey::name, "Song");
    store(LibraryKey::artist, "Artist");
    store(LibraryKey::album, "Album");
    store(LibraryKey::size, "3221225472");
    store(LibraryKey::bitRate, "256");
    store(LibraryKey::trackId, "1873");
    store(LibraryKey::totalTime, "187501");
    store(LibraryKey::persistentId, "6B0F3E1C22C4A9D7");
    store(LibraryKey::location, "file://localhost/a%20b");
    store(LibraryKey::rating, "90");
    store(LibraryKey::playCount, "012");
    store(LibraryKey::artworkCount, "1");
    store(LibraryKey::trackType, "FILE");
    store(LibraryKey::dateAdded, "2009-03-14T15:09:26Z");
    EXPECT_EQ(m_record.name, "Song");
    EXPECT_EQ(m_record.artist, "Artist");
    EXPECT_EQ(m_record.album, "Album");
    EXPECT_EQ(m_record.size, "3221225472");
    EXPECT_EQ(m_record.bitrate, "256");
    EXPECT_EQ(m_record.trackid, "1873");
    EXPECT_EQ(m_record.time, "3:08");
    EXPECT_EQ(m_record.timev, 188);
    EXPECT_EQ(m_record.pid, "6B0F3E1C22C4A9D7");
    EXPECT_EQ(m_record.location, "file://localhost/a%20b");
    EXPECT_EQ(m_record.rating, 4);
    EXPECT_EQ(m_record.playcount, "012");
    EXPECT_TRUE(m_record.hasartwork);
    EXPECT_TRUE(m_record.isfile);
    EXPECT_EQ(m_record.dateaddedv, 1237043366);
    EXPECT_TRUE(m_record.hasdate);
}

TEST_F(RecordFillerTest, ATrackNumberBeyondAllAlbumsIsNone) {
    store(LibraryKey::trackNumber, "7");
    EXPECT_EQ(m_record.tracknumber, 7);
    store(LibraryKey::trackNumber, "65543");
    EXPECT_EQ(m_record.tracknumber, 0);
}

TEST_F(RecordFillerTest, ARatingBelowOneStarIsNone) {
    store(LibraryKey::rating, "19");
    EXPECT_EQ(m_record.rating, 0);
    store(LibraryKey::rating, "100");
    EXPECT_EQ(m_record.rating, 5);
}

TEST_F(RecordFillerTest, FlagsAreNeverTakenBack) {
    store(LibraryKey::artworkCount, "2");
    store(LibraryKey::artworkCount, "0");
    store(LibraryKey::trackType, "File");
    store(LibraryKey::trackType, "URL");
    EXPECT_TRUE(m_record.hasartwork);
    EXPECT_TRUE(m_record.isfile);
}

TEST_F(RecordFillerTest, OtherTrackTypesAreNoFile) {
    for (const char* type : {"URL", "Remote", "Files", "0"})
        store(LibraryKey::trackType, type);
    EXPECT_FALSE(m_record.isfile);
}

TEST_F(RecordFillerTest, JoinsThePiecesOfTextsAndTakesTheLastOfOthers) {
    for (const char* piece : {"1", "2", "3"}) {
        store(LibraryKey::name, piece);
        store(LibraryKey::artist, piece);
        store(LibraryKey::album, piece);
        store(LibraryKey::location, piece);
        store(LibraryKey::size, piece);
        store(LibraryKey::persistentId, piece);
        store(LibraryKey::playCount, piece);
        store(LibraryKey::trackId, piece);
        store(LibraryKey::bitRate, piece);
    }
    m_filler.finish();
    EXPECT_EQ(m_record.name, "123");
    EXPECT_EQ(m_record.artist, "123");
    EXPECT_EQ(m_record.album, "123");
    EXPECT_EQ(m_record.location, "123");
    EXPECT_EQ(m_record.size, "3");
    EXPECT_EQ(m_record.pid, "3");
    EXPECT_EQ(m_record.playcount, "3");
    EXPECT_EQ(m_record.trackid, "3");
    EXPECT_EQ(m_record.bitrate, "3");
}

TEST_F(RecordFillerTest, JoinsVeryManyPieces) {
    for (int i = 0; i < 200'000; ++i)
        store(LibraryKey::name, "piece");
    m_filler.finish();
    EXPECT_EQ(m_record.name.view().size(), 1'000'000U);
}

TEST_F(RecordFillerTest, JoiningOneRecordLeavesTheOthers) {
    TrackRecord& other = m_storage.makeRecord();
    store(LibraryKey::artist, "A");
    m_filler.store(other, LibraryKey::artist, "A");
    store(LibraryKey::artist, "B");
    m_filler.finish();
    EXPECT_EQ(m_record.artist, "AB");
    EXPECT_EQ(other.artist, "A");
}

TEST_F(RecordFillerTest, ADateThatIsNoneFails) {
    EXPECT_THROW(store(LibraryKey::dateAdded, "yesterday"), std::runtime_error);
    EXPECT_FALSE(m_record.hasdate);
}

TEST_F(RecordFillerTest, EqualArtistsAreKeptOnce) {
    TrackRecord& other = m_storage.makeRecord();
    store(LibraryKey::artist, "Artist");
    m_filler.store(other, LibraryKey::artist, "Artist");
    EXPECT_EQ(m_record.artist.c_str(), other.artist.c_str());
}

} // namespace
} // namespace songsweep
