// SPDX-License-Identifier: MIT
#include "scripting/interpreter/Lexer.h"
#include "scripting/interpreter/ParserSupport.h"
#include "scripting/interpreter/ValueProperties.h"
#include "scripting/interpreter/Words.h"
#include "scripting/interpreter/ast/Literals.h"
#include "scripting/interpreter/ast/Operators.h"

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

/// The value of a word that has one from the start.
std::optional<Value> constantNamed(std::string_view word) {
    for (const TextConstant& constant : textConstants) {
        if (isSameWord(constant.word, word)) return Value(std::string(constant.text));
    }
    for (const NumberConstant& constant : numberConstants) {
        if (isSameWord(constant.word, word)) return Value(constant.seconds);
    }
    return {};
}

/// A number as it stands in a text; a whole one that does not fit becomes a real.
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

} // namespace

Parser::ExpressionResult Parser::parseValue() {
    const Token& token = peek();
    switch (token.kind) {
    case Token::Kind::integer:
    case Token::Kind::real:
        return parseNumber();
    case Token::Kind::text:
        skip(1);
        return make<LiteralExpression>(token.position, Value(unescapedText(token.text)));
    case Token::Kind::symbol:
        if (atSymbol(U'(')) return parseParenthesis();
        if (atSymbol(U'{')) return parseList(U'}');
        if (atSymbol(U'[')) return parseList(U']');
        return expected("a value");
    case Token::Kind::word:
    case Token::Kind::quotedWord:
        return parseKeywordValue();
    default:
        return expected("a value");
    }
}

Parser::ExpressionResult Parser::parseNumber() {
    const Token& token = peek();
    std::optional<Value> value = numberValue(token);
    if (!value) return failure("the number is too large or too small");
    skip(1);
    return make<LiteralExpression>(token.position, *std::move(value));
}

Parser::ExpressionResult Parser::parseParenthesis() {
    skip(1);
    ExpressionResult inner = parseExpression();
    if (!inner) return inner;
    if (Result<void> closed = expectSymbol(U')', "“)”"); !closed) return closed.error();
    return inner;
}

Parser::ExpressionResult Parser::parseList(char32_t closing) {
    const Position place = position();
    const char* const ending = closing == U'}' ? "“,” or “}”" : "“,” or “]”";
    skip(1);
    std::vector<ExpressionPointer> items;
    if (takeSymbol(closing)) return make<ListExpression>(place, std::move(items));
    do {
        ExpressionResult item = parseExpression();
        if (!item) return item;
        items.push_back(std::move(item).value());
    } while (takeSymbol(U','));
    if (Result<void> closed = expectSymbol(closing, ending); !closed) return closed.error();
    return make<ListExpression>(place, std::move(items));
}

Parser::ExpressionResult Parser::parseKeywordValue() {
    const Position place = position();
    if (commandAhead()) {
        Result<CommandCall> call = parseCommand();
        if (!call) return call.error();
        return make<CommandExpression>(std::move(call).value());
    }
    switch (peek().keyword) {
    case Keyword::true_:
    case Keyword::false_:
        skip(1);
        return make<LiteralExpression>(place, Value(m_tokens[m_next - 1].keyword == Keyword::true_));
    case Keyword::return_:
        skip(1);
        return make<LiteralExpression>(place, Value(std::string("\r")));
    case Keyword::it:
        skip(1);
        return make<TargetReference>(place);
    case Keyword::get:
        skip(1);
        return parseExpression();
    case Keyword::application:
        return parseApplication();
    case Keyword::count:
        return parseCount();
    default:
        return parsePrefixed();
    }
}

/// Values that begin with two words, or with a word and a value.
Parser::ExpressionResult Parser::parsePrefixed() {
    const Position place = position();
    if (takeWords("missing value")) return make<LiteralExpression>(place, Value(MissingValue()));
    if (wordsAt(upcoming(), "number of") > 0) return parseCount();
    if (at(Keyword::date) && peek(1).kind == Token::Kind::text) return parseDate();
    const bool isAlias = take(Keyword::alias_);
    const bool isPosixFile = !isAlias && takeWords("POSIX file");
    const bool isExists = !isAlias && !isPosixFile && take(Keyword::exists);
    if (!isAlias && !isPosixFile && !isExists) return parseWord();
    ExpressionResult operand = parseReference();
    if (!operand) return operand;
    if (isAlias) return make<AliasExpression>(place, std::move(operand).value());
    if (isExists) return make<ExistsExpression>(place, std::move(operand).value());
    return make<PosixFileExpression>(place, std::move(operand).value());
}

Parser::ExpressionResult Parser::parseCount() {
    const Position place = position();
    const bool isCount = take(Keyword::count);
    if (!isCount) skip(1);
    if (!take(Keyword::of)) take(Keyword::in);
    ExpressionResult counted = parseReference();
    if (!counted) return counted;
    return make<CountExpression>(place, std::move(counted).value());
}

Parser::ExpressionResult Parser::parseApplication() {
    const Position place = position();
    skip(1);
    if (peek().kind != Token::Kind::text) return expected("the name of an application as a text");
    const std::string name = unescapedText(peek().text);
    const Applications::Entry* const application = m_applications.named(name);
    if (!application) return failure("there is no application “" + name + "”");
    skip(1);
    return make<ApplicationReference>(place, *application);
}

Parser::ExpressionResult Parser::parseDate() {
    const Position place = position();
    const std::string text = unescapedText(peek(1).text);
    const std::optional<Date> date = dateIn(text);
    if (!date) return failure("“" + text + "” is not a date that can be read");
    skip(2);
    return make<LiteralExpression>(place, Value(*date));
}

/// A variable; in its place a word that has a value from the start.
Parser::ExpressionResult Parser::parseWord() {
    const Token& token = peek();
    if (token.kind == Token::Kind::word && isReserved(token.keyword)) return expected("a value");
    skip(1);
    const bool isPlain = token.kind == Token::Kind::word;
    if (isPlain && isSameWord(token.text, "result")) return make<ResultExpression>(token.position);
    if (std::optional<Value> constant = isPlain ? constantNamed(token.text) : std::nullopt) {
        return make<LiteralExpression>(token.position, *std::move(constant));
    }
    return make<VariableExpression>(token.position, slotOf(token.text), std::string(token.text));
}

} // namespace songsweep::interpreter
