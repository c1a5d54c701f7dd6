// SPDX-License-Identifier: MIT
#pragma once

#include "library/TrackRecord.h"

#include <string>

namespace songsweep {

/// What a rule found of a row when it had seen the whole group.
struct MarkVerdict {
    bool checked = false; ///< the rule checks the row
    std::string reason;   ///< why, without a capital or a full stop; empty where it does not
};

/// A copy that a rule checks, beside the one that it keeps.
struct CheckedCopy {
    const TrackRecord& record;
    const TrackRecord& kept;
    const std::string& text; ///< the kind or folder that the rule was given
    bool loses;              ///< by its value, and not only because another copy stays
};

/// The words of a rule in English: "lower bit rate", "same bit rate", and what makes a reason of them, which
/// is in the user's language.
struct MarkWords {
    const char* loses;
    const char* ties; ///< of a copy that goes although it does not lose
    std::string (*reason)(const MarkWords& rule, const CheckedCopy& copy);
};

/// A reason tells the values as the library has them. Where two of them are one number to the rule alone, it
/// does not call them the same.

/// "lower bit rate than the kept copy: 128 against 320", "same bit rate as the kept copy: 320".
std::string bitrateReason(const MarkWords& rule, const CheckedCopy& copy);
std::string timeReason(const MarkWords& rule, const CheckedCopy& copy);
/// In bytes where the sizes read alike in megabytes, or are beyond what the rule counts.
std::string sizeReason(const MarkWords& rule, const CheckedCopy& copy);
/// With seconds where two dates are in one minute.
std::string dateReason(const MarkWords& rule, const CheckedCopy& copy);
std::string ratingReason(const MarkWords& rule, const CheckedCopy& copy);
std::string playCountReason(const MarkWords& rule, const CheckedCopy& copy);
/// The words alone: "no artwork".
std::string plainReason(const MarkWords& rule, const CheckedCopy& copy);
/// "of the kind MP3", "another copy is kept".
std::string textReason(const MarkWords& rule, const CheckedCopy& copy);

} // namespace songsweep
