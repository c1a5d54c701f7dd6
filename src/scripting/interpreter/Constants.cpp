// SPDX-License-Identifier: MIT
#include "scripting/interpreter/Constants.h"

#include "scripting/interpreter/Calendar.h"
#include "scripting/interpreter/Words.h"

#include <array>
#include <charconv>

namespace songsweep::interpreter {
namespace {

struct TextConstant {
    std::string_view word;
    std::string_view text;
};
constexpr std::array textConstants{TextConstant{"space", " "}, TextConstant{"tab", "\t"},
                                   TextConstant{"quote", "\""}, TextConstant{"linefeed", "\n"}};

struct NumberConstant {
    std::string_view word;
    std::int64_t seconds;
};
constexpr std::array numberConstants{NumberConstant{"minutes", 60}, NumberConstant{"hours", 3600},
                                     NumberConstant{"days", 86400}, NumberConstant{"weeks", 604800}};

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
    for (const TextConstant& constant : textConstants) {
        if (isSameWord(constant.word, word)) return Value(std::string(constant.text));
    }
    for (const NumberConstant& constant : numberConstants) {
        if (isSameWord(constant.word, word)) return Value(constant.seconds);
    }
    for (const Constant& month : months) {
        if (isSameWord(month.name, word)) return Value(month);
    }
    for (const Constant& day : weekdays) {
        if (isSameWord(day.name, word)) return Value(day);
    }
    return {};
}

} // namespace songsweep::interpreter
