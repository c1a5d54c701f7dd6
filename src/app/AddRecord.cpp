// SPDX-License-Identifier: MIT
#include "app/AddRecord.h"

#include "library/LibraryValues.h"
#include "platform/Epochs.h"
#include "platform/LocalTime.h"
#include "scripting/Descriptor.h"

#include <cmath>
#include <cstring>
#include <ctime>

namespace songsweep {

namespace {

/// The values of a track item, by their place in the list that the batch script builds.
enum Item {
    nameItem = 1,
    artistItem,
    albumItem,
    timeItem,
    bitrateItem,
    sizeItem,
    dateAddedItem,
    ratingItem,
    pidItem,
    playcountItem,
    locationItem,
    artworksItem,
};

std::string textAt(const Descriptor& item, Item place) {
    const Descriptor* const value = item.descriptorAtIndex(place);
    return value ? value->stringValue().value_or(std::string()) : std::string();
}

void setDateAdded(TrackRecord& record, const Descriptor& item) {
    const Descriptor* const value = item.descriptorAtIndex(dateAddedItem);
    if (!value) return;
    const std::vector<std::byte> data = value->data();
    std::int64_t longDateTime = 0;
    if (!std::holds_alternative<Descriptor::Date>(value->value()) || data.size() != sizeof longDateTime)
        return;
    std::memcpy(&longDateTime, data.data(), sizeof longDateTime);
    record.dateaddedv = minuteOfLongDateTime(longDateTime);
    record.hasdate = true;
}

void setTexts(TrackRecord& record, TrackStorage& storage, const Descriptor& item) {
    record.name = storage.store(textAt(item, nameItem));
    record.artist = storage.intern(textAt(item, artistItem));
    record.album = storage.intern(textAt(item, albumItem));
    record.time = storage.intern(textAt(item, timeItem));
    record.bitrate = storage.intern(textAt(item, bitrateItem));
    record.size = storage.store(textAt(item, sizeItem));
    record.pid = storage.store(textAt(item, pidItem));
    record.playcount = storage.intern(textAt(item, playcountItem));
    record.location = storage.store(textAt(item, locationItem));
}

} // namespace

std::int64_t minuteOfLongDateTime(std::int64_t longDateTime) {
    const std::int64_t reference = secondsSince1970(referenceDateEpoch);
    const std::int64_t sinceReference = utcOfLongDateTime(longDateTime) - reference;
    return std::llround(static_cast<double>(sinceReference) / 60.0) * 60 + reference;
}

bool isDeadTrackItem(const Descriptor& item) { return textAt(item, locationItem) == missingLocation; }

TrackRecord& makeRecord(TrackStorage& storage, const Descriptor& item) {
    TrackRecord& record = storage.makeRecord();
    record.fromlibraryfile = false;
    setTexts(record, storage, item);
    setDateAdded(record, item);
    record.timev = TimestringToSec(record.time);
    const Descriptor* const rating = item.descriptorAtIndex(ratingItem);
    record.rating = rating ? starsOf(rating->int32Value()) : 0;
    record.isdead = record.location == missingLocation;
    const Descriptor* const artworks = item.descriptorAtIndex(artworksItem);
    record.hasartwork = artworks && artworks->numberOfItems() > 0;
    return record;
}

} // namespace songsweep
