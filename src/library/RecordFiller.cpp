// SPDX-License-Identifier: MIT
#include "library/RecordFiller.h"

#include "library/CaseFolding.h"
#include "library/LibraryValues.h"

#include <stdexcept>

namespace songsweep {

void RecordFiller::store(TrackRecord& record, LibraryKey key, std::string_view text) {
    switch (key) {
    case LibraryKey::name:
        append(record.name, text);
        return;
    case LibraryKey::artist:
        appendRepeating(record.artist, text, m_lastArtist);
        return;
    case LibraryKey::album:
        appendRepeating(record.album, text, m_lastAlbum);
        return;
    case LibraryKey::size:
        record.size = m_storage.store(text);
        return;
    case LibraryKey::bitRate:
        record.bitrate = m_storage.intern(text);
        return;
    case LibraryKey::trackId:
        record.trackid = m_storage.store(text);
        return;
    case LibraryKey::totalTime:
        storeDuration(record, text);
        return;
    case LibraryKey::persistentId:
        record.pid = m_storage.store(text);
        return;
    case LibraryKey::location:
        append(record.location, text);
        return;
    case LibraryKey::rating:
        record.rating = starsOf(integerValue(text));
        return;
    case LibraryKey::playCount:
        record.playcount = m_storage.intern(text);
        return;
    case LibraryKey::artworkCount:
        record.hasartwork |= artworkCountOf(text) > 0;
        return;
    case LibraryKey::trackType:
        record.isfile |= lowercase(text) == "file";
        return;
    case LibraryKey::dateAdded:
        storeDate(record, text);
        return;
    case LibraryKey::trackNumber:
        record.tracknumber = trackNumberOf(text);
        return;
    default: // what a record does not keep
        return;
    }
}

void RecordFiller::finish() {
    if (m_joinedField) *m_joinedField = m_storage.store(m_joined);
    m_joinedField = nullptr;
}

void RecordFiller::append(Text& field, std::string_view piece) {
    if (!join(field, piece)) field = m_storage.store(piece);
}

void RecordFiller::appendRepeating(Text& field, std::string_view piece, Text& last) {
    if (!join(field, piece)) field = last = m_storage.intern(piece, last);
}

bool RecordFiller::join(Text& field, std::string_view piece) {
    if (field.empty()) return false;
    if (m_joinedField != &field) {
        finish();
        m_joinedField = &field;
        m_joined = field.view();
    }
    m_joined += piece;
    return true;
}

void RecordFiller::storeDuration(TrackRecord& record, std::string_view milliseconds) {
    const std::string time = durationOf(milliseconds);
    record.timev = TimestringToSec(time);
    record.time = m_storage.intern(time);
}

void RecordFiller::storeDate(TrackRecord& record, std::string_view text) {
    const std::optional<std::int64_t> date = parseLibraryDate(text);
    if (!date) throw std::runtime_error("\"" + std::string(text) + "\" is no date");
    record.dateaddedv = *date;
    record.hasdate = true;
}

} // namespace songsweep
