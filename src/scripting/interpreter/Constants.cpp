// SPDX-License-Identifier: MIT
#include "scripting/interpreter/Constants.h"

#include "scripting/interpreter/Calendar.h"
#include "scripting/interpreter/Words.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace songsweep::interpreter {
namespace {

/// A word and its value: a text, a number of seconds, or the word itself.
struct NamedValue {
    std::string_view word;
    std::string_view text;
    std::int64_t seconds = 0;
    const Constant* constant = nullptr;

    Value value() const {
        if (constant) return *constant;
        return seconds == 0 ? Value(std::string(text)) : Value(seconds);
    }
};

constexpr std::array ownWords{NamedValue{"space", " "},      NamedValue{"tab", "\t"},
                              NamedValue{"quote", "\""},     NamedValue{"linefeed", "\n"},
                              NamedValue{"minutes", {}, 60}, NamedValue{"hours", {}, 3600},
                              NamedValue{"days", {}, 86400}, NamedValue{"weeks", {}, 604800}};

/// Sorted, since every word of a text that is no other is looked up here.
constexpr auto namedValues = [] {
    std::array<NamedValue, ownWords.size() + months.size() + weekdays.size()> values{};
    const auto constantOf = [](const Constant& constant) {
        return NamedValue{constant.name, {}, 0, &constant};
    };
    auto next = std::copy(ownWords.begin(), ownWords.end(), values.begin());
    next = std::transform(months.begin(), months.end(), next, constantOf);
    std::transform(weekdays.begin(), weekdays.end(), next, constantOf);
    std::ranges::sort(values, isWordLess, &NamedValue::word);
    return values;
}();

} // namespace

std::optional<Value> numberValue(const Token& token) {
    const char* const end = token.text.data() + token.text.size();
    std::int64_t integer = 0;
    if (token.kind == Token::Kind::integer &&
        std::from_chars(token.text.data(), end, integer).ec == std::errc()) {
        return Value(integer);
    }
    double real = 0;
    if (std::from_chars(token.text.data(), end, real).ec != std::errc()) return {};
    return Value(real);
}

std::optional<Value> constantNamed(std::string_view word) {
    const auto* const found = std::ranges::lower_bound(namedValues, word, isWordLess, &NamedValue::word);
    if (found == namedValues.end() || !isSameWord(found->word, word)) return {};
    return found->value();
}

} // namespace songsweep::interpreter
