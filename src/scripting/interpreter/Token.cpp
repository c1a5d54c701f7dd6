// SPDX-License-Identifier: MIT
#include "scripting/interpreter/Token.h"

#include "scripting/interpreter/Words.h"

#include <algorithm>
#include <array>

namespace songsweep::interpreter {
namespace {

struct Entry {
    std::string_view word;
    Keyword keyword;
    bool isReserved;
};

// Sorted by word.
constexpr std::array entries{
    Entry{"after", Keyword::after, true},
    Entry{"alias", Keyword::alias_, true},
    Entry{"and", Keyword::and_, true},
    Entry{"app", Keyword::application, true},
    Entry{"application", Keyword::application, true},
    Entry{"as", Keyword::as, true},
    Entry{"before", Keyword::before, true},
    Entry{"beginning", Keyword::beginning, true},
    Entry{"begins", Keyword::begins, true},
    Entry{"by", Keyword::by, true},
    Entry{"character", Keyword::character, false},
    Entry{"characters", Keyword::characters, false},
    Entry{"come", Keyword::come, false},
    Entry{"comes", Keyword::comes, true},
    Entry{"contain", Keyword::contain, true},
    Entry{"contained", Keyword::contained, false},
    Entry{"contains", Keyword::contains, true},
    Entry{"copy", Keyword::copy, true},
    Entry{"count", Keyword::count, true},
    Entry{"date", Keyword::date, false},
    Entry{"div", Keyword::div, true},
    Entry{"does", Keyword::does, true},
    Entry{"doesn't", Keyword::doesnt, true},
    Entry{"else", Keyword::else_, true},
    Entry{"end", Keyword::end, true},
    Entry{"ends", Keyword::ends, true},
    Entry{"equal", Keyword::equal, true},
    Entry{"equals", Keyword::equals, true},
    Entry{"error", Keyword::error, true},
    Entry{"every", Keyword::every, true},
    Entry{"exists", Keyword::exists, true},
    Entry{"exit", Keyword::exit, true},
    Entry{"false", Keyword::false_, true},
    Entry{"first", Keyword::first, true},
    Entry{"from", Keyword::from, true},
    Entry{"get", Keyword::get, true},
    Entry{"greater", Keyword::greater, false},
    Entry{"id", Keyword::id, false},
    Entry{"if", Keyword::if_, true},
    Entry{"in", Keyword::in, true},
    Entry{"is", Keyword::is, true},
    Entry{"isn't", Keyword::isnt, true},
    Entry{"it", Keyword::it, true},
    Entry{"item", Keyword::item, false},
    Entry{"items", Keyword::items, false},
    Entry{"its", Keyword::its, true},
    Entry{"last", Keyword::last, true},
    Entry{"less", Keyword::less, false},
    Entry{"me", Keyword::me, true},
    Entry{"middle", Keyword::middle, true},
    Entry{"missing", Keyword::missing, false},
    Entry{"mod", Keyword::mod, true},
    Entry{"my", Keyword::my, true},
    Entry{"named", Keyword::named, false},
    Entry{"not", Keyword::not_, true},
    Entry{"number", Keyword::number, false},
    Entry{"of", Keyword::of, true},
    Entry{"on", Keyword::on, true},
    Entry{"or", Keyword::or_, true},
    Entry{"posix", Keyword::posix, false},
    Entry{"repeat", Keyword::repeat, true},
    Entry{"return", Keyword::return_, true},
    Entry{"second", Keyword::second, true},
    Entry{"set", Keyword::set, true},
    Entry{"start", Keyword::start, false},
    Entry{"starts", Keyword::starts, true},
    Entry{"tell", Keyword::tell, true},
    Entry{"than", Keyword::than, false},
    Entry{"the", Keyword::the, true},
    Entry{"then", Keyword::then, true},
    Entry{"third", Keyword::third, true},
    Entry{"through", Keyword::through, true},
    Entry{"thru", Keyword::thru, true},
    Entry{"times", Keyword::times, true},
    Entry{"to", Keyword::to, true},
    Entry{"true", Keyword::true_, true},
    Entry{"try", Keyword::try_, true},
    Entry{"until", Keyword::until, true},
    Entry{"where", Keyword::where, true},
    Entry{"while", Keyword::while_, true},
    Entry{"whose", Keyword::whose, true},
    Entry{"with", Keyword::with, true},
    Entry{"without", Keyword::without, true},
};
static_assert(std::ranges::is_sorted(entries, {}, &Entry::word));

constexpr auto reservedKeywords = [] {
    std::array<bool, static_cast<std::size_t>(Keyword::without) + 1> reserved{};
    for (const Entry& entry : entries)
        reserved[static_cast<std::size_t>(entry.keyword)] = entry.isReserved;
    return reserved;
}();

} // namespace

Keyword keywordOf(std::string_view word) {
    const auto entry =
        std::lower_bound(entries.begin(), entries.end(), word, [](const Entry& left, std::string_view right) {
            return isWordLess(left.word, right);
        });
    return entry != entries.end() && isSameWord(entry->word, word) ? entry->keyword : Keyword::none;
}

bool isReserved(Keyword keyword) { return reservedKeywords[static_cast<std::size_t>(keyword)]; }

} // namespace songsweep::interpreter
