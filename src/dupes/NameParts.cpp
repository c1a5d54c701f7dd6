// SPDX-License-Identifier: MIT
#include "dupes/NameParts.h"

#include "dupes/LooseText.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <string>

namespace songsweep {

namespace {

constexpr std::string_view openings[] = {"(", "[", "{", "【"};
constexpr std::string_view closings[] = {")", "]", "}", "】"};
constexpr std::string_view dashes[] = {" - ", " – ", " — "};

constexpr std::string_view remasterWords[] = {"remaster", "remastered", "remastering"};
/// What may stand beside them; a mono or a stereo version is another mix.
constexpr std::string_view remasterCompany[] = {"digital", "digitally", "version", "edition", "in", "the"};

constexpr std::string_view featuringWords[] = {"featuring", "feat", "ft"}; // the longer first
/// A guest of a version does not make it the song itself.
constexpr std::string_view versionWords[] = {
    "acapella",     "acappella", "acoustic", "cover",  "demo",   "dub",     "edit",
    "instrumental", "karaoke",   "live",     "mashup", "medley", "mix",     "orchestral",
    "rehearsal",    "remix",     "remixed",  "rmx",    "rework", "session", "sessions",
    "take",         "unplugged", "version",  "vip",
};

template <typename Table>
bool contains(const Table& table, std::string_view word) {
    return std::find(std::begin(table), std::end(table), word) != std::end(table);
}

/// The text of the table that stands at the place; empty for none.
template <typename Table>
std::string_view tokenAt(const Table& table, std::string_view text, std::size_t place) {
    const auto* const found = std::find_if(std::begin(table), std::end(table), [&](std::string_view token) {
        return text.substr(place).starts_with(token);
    });
    return found == std::end(table) ? std::string_view() : *found;
}

std::vector<std::string> wordsOf(std::string_view letters) {
    std::string joined;
    appendWords(joined, letters);
    std::vector<std::string> words;
    for (std::size_t begin = 0; begin < joined.size();) {
        const std::size_t end = std::min(joined.find(' ', begin), joined.size());
        words.push_back(joined.substr(begin, end - begin));
        begin = end + 1;
    }
    return words;
}

bool isYear(std::string_view word) {
    return word.size() == 4 && (word.starts_with("19") || word.starts_with("20")) &&
           std::all_of(word.begin(), word.end(), [](char c) { return c >= '0' && c <= '9'; });
}

bool tellsOfRemasteringAlone(std::string_view part) {
    const std::vector<std::string> words = wordsOf(part);
    const auto isRemaster = [](const std::string& word) { return contains(remasterWords, word); };
    return std::any_of(words.begin(), words.end(), isRemaster) &&
           std::all_of(words.begin(), words.end(), [&](const std::string& word) {
               return isRemaster(word) || isYear(word) || contains(remasterCompany, word);
           });
}

/// The end of the part that begins at the place: behind its bracket, or before the next part.
std::size_t partEnd(std::string_view letters, std::size_t begin) {
    int depth = 0;
    for (std::size_t place = begin; place < letters.size(); ++place) {
        const bool opens = !tokenAt(openings, letters, place).empty();
        if (opens && depth == 0 && place > begin) return place;
        if (place > begin && depth == 0 && !tokenAt(dashes, letters, place).empty()) return place;
        if (opens) ++depth;
        if (const std::string_view closing = tokenAt(closings, letters, place); !closing.empty())
            if (depth > 0 && --depth == 0) return place + closing.size();
    }
    return letters.size();
}

bool isParting(char c) { return c == ' ' || c == '(' || c == '[' || c == '{' || c == '.'; }

bool endsWithNumber(std::string_view text) {
    while (text.ends_with(' '))
        text.remove_suffix(1);
    return !text.empty() && text.back() >= '0' && text.back() <= '9';
}

/// A guest is named behind the word; "10 ft. tall" has none.
bool beginsGuest(std::string_view part, std::size_t place, std::string_view word) {
    const std::size_t end = place + word.size();
    return place > 0 && isParting(part[place - 1]) && end < part.size() && isParting(part[end]) &&
           !endsWithNumber(part.substr(0, place)) && !wordsOf(part.substr(end)).empty();
}

bool tellsOfVersion(std::string_view guest) {
    const std::vector<std::string> words = wordsOf(guest);
    return std::any_of(words.begin(), words.end(),
                       [](const std::string& word) { return contains(versionWords, word); });
}

/// Where a part goes over to its guest; its end for none.
std::size_t guestBegin(std::string_view part) {
    for (std::size_t place = 1; place < part.size(); ++place) {
        const std::string_view word = tokenAt(featuringWords, part, place);
        if (word.empty() || !beginsGuest(part, place, word)) continue;
        return tellsOfVersion(part.substr(place)) ? part.size() : place;
    }
    return part.size();
}

bool hasWord(const std::vector<std::string_view>& parts) {
    return std::any_of(parts.begin(), parts.end(),
                       [](std::string_view part) { return !wordsOf(part).empty(); });
}

} // namespace

bool mayHaveOtherParts(std::string_view letters, Featuring featuring) {
    if (letters.find("remaster") != std::string_view::npos) return true;
    if (featuring == Featuring::counts) return false;
    // Each of the three words has its "f" at its begin and a "t" behind it.
    return letters.find("feat") != std::string_view::npos || letters.find("ft") != std::string_view::npos;
}

std::vector<std::string_view> essentialParts(std::string_view letters, Featuring featuring) {
    std::vector<std::string_view> parts;
    for (std::size_t begin = 0; begin < letters.size();) {
        const std::size_t end = partEnd(letters, begin);
        const std::string_view part = letters.substr(begin, end - begin);
        begin = end;
        if (tellsOfRemasteringAlone(part) && part.data() != letters.data()) continue;
        parts.push_back(featuring == Featuring::ignored ? part.substr(0, guestBegin(part)) : part);
    }
    return hasWord(parts) ? parts : std::vector{letters};
}

} // namespace songsweep
