// SPDX-License-Identifier: MIT
#include "dupes/SmallDifference.h"

#include "library/CaseFolding.h"
#include "library/Groups.h"
#include "library/KeySort.h"
#include "platform/Words.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <string_view>

namespace songsweep {

namespace {

/// The texts that may be compared, and how they are called.
struct ComparedText {
    bool SearchParameters::*isCompared;
    Text TrackRecord::*text;
    const char* difference; ///< in English; "%1" is what differs
};

constexpr ComparedText comparedTexts[] = {
    {&SearchParameters::issamename, &TrackRecord::name, translatable("SmallDifference", "name differs: %1")},
    {&SearchParameters::issameartist, &TrackRecord::artist,
     translatable("SmallDifference", "artist differs: %1")},
    {&SearchParameters::issamealbum, &TrackRecord::album,
     translatable("SmallDifference", "album differs: %1")},
};

constexpr std::string_view wrapping = "()[]{} -,;:";

using Words = std::span<const std::string_view>;

std::vector<std::string_view> wordsOf(std::string_view text) {
    std::vector<std::string_view> words;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find(' ', begin), text.size());
        if (end > begin) words.push_back(text.substr(begin, end - begin));
        begin = end + 1;
    }
    return words;
}

std::string joined(Words words) {
    std::string text;
    for (const std::string_view word : words)
        (text += text.empty() ? "" : " ") += word;
    return text;
}

std::string unwrapped(const std::string& text) {
    const std::size_t begin = text.find_first_not_of(wrapping);
    if (begin == std::string::npos) return {};
    return text.substr(begin, text.find_last_not_of(wrapping) - begin + 1);
}

/// Takes the words away with which both begin, and those with which both end.
void dropCommonWords(Words& one, Words& other) {
    while (!one.empty() && !other.empty() && equalIgnoringCase(one.front(), other.front())) {
        one = one.subspan(1);
        other = other.subspan(1);
    }
    while (!one.empty() && !other.empty() && equalIgnoringCase(one.back(), other.back())) {
        one = one.first(one.size() - 1);
        other = other.first(other.size() - 1);
    }
}

/// "feat. Rihanna", "without feat. Rihanna", "Beyonce, not Beyoncé".
std::string differingWords(std::string_view text, std::string_view otherText) {
    const std::vector<std::string_view> allWords = wordsOf(text);
    const std::vector<std::string_view> allOthers = wordsOf(otherText);
    Words words = allWords;
    Words others = allOthers;
    dropCommonWords(words, others);
    std::string mine = unwrapped(joined(words));
    const std::string theirs = unwrapped(joined(others));
    if (mine.empty() && theirs.empty()) return "“" + std::string(text) + "”";
    if (theirs.empty()) return mine;
    if (mine.empty()) return filled(songsweep::words("SmallDifference", "without %1"), {theirs});
    return filled(songsweep::words("SmallDifference", "%1, not %2"), {mine, theirs});
}

std::string timeDifference(const TrackRecord& record, const TrackRecord& other) {
    const std::int64_t seconds = std::int64_t{record.timev} - other.timev;
    return filled(seconds > 0 ? words("SmallDifference", "%1 s longer")
                              : words("SmallDifference", "%1 s shorter"),
                  {std::to_string(std::abs(seconds))});
}

} // namespace

void addPlainness(SortKey& key, const TrackRecord& record, const SearchParameters& parameters) {
    std::size_t length = 0;
    for (const ComparedText& compared : comparedTexts)
        if (parameters.*compared.isCompared) length += (record.*compared.text).view().size();
    key.number(static_cast<std::int64_t>(length));
    for (const ComparedText& compared : comparedTexts)
        if (parameters.*compared.isCompared) key.text(record.*compared.text);
    key.number(record.timev);
}

std::vector<std::string> smallDifferences(const TrackRecord& record, const TrackRecord& other,
                                          const SearchParameters& parameters) {
    std::vector<std::string> differences;
    for (const ComparedText& compared : comparedTexts) {
        const Text text = record.*compared.text;
        const Text otherText = other.*compared.text;
        if (!(parameters.*compared.isCompared) || equalIgnoringCase(text, otherText)) continue;
        differences.push_back(
            filled(words("SmallDifference", compared.difference), {differingWords(text, otherText)}));
    }
    if (parameters.issametime && record.timev != other.timev)
        differences.push_back(timeDifference(record, other));
    return differences;
}

std::vector<std::vector<std::string>> smallDifferencesOf(const std::vector<TrackRecord*>& rows,
                                                         const SearchParameters& parameters) {
    std::vector<std::vector<std::string>> differences(rows.size());
    SortKey plainest;
    SortKey key;
    for (const RowGroup group : groupsOf(rows)) {
        std::size_t reference = group.first;
        addPlainness(plainest.clear(), *rows[reference], parameters);
        for (std::size_t row = group.first + 1; row < group.end; ++row) {
            addPlainness(key.clear(), *rows[row], parameters);
            if (key.bytes() >= plainest.bytes()) continue;
            reference = row;
            std::swap(key, plainest);
        }
        for (std::size_t row = group.first; row < group.end; ++row)
            differences[row] = smallDifferences(*rows[row], *rows[reference], parameters);
    }
    return differences;
}

} // namespace songsweep
