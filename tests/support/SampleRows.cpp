// SPDX-License-Identifier: MIT
#include "support/SampleRows.h"

#include "library/ValueFormats.h"

#include <string>

namespace songsweep::test {

namespace {

struct Row {
    int gid;
    const char* name;
    const char* artist;
    const char* album;
    const char* time;
    const char* bitrate;
    const char* size;
    int rating;
    const char* playcount;
    const char* date;
    bool hasartwork;
    const char* location;
    bool checkbox = false;
    bool isdead = false;
};

constexpr Row sample[] = {
    {1, "Amber Letters", "Nora Vale", "Paper Lanterns", "3:42", "320", "8912896", 4, "57",
     "2009-03-14T15:09:00Z", true, "/music/Nora Vale/Paper Lanterns/01 Amber Letters.mp3"},
    {1, "Amber Letters", "Nora Vale", "Paper Lanterns", "3:42", "192", "5347737", 0, "3",
     "2012-11-02T20:41:00Z", false, "/music/Nora Vale/Paper Lanterns/01 Amber Letters 1.mp3", true},
    {2, "Cold Harbour Lights", "The Tin Orchard", "Low Water", "4:15", "256", "8178892", 3, "21",
     "2010-06-30T09:12:00Z", true, "/music/The Tin Orchard/Low Water/04 Cold Harbour Lights.m4a"},
    {2, "Cold harbour lights", "The Tin Orchard", "Low Water (Live)", "4:15", "256", "8178892", 3, "18",
     "2010-06-30T09:14:00Z", true, "/music/The Tin Orchard/Low Water (Live)/04 Cold harbour lights.m4a"},
    {3, "Été à Solenne", "Délia Morand", "Carnet de route", "2:58", "320", "7130316", 5, "104",
     "2011-09-08T18:30:00Z", true, "/music/Délia Morand/Carnet de route/02 Été à Solenne.mp3"},
    {3, "Été à Solenne", "Délia Morand", "Carnet de route", "2:58", "160", "3565158", 0, "0",
     "2014-01-19T22:05:00Z", false, "/music/Délia Morand/Carnet de route/02 Été à Solenne 1.mp3", true},
    {3, "Été à Solenne", "Délia Morand", "Summer Mix", "2:58", "128", "2831155", 2, "9",
     "2007-05-23T07:55:00Z", false, "/music/Délia Morand/Summer Mix/11 Été à Solenne.mp3", true, true},
    {4, "Kites over Maren", "Ilse Brandt Quartet", "Northern Rooms", "6:31", "900", "44040192", 5, "33",
     "2015-12-11T13:47:00Z", true, "/music/Ilse Brandt Quartet/Northern Rooms/07 Kites over Maren.flac"},
    {4, "Kites over Maren", "Ilse Brandt Quartet", "Northern Rooms", "6:31", "256", "12478054", 0, "12",
     "2013-02-04T16:20:00Z", true, "/music/Ilse Brandt Quartet/Northern Rooms/07 Kites over Maren.m4a"},
    {5, "Slow Train to Olda", "Marek Dunn & the Ferrymen", "Everything by Hand", "1:02:03", "192", "89338675",
     1, "2", "2016-08-17T11:03:00Z", false,
     "/music/Marek Dunn & the Ferrymen/Everything by Hand/Slow Train.mp3"},
    {5, "Slow Train to Olda", "Marek Dunn & the Ferrymen", "Everything by Hand", "1:02:03", "128", "59559117",
     0, "1", "2016-08-17T11:01:00Z", false, "/music/Marek Dunn & the Ferrymen/Everything by Hand/Train.mp3"},
    {5, "Slow Train to Olda", "Marek Dunn & the Ferrymen", "Long Player, Disc 2", "1:02:03", "96", "44669337",
     0, "0", "2016-08-25T08:38:00Z", false, "/music/Marek Dunn & the Ferrymen/Long Player, Disc 2/Train.mp3"},
};

TrackRecord& makeRecord(TrackStorage& storage, const Row& row) {
    TrackRecord& record = storage.makeRecord();
    record.name = row.name;
    record.artist = row.artist;
    record.album = row.album;
    record.time = row.time;
    record.timev = TimestringToSec(row.time);
    record.bitrate = row.bitrate;
    record.size = row.size;
    record.rating = row.rating;
    record.playcount = row.playcount;
    record.dateaddedv = parseLibraryDate(row.date).value_or(0);
    record.hasdate = true;
    record.hasartwork = row.hasartwork;
    record.location = row.location;
    record.checkbox = row.checkbox;
    record.isdead = row.isdead;
    record.gid = row.gid;
    return record;
}

} // namespace

DisplayedList sampleRows() {
    DisplayedList list{.rows = {}, .storage = std::make_shared<TrackStorage>()};
    for (const Row& row : sample)
        list.rows.push_back(&makeRecord(*list.storage, row));
    realignShowID(list.rows);
    return list;
}

DisplayedList manyRows(int groups, int copies) {
    DisplayedList list{.rows = {}, .storage = std::make_shared<TrackStorage>()};
    list.rows.reserve(static_cast<std::size_t>(groups) * static_cast<std::size_t>(copies));
    for (int group = 0; group < groups; ++group) {
        const Text name = list.storage->store("Song " + std::to_string(group));
        for (int copy = 0; copy < copies; ++copy) {
            TrackRecord& record = list.storage->makeRecord();
            record.name = name;
            record.artist = "Somebody";
            record.bitrate = list.storage->intern(std::to_string(320 - 32 * copy));
            record.gid = group + 1;
            list.rows.push_back(&record);
        }
    }
    realignShowID(list.rows);
    return list;
}

} // namespace songsweep::test
