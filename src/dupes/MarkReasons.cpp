// SPDX-License-Identifier: MIT
#include "dupes/MarkReasons.h"

#include "dupes/MarkRuleWalk.h"

namespace songsweep {

namespace {

/// How a value rule speaks: of its field, and of a copy that loses by it.
struct ValueWords {
    std::int32_t markType;
    const char* field;
    const char* loses;
    std::string (*text)(const TrackRecord& record);
};

std::string textOrNone(std::string_view text) { return text.empty() ? "none" : std::string(text); }

std::string bitrateText(const TrackRecord& record) { return textOrNone(record.bitrate); }
std::string timeText(const TrackRecord& record) { return textOrNone(record.time); }
std::string sizeText(const TrackRecord& record) { return textOrNone(sizestring(record)); }
std::string bytesText(const TrackRecord& record) { return record.size.string() + " bytes"; }
std::string dateText(const TrackRecord& record) { return textOrNone(dateadded(record)); }
std::string ratingText(const TrackRecord& record) { return std::to_string(record.rating); }
std::string playCountText(const TrackRecord& record) {
    return std::to_string(integerValue(record.playcount));
}

constexpr ValueWords valueWords[] = {
    {markType::highestBitrate, "bit rate", "lower bit rate", bitrateText},
    {markType::lowestBitrate, "bit rate", "higher bit rate", bitrateText},
    {markType::longest, "time", "shorter", timeText},
    {markType::shortest, "time", "longer", timeText},
    {markType::largest, "size", "smaller", sizeText},
    {markType::smallest, "size", "larger", sizeText},
    {markType::earliestAdded, "date added", "added later", dateText},
    {markType::latestAdded, "date added", "added earlier", dateText},
    {markType::highestRating, "rating", "lower rating", ratingText},
    {markType::lowestRating, "rating", "higher rating", ratingText},
    {markType::mostPlayed, "play count", "played less", playCountText},
    {markType::leastPlayed, "play count", "played more", playCountText},
};

/// "lower bit rate than the kept copy: 128 against 320", or "same bit rate as the kept copy: 320".
std::string valueReason(const ValueWords& words, const TrackRecord& record, const TrackRecord& kept,
                        bool loses) {
    const std::string own = words.text(record);
    const std::string other = words.text(kept);
    if (!loses) return std::string("same ") + words.field + " as the kept copy: " + own;
    const std::string beginning = std::string(words.loses) + " than the kept copy: ";
    const bool roundedAlike = words.text == sizeText && own == other;
    if (roundedAlike) return beginning + bytesText(record) + " against " + bytesText(kept);
    return beginning + own + " against " + other;
}

std::string truthReason(const MarkChoice& choice, const TrackRecord& record) {
    switch (choice.markType) {
    case markType::withArtwork:
        return record.hasartwork ? "another copy with artwork is kept" : "no artwork";
    case markType::withoutArtwork:
        return record.hasartwork ? "has artwork" : "another copy without artwork is kept";
    case markType::kind:
        return isOfKind(record.location, choice.text) ? "of the kind " + choice.text : "";
    case markType::folder:
        return isSubfolder(choice.text, record.location) ? "in the folder " + choice.text : "";
    default:
        return {};
    }
}

} // namespace

std::string MarkReasons::of(std::size_t row) {
    if (row < m_first || row >= m_end) lookAtGroup(row);
    const Verdict verdict = m_verdicts.at(row - m_first);
    return verdict.checked ? reason(*m_rows.at(row), verdict) : std::string();
}

void MarkReasons::lookAtGroup(std::size_t row) {
    m_first = row;
    while (m_first > 0 && m_rows.at(m_first - 1)->gid == m_rows.at(row)->gid)
        --m_first;
    m_end = groupEnd(m_rows, row);
    m_verdicts.assign(m_end - m_first, {});
    const auto judge = [this](bool exceptOne, bool Verdict::*part) {
        const MarkChoice choice = {m_choice.markType, exceptOne, m_choice.text};
        withRule(choice, [&]<class Rule>(Rule rule) {
            GroupJudge<Rule> group(m_rows, exceptOne, rule);
            group.look(m_first, m_end);
            m_kept = group.kept();
            for (std::size_t i = m_first; i < m_end; ++i)
                m_verdicts[i - m_first].*part = group.checks(i);
        });
    };
    judge(false, &Verdict::loses);
    judge(m_choice.exceptOne, &Verdict::checked); // last, since it leaves the kept copy of the choice
}

std::string MarkReasons::reason(const TrackRecord& record, Verdict verdict) const {
    if (record.isdead) return "file missing";
    for (const ValueWords& words : valueWords)
        if (words.markType == m_choice.markType && m_kept != noRow)
            return valueReason(words, record, *m_rows.at(m_kept), verdict.loses);
    const std::string words = truthReason(m_choice, record);
    return words.empty() ? "another copy is kept" : words;
}

} // namespace songsweep
