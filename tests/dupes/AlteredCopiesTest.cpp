// SPDX-License-Identifier: MIT
#include "AlteredCopies.h"

#include "dupes/BuildResultProc.h"
#include "library/ValueFormats.h"
#include "operations/NotificationCenter.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <map>
#include <unordered_map>

namespace songsweep {
namespace {

using test::KnownTrack;

/// What a search of the made-up library finds.
struct Found {
    int copies = 0; ///< altered ones that are in a group with their recording
    int others = 0; ///< recordings that are in a group with another one
    std::map<int, int> copiesOfAlteration;
};

/// 12 000 recordings and 4 800 altered copies, grouped by the real worker.
class AlteredCopies : public testing::Test {
  protected:
    Found search(const SearchParameters& parameters) {
        const auto list = std::make_shared<TrackList>();
        std::unordered_map<const TrackRecord*, const KnownTrack*> known;
        for (const KnownTrack& track : m_tracks) {
            TrackRecord& record = list->storage->makeRecord();
            record.name = list->storage->store(track.name);
            record.artist = list->storage->store(track.artist);
            record.album = list->storage->store(track.album);
            record.timev = track.seconds;
            record.time = list->storage->store(SecToTime(track.seconds * 1000));
            record.tracknumber = track.trackNumber;
            list->records.push_back(&record);
            known[&record] = &track;
        }
        std::map<std::int32_t, std::vector<const KnownTrack*>> groups;
        NotificationCenter<WorkerEvent> center;
        center.setObserver([&](const WorkerEvent& event) {
            if (event.name != EventName::step2) return;
            const TrackRecord* const record = std::get<TrackRecord*>(event.payload);
            groups[record->gid].push_back(known.at(record));
        });
        BuildResultProc(list, parameters, center).main();
        Found found;
        for (const auto& [gid, group] : groups)
            count(group, found);
        return found;
    }

    static void count(const std::vector<const KnownTrack*>& group, Found& found) {
        std::map<int, std::vector<const KnownTrack*>> recordings;
        for (const KnownTrack* const track : group)
            recordings[track->recording].push_back(track);
        found.others += static_cast<int>(recordings.size()) - 1;
        for (const auto& [recording, tracks] : recordings) {
            if (tracks.size() < 2) continue;
            const int alteration = std::max(tracks[0]->alteration, tracks[1]->alteration);
            ++found.copies;
            ++found.copiesOfAlteration[alteration];
        }
    }

    void tell(const char* name, const Found& found) {
        RecordProperty(std::string(name) + "Copies", found.copies);
        RecordProperty(std::string(name) + "Others", found.others);
        std::printf("%s: %d of 4800 copies, %d other recordings\n", name, found.copies, found.others);
    }

    std::vector<KnownTrack> m_tracks = test::alteredCopies(12'000);
    SearchParameters m_exact{.issamename = true, .issameartist = true, .issametime = true};
};

TEST_F(AlteredCopies, SmallDifferencesFindMostAndAddNoOtherRecording) {
    ASSERT_EQ(m_tracks.size(), 16'800U);
    const Found exact = search(m_exact);
    SearchParameters similar = m_exact;
    similar.issimilar = true;
    const Found loose = search(similar);
    tell("exact", exact);
    tell("similar", loose);
    for (int alteration = 0; alteration < test::alterationCount(); ++alteration)
        if (loose.copiesOfAlteration.count(alteration) == 0 || loose.copiesOfAlteration.at(alteration) < 190)
            std::printf("  missed: %s\n", test::alterationName(alteration));
    EXPECT_EQ(exact.others, 0);
    EXPECT_EQ(loose.others, 0);
    EXPECT_LT(exact.copies, 1'700);
    EXPECT_GE(loose.copies, 4'200);
    for (const auto& [alteration, copies] : exact.copiesOfAlteration)
        EXPECT_GE(loose.copiesOfAlteration.at(alteration), copies) << test::alterationName(alteration);
}

TEST_F(AlteredCopies, WithoutTheTimeOtherRecordingsAreAmongThem) {
    SearchParameters timeless = m_exact;
    timeless.issametime = false;
    const Found found = search(timeless);
    tell("withoutTime", found);
    EXPECT_GT(found.others, 200);
}

} // namespace
} // namespace songsweep
