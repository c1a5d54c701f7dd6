// SPDX-License-Identifier: MIT
#include "scripting/interpreter/ExpressionParser.h"

#include "scripting/interpreter/Constants.h"
#include "scripting/interpreter/Lexer.h"
#include "scripting/interpreter/Limits.h"
#include "scripting/interpreter/ValueProperties.h"
#include "scripting/interpreter/Words.h"
#include "scripting/interpreter/ast/Literals.h"
#include "scripting/interpreter/ast/Operators.h"
#include "scripting/interpreter/ast/References.h"

#include <array>

namespace songsweep::interpreter {
namespace {

struct KindName {
    std::string_view words;
    Kind kind;
};

constexpr std::array kindNames{
    KindName{"unicode text", Kind::text}, KindName{"text", Kind::text}, KindName{"string", Kind::text},
    KindName{"integer", Kind::integer},   KindName{"real", Kind::real}, KindName{"number", Kind::number},
    KindName{"boolean", Kind::boolean},   KindName{"list", Kind::list}, KindName{"alias", Kind::alias},
};

} // namespace

ExpressionPointer ExpressionParser::checked(ExpressionPointer expression) {
    if (expression->treeDepth() > maximumTreeDepth) m_cursor.fail(expression->position(), "this is too long");
    return expression;
}

ExpressionPointer ExpressionParser::standIn() const {
    return std::make_unique<const LiteralExpression>(m_cursor.position(), Value());
}

ExpressionPointer ExpressionParser::failExpecting(std::string_view what) {
    m_cursor.failExpecting(what);
    return standIn();
}

ExpressionPointer ExpressionParser::expression() {
    const TokenCursor::Nesting nesting(m_cursor);
    return operation(Precedence::disjunction);
}

/// Operands and the operators between them, from the loosest given on; those of one level go from left to
/// right. An operator leaves none that binds tighter behind it: its right operand took them.
ExpressionPointer ExpressionParser::operation(Precedence loosest) {
    const bool isNegation = loosest <= Precedence::negation && m_cursor.at(Keyword::not_);
    ExpressionPointer left = isNegation ? negation() : sign();
    Precedence tightest = isNegation ? Precedence::negation : Precedence::power;
    while (true) {
        const auto [row, tokens] = binaryOperatorAt(m_cursor.upcoming());
        if (!row || row->precedence < loosest || row->precedence > tightest) return left;
        const Position place = m_cursor.position();
        m_cursor.skip(tokens);
        if (row->make) {
            ExpressionPointer right = operation(tighter(row->precedence));
            left = checked(row->make(place, std::move(left), std::move(right)));
        } else {
            left = coercion(place, std::move(left));
        }
        tightest = row->precedence;
    }
}

ExpressionPointer ExpressionParser::negation() {
    const TokenCursor::Nesting nesting(m_cursor);
    const Position place = m_cursor.position();
    m_cursor.skip();
    return make<NotExpression>(place, operation(Precedence::negation));
}

ExpressionPointer ExpressionParser::coercion(Position place, ExpressionPointer operand) {
    const auto kind = std::ranges::find_if(
        kindNames, [this](const KindName& candidate) { return m_cursor.takeWords(candidate.words); });
    if (kind == kindNames.end()) return failExpecting("text, integer, real, number, boolean, list or alias");
    return make<CoerceExpression>(place, std::move(operand), kind->kind);
}

ExpressionPointer ExpressionParser::sign() {
    const bool isNegative = m_cursor.atSymbol(U'-');
    if (!isNegative && !m_cursor.atSymbol(U'+')) return existence();
    const TokenCursor::Nesting nesting(m_cursor);
    const Position place = m_cursor.position();
    m_cursor.skip();
    ExpressionPointer operand = sign();
    return isNegative ? make<NegateExpression>(place, std::move(operand)) : std::move(operand);
}

/// `x exists`; `application "iTunes" is running`, `it is running`. Behind anything else, `running` is the
/// right side of a comparison.
ExpressionPointer ExpressionParser::existence() {
    const bool isIt =
        m_cursor.at(Keyword::it) && (m_cursor.at(Keyword::is, 1) || m_cursor.at(Keyword::isnt, 1));
    ExpressionPointer operand = reference();
    const Position place = m_cursor.position();
    if (m_cursor.take(Keyword::exists)) return make<ExistsExpression>(place, std::move(operand));
    if (!isIt && !operand->namedApplication()) return operand;
    if (m_cursor.takeWords("is running")) return make<RunningExpression>(place, std::move(operand));
    if (!m_cursor.takeWords("is not running") && !m_cursor.takeWords("isn't running")) return operand;
    return make<NotExpression>(place, make<RunningExpression>(place, std::move(operand)));
}

ExpressionPointer ExpressionParser::value() {
    const Token& token = m_cursor.peek();
    switch (token.kind) {
    case Token::Kind::integer:
    case Token::Kind::real:
        return number();
    case Token::Kind::text:
        return text();
    case Token::Kind::symbol:
        return symbolValue();
    case Token::Kind::word:
    case Token::Kind::quotedWord:
        return wordValue();
    default:
        return failExpecting("a value");
    }
}

ExpressionPointer ExpressionParser::number() {
    const Token& token = m_cursor.peek();
    std::optional<Value> value = numberValue(token);
    if (!value) m_cursor.fail("the number is too large or too small");
    m_cursor.skip();
    return make<LiteralExpression>(token.position, std::move(value).value_or(Value()));
}

ExpressionPointer ExpressionParser::text() {
    const Token& token = m_cursor.peek();
    m_cursor.skip();
    m_texts.push_back(token.text);
    return make<TextExpression>(token.position, m_texts.size() - 1);
}

ExpressionPointer ExpressionParser::symbolValue() {
    if (m_cursor.atSymbol(U'(')) return parenthesis();
    if (m_cursor.atSymbol(U'{')) return list(U'}');
    if (m_cursor.atSymbol(U'[')) return list(U']');
    return failExpecting("a value");
}

ExpressionPointer ExpressionParser::parenthesis() {
    m_cursor.skip();
    ExpressionPointer inner = expression();
    m_cursor.expectSymbol(U')', "“)”");
    return inner;
}

ExpressionPointer ExpressionParser::list(char32_t closing) {
    const Position place = m_cursor.position();
    m_cursor.skip();
    std::vector<ExpressionPointer> items;
    if (!m_cursor.takeSymbol(closing)) {
        do {
            items.push_back(expression());
        } while (m_cursor.takeSymbol(U','));
        m_cursor.expectSymbol(closing, closing == U'}' ? "“,” or “}”" : "“,” or “]”");
    }
    return make<ListExpression>(place, std::move(items));
}

ExpressionPointer ExpressionParser::wordValue() {
    if (m_commands.atCommand()) return make<CommandExpression>(m_commands.command());
    const Token& token = m_cursor.peek();
    switch (token.keyword) {
    case Keyword::true_:
    case Keyword::false_:
        m_cursor.skip();
        return make<LiteralExpression>(token.position, Value(token.keyword == Keyword::true_));
    case Keyword::return_:
        m_cursor.skip();
        return make<LiteralExpression>(token.position, Value(std::string("\r")));
    case Keyword::it:
        m_cursor.skip();
        return make<TargetReference>(token.position);
    case Keyword::get:
        m_cursor.skip();
        return expression();
    case Keyword::application:
        return application();
    case Keyword::count:
        return count();
    default:
        return prefixedValue();
    }
}

/// Values that begin with two words, or with a word and a value.
ExpressionPointer ExpressionParser::prefixedValue() {
    const Position place = m_cursor.position();
    if (m_cursor.takeWords("missing value")) return make<LiteralExpression>(place, Value(MissingValue()));
    if (m_cursor.takeWords("current date")) return make<CurrentDateExpression>(place);
    if (m_cursor.atWords("number of")) return count();
    if (m_cursor.at(Keyword::date) && m_cursor.peek(1).kind == Token::Kind::text) return date();
    if (m_cursor.take(Keyword::alias_)) return make<AliasExpression>(place, reference());
    if (m_cursor.takeWords("POSIX file")) return make<PosixFileExpression>(place, reference());
    if (m_cursor.take(Keyword::exists)) return make<ExistsExpression>(place, reference());
    return name();
}

/// `count of x`, `count x`, `number of x`.
ExpressionPointer ExpressionParser::count() {
    const Position place = m_cursor.position();
    m_cursor.skip();
    if (!m_cursor.take(Keyword::of)) m_cursor.take(Keyword::in);
    return make<CountExpression>(place, reference());
}

ExpressionPointer ExpressionParser::application() {
    const Position place = m_cursor.position();
    m_cursor.skip();
    const bool isById = m_cursor.take(Keyword::id);
    if (m_cursor.peek().kind != Token::Kind::text) {
        return failExpecting(isById ? "the ID of an application as a text"
                                    : "the name of an application as a text");
    }
    const std::string name = unescapedText(m_cursor.peek().text);
    const Applications::Entry* const application =
        isById ? m_applications.identified(name) : m_applications.named(name);
    if (!application) {
        m_cursor.fail("there is no application “" + name + "”");
        return standIn();
    }
    m_cursor.skip();
    return make<ApplicationReference>(place, *application);
}

ExpressionPointer ExpressionParser::date() {
    const Position place = m_cursor.position();
    const std::string text = unescapedText(m_cursor.peek(1).text);
    const std::optional<Date> date = dateIn(text);
    if (!date) m_cursor.fail("“" + text + "” is not a date that can be read");
    m_cursor.skip(2);
    return make<LiteralExpression>(place, Value(date.value_or(Date())));
}

/// A variable; in its place a word that has a value from the start.
ExpressionPointer ExpressionParser::name() {
    const Token& token = m_cursor.peek();
    const bool isWord = token.kind == Token::Kind::word;
    if (isWord && isReserved(token.keyword)) return failExpecting("a value");
    std::optional<Value> constant = isWord ? constantNamed(token.text) : std::nullopt;
    const bool isResult = isWord && isSameWord(token.text, "result");
    if (!isResult && !constant) return variable();
    m_cursor.skip();
    if (isResult) return make<ResultExpression>(token.position);
    return make<LiteralExpression>(token.position, *std::move(constant));
}

ExpressionPointer ExpressionParser::variable() {
    const Token& token = m_cursor.peek();
    const bool isFreeWord = token.kind == Token::Kind::word && !isReserved(token.keyword);
    if (!isFreeWord && token.kind != Token::Kind::quotedWord) return failExpecting("a variable");
    m_cursor.skip();
    const std::size_t slot = m_slots.try_emplace(loweredWord(token.text), m_slots.size()).first->second;
    return make<VariableExpression>(token.position, slot, std::string(token.text));
}

} // namespace songsweep::interpreter
