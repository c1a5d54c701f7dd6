// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

namespace songsweep {

/// What the program says to people, in the language that installLanguage() chose.
///
/// A sentence stands in the code in English, and its translations in translations/, where they are found by
/// its context and the sentence itself:
///
///     filled(words("Notices", "The deletion of %1 was interrupted"), {date});
///     countedWords("Notices", "%1 files kept.", "1 file kept.", files);
///
/// Sentences are kept whole, since other languages have another order of words. What programs read (the log,
/// the keys and values of JSON, headers of CSV) is not asked for here. A sentence without a translation comes
/// back in English. Costs about a microsecond; thread-safe.
std::string words(const char* context, const char* text);

/// The text as it is, for a table whose texts are asked for by words() later.
constexpr const char* translatable(const char* /*context*/, const char* text) { return text; }

/// The wording for `count`, which stands where "%1" is, in the way of the user's locale. English has two
/// wordings; other languages may have one or more.
std::string countedWords(const char* context, const char* many, const char* one, std::int64_t count);

/// The two English wordings of a sentence with a count, for a table or a class that asks for them later.
struct Countable {
    const char* context;
    const char* many;
    const char* one;
};
constexpr Countable countable(const char* context, const char* many, const char* one) {
    return {context, many, one};
}
std::string countedWords(const Countable& text, std::int64_t count);

/// A number in the way of the user's locale: "1.234" in German.
std::string numberText(std::int64_t number);

/// The text with the values in the places of its placeholders "%1" to "%9", the first value in that of the
/// lowest. A value's own "%1" is left as it is.
std::string filled(std::string_view text, std::initializer_list<std::string_view> values);

} // namespace songsweep
