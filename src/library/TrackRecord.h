// SPDX-License-Identifier: MIT
#pragma once

#include "library/SoundFinding.h"
#include "library/Text.h"

#include <cstdint>

namespace songsweep {

/// One track, as the readers, the grouping, the marking rules, the table and the deletion share it.
///
/// The fields carry the names of the record's keys; texts come first, since a million records count their
/// bytes. "sizestring" and "dateadded" are no fields: they are worked out when somebody looks
/// (ValueFormats.h). Texts live in the TrackStorage that made the record. Handed from thread to thread by the
/// chain of events, never used by two at once.
struct TrackRecord {
    Text name{};
    Text artist{};
    Text album{};
    Text time{};          ///< duration for display, "3:07" or "1:02:03"
    Text bitrate{};       ///< kbit/s, decimal text exactly as the library gives it
    Text size{};          ///< bytes, decimal text exactly as the library gives it
    Text pid = "0";       ///< persistent ID, hexadecimal text as the library writes it
    Text playcount = "0"; ///< decimal text
    Text location{};      ///< POSIX path; "msng" for a track without a file where iTunes was asked
    Text trackid{};       ///< the library's numeric ID; only of the XML reader

    std::int64_t dateaddedv = 0; ///< seconds since 1970-01-01 00:00:00 UTC; 0 stands for no date
    std::int32_t timev = 0;      ///< whole seconds, of the text in "time"
    std::int32_t gid = 0;        ///< duplicate group, from 1; 0 for none
    std::int32_t rating = 0;     ///< stars, 0 to 5
    bool checkbox = false;       ///< marked for deletion
    bool showid = false;         ///< band parity: true is the tinted band
    bool hasartwork = false;
    bool isfile = false;         ///< only of the XML reader
    bool isdead = false;         ///< the file is missing
    bool hasdate = false;        ///< the library gave a date; without one "dateadded" is empty
    bool fromlibraryfile = true; ///< made by the XML reader, so that "isfile" and "trackid" exist
    std::int16_t tracknumber =
        0;                ///< on its album, from 1; only of the XML reader, for names that begin with it
    SoundFinding sound{}; ///< of the present comparison of sounds
};

} // namespace songsweep
