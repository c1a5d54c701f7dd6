// SPDX-License-Identifier: MIT
#include "dupes/MarkReason.h"

#include "library/ValueFormats.h"

namespace songsweep {

namespace {

std::string textOrNone(std::string_view text) { return text.empty() ? "none" : std::string(text); }

std::string bytesText(const TrackRecord& record) {
    return record.size.empty() ? textOrNone({}) : record.size.string() + " bytes";
}

/// Whether a rule, which counts to 2147483647, sees another number than the one that stands there.
bool isClipped(std::string_view text) {
    const auto number = wholeNumber(text);
    return number && *number != integerValue(text);
}

std::string playsText(const TrackRecord& record) {
    return record.playcount.empty() ? "0" : record.playcount.string();
}

/// From the values of the copy and of the kept one, as they read on display.
std::string valueReason(const MarkWords& words, bool loses, const std::string& own, const std::string& kept) {
    if (!loses && own != kept) return "no difference that the rule can see: " + own + " against " + kept;
    if (!loses) return std::string(words.ties) + " as the kept copy: " + own;
    return std::string(words.loses) + " than the kept copy: " + own + " against " + kept;
}

} // namespace

std::string bitrateReason(const MarkWords& words, const CheckedCopy& copy) {
    return valueReason(words, copy.loses, textOrNone(copy.record.bitrate), textOrNone(copy.kept.bitrate));
}

std::string timeReason(const MarkWords& words, const CheckedCopy& copy) {
    return valueReason(words, copy.loses, textOrNone(copy.record.time), textOrNone(copy.kept.time));
}

std::string sizeReason(const MarkWords& words, const CheckedCopy& copy) {
    const std::string own = textOrNone(sizestring(copy.record));
    const std::string kept = textOrNone(sizestring(copy.kept));
    const bool alike = own == kept && copy.record.size != copy.kept.size;
    if (alike || isClipped(copy.record.size) || isClipped(copy.kept.size))
        return valueReason(words, copy.loses, bytesText(copy.record), bytesText(copy.kept));
    return valueReason(words, copy.loses, own, kept);
}

std::string dateReason(const MarkWords& words, const CheckedCopy& copy) {
    const std::string own = textOrNone(dateadded(copy.record));
    const std::string kept = textOrNone(dateadded(copy.kept));
    if (copy.loses && own == kept)
        return valueReason(words, copy.loses, dateTimeWithSeconds(copy.record.dateaddedv),
                           dateTimeWithSeconds(copy.kept.dateaddedv));
    return valueReason(words, copy.loses, own, kept);
}

std::string ratingReason(const MarkWords& words, const CheckedCopy& copy) {
    return valueReason(words, copy.loses, std::to_string(copy.record.rating),
                       std::to_string(copy.kept.rating));
}

std::string playCountReason(const MarkWords& words, const CheckedCopy& copy) {
    return valueReason(words, copy.loses, playsText(copy.record), playsText(copy.kept));
}

std::string plainReason(const MarkWords& words, const CheckedCopy& copy) {
    return copy.loses ? words.loses : words.ties;
}

std::string textReason(const MarkWords& words, const CheckedCopy& copy) {
    return copy.loses ? words.loses + (" " + copy.text) : words.ties;
}

} // namespace songsweep
