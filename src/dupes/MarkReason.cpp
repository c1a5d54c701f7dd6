// SPDX-License-Identifier: MIT
#include "dupes/MarkReason.h"

#include "library/ValueFormats.h"
#include "platform/Words.h"

namespace songsweep {

namespace {

std::string textOrNone(std::string_view text) {
    return text.empty() ? words("MarkReason", "none") : std::string(text);
}

std::string bytesText(const TrackRecord& record) {
    return record.size.empty() ? textOrNone({})
                               : filled(words("MarkReason", "%1 bytes"), {record.size.view()});
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
std::string valueReason(const MarkWords& rule, bool loses, const std::string& own, const std::string& kept) {
    if (!loses && own != kept)
        return filled(words("MarkReason", "no difference that the rule can see: %1 against %2"), {own, kept});
    if (!loses)
        return filled(words("MarkReason", "%1 as the kept copy: %2"), {words("MarkReason", rule.ties), own});
    return filled(words("MarkReason", "%1 than the kept copy: %2 against %3"),
                  {words("MarkReason", rule.loses), own, kept});
}

} // namespace

std::string bitrateReason(const MarkWords& rule, const CheckedCopy& copy) {
    return valueReason(rule, copy.loses, textOrNone(copy.record.bitrate), textOrNone(copy.kept.bitrate));
}

std::string timeReason(const MarkWords& rule, const CheckedCopy& copy) {
    return valueReason(rule, copy.loses, textOrNone(copy.record.time), textOrNone(copy.kept.time));
}

std::string sizeReason(const MarkWords& rule, const CheckedCopy& copy) {
    const std::string own = textOrNone(sizestring(copy.record));
    const std::string kept = textOrNone(sizestring(copy.kept));
    const bool alike = own == kept && copy.record.size != copy.kept.size;
    if (alike || isClipped(copy.record.size) || isClipped(copy.kept.size))
        return valueReason(rule, copy.loses, bytesText(copy.record), bytesText(copy.kept));
    return valueReason(rule, copy.loses, own, kept);
}

std::string dateReason(const MarkWords& rule, const CheckedCopy& copy) {
    const std::string own = textOrNone(dateadded(copy.record));
    const std::string kept = textOrNone(dateadded(copy.kept));
    if (copy.loses && own == kept)
        return valueReason(rule, copy.loses, dateTimeWithSeconds(copy.record.dateaddedv),
                           dateTimeWithSeconds(copy.kept.dateaddedv));
    return valueReason(rule, copy.loses, own, kept);
}

std::string ratingReason(const MarkWords& rule, const CheckedCopy& copy) {
    return valueReason(rule, copy.loses, std::to_string(copy.record.rating),
                       std::to_string(copy.kept.rating));
}

std::string playCountReason(const MarkWords& rule, const CheckedCopy& copy) {
    return valueReason(rule, copy.loses, playsText(copy.record), playsText(copy.kept));
}

std::string plainReason(const MarkWords& rule, const CheckedCopy& copy) {
    return words("MarkReason", copy.loses ? rule.loses : rule.ties);
}

std::string textReason(const MarkWords& rule, const CheckedCopy& copy) {
    return plainReason(rule, copy) + (copy.loses ? " " + copy.text : std::string());
}

} // namespace songsweep
