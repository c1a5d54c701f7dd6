// SPDX-License-Identifier: MIT
#include "libraryfile/SameTracks.h"

#include <gtest/gtest.h>

#include <memory>

namespace songsweep {
namespace {

class SameTracks : public testing::Test {
  protected:
    void add(std::string_view slotId, Text recordId) {
        const PersistentId id = PersistentId::of(slotId);
        m_tracks.push_back({.persistentId = id.value, .persistentIdKind = id.kind});
        addRecord(recordId);
    }
    void addRecord(Text id) {
        m_made.push_back(std::make_unique<TrackRecord>());
        m_made.back()->pid = id;
        m_records.push_back(m_made.back().get());
    }
    bool areSame() const { return areSameTracks(m_tracks, m_records); }

    std::vector<TrackSlot> m_tracks;
    std::vector<std::unique_ptr<TrackRecord>> m_made;
    std::vector<TrackRecord*> m_records;
};

TEST_F(SameTracks, AreThoseOfTheSameIdsInTheSameOrder) {
    EXPECT_TRUE(areSame());
    add("00000000000000A1", "00000000000000A1");
    add("00000000000000A2", "00000000000000a2");
    add("made by hand", "Made By Hand");
    EXPECT_TRUE(areSame());
    std::swap(m_records[0], m_records[1]);
    EXPECT_FALSE(areSame());
}

TEST_F(SameTracks, AreNotThoseOfOneOtherId) {
    add("00000000000000A1", "00000000000000A1");
    add("00000000000000A2", "00000000000000A3");
    EXPECT_FALSE(areSame());
}

TEST_F(SameTracks, TellADigestFromTheNumberOfItsValue) {
    add("made by hand", "made by hand");
    m_tracks[0].persistentIdKind = PersistentId::Kind::exact;
    EXPECT_FALSE(areSame());
}

TEST_F(SameTracks, TakeTheInitialValueWhereTheLibraryHasNoId) {
    add("", TrackRecord().pid);
    EXPECT_TRUE(areSame());
    add("0", "0");
    EXPECT_TRUE(areSame());
    add("", "00000000000000A1");
    EXPECT_FALSE(areSame());
}

TEST_F(SameTracks, AreNeitherMoreNorFewer) {
    add("00000000000000A1", "00000000000000A1");
    addRecord("00000000000000A2");
    EXPECT_FALSE(areSame());
    m_records.clear();
    EXPECT_FALSE(areSame());
}

TEST_F(SameTracks, LeaveOutWhatIsDeleted) {
    add("00000000000000A1", "00000000000000A1");
    add("00000000000000A2", "00000000000000A2");
    m_tracks[0].deleted = true;
    EXPECT_FALSE(areSame());
    m_records.erase(m_records.begin());
    EXPECT_TRUE(areSame());
}

} // namespace
} // namespace songsweep
