// SPDX-License-Identifier: MIT
#include "scripting/interpreter/ParserSupport.h"
#include "scripting/interpreter/ast/Operators.h"

#include <array>

namespace songsweep::interpreter {
namespace {

/// A way to write a comparison.
struct Phrase {
    std::string_view words;
    Comparison comparison;
    bool isNegated = false;
    bool isOrder = false;
};

// Longer phrases stand before their beginnings.
constexpr std::array phrases{
    Phrase{"is not greater than or equal to", Comparison::greaterOrEqual, true, true},
    Phrase{"is not less than or equal to", Comparison::lessOrEqual, true, true},
    Phrase{"is greater than or equal to", Comparison::greaterOrEqual, false, true},
    Phrase{"is less than or equal to", Comparison::lessOrEqual, false, true},
    Phrase{"greater than or equal to", Comparison::greaterOrEqual, false, true},
    Phrase{"less than or equal to", Comparison::lessOrEqual, false, true},
    Phrase{"is not greater than", Comparison::greater, true, true},
    Phrase{"is not less than", Comparison::less, true, true},
    Phrase{"is greater than", Comparison::greater, false, true},
    Phrase{"is less than", Comparison::less, false, true},
    Phrase{"greater than", Comparison::greater, false, true},
    Phrase{"less than", Comparison::less, false, true},
    Phrase{"does not come before", Comparison::less, true, true},
    Phrase{"does not come after", Comparison::greater, true, true},
    Phrase{"doesn't come before", Comparison::less, true, true},
    Phrase{"doesn't come after", Comparison::greater, true, true},
    Phrase{"comes before", Comparison::less, false, true},
    Phrase{"comes after", Comparison::greater, false, true},
    Phrase{"is not contained by", Comparison::isIn, true},
    Phrase{"isn't contained by", Comparison::isIn, true},
    Phrase{"is contained by", Comparison::isIn},
    Phrase{"is not equal to", Comparison::notEqual},
    Phrase{"isn't equal to", Comparison::notEqual},
    Phrase{"is not in", Comparison::isIn, true},
    Phrase{"isn't in", Comparison::isIn, true},
    Phrase{"is equal to", Comparison::equal},
    Phrase{"is in", Comparison::isIn},
    Phrase{"is not", Comparison::notEqual},
    Phrase{"isn't", Comparison::notEqual},
    Phrase{"is", Comparison::equal},
    Phrase{"equal to", Comparison::equal},
    Phrase{"equals", Comparison::equal},
    Phrase{"does not equal", Comparison::notEqual},
    Phrase{"doesn't equal", Comparison::notEqual},
    Phrase{"does not contain", Comparison::contains, true},
    Phrase{"doesn't contain", Comparison::contains, true},
    Phrase{"contains", Comparison::contains},
    Phrase{"begins with", Comparison::beginsWith},
    Phrase{"starts with", Comparison::beginsWith},
    Phrase{"ends with", Comparison::endsWith},
};

struct OrderSymbol {
    char32_t symbol;
    Phrase meaning;
};

constexpr std::array symbols{
    OrderSymbol{U'=', {"=", Comparison::equal}},
    OrderSymbol{U'≠', {"≠", Comparison::notEqual}},
    OrderSymbol{U'<', {"<", Comparison::less, false, true}},
    OrderSymbol{U'>', {">", Comparison::greater, false, true}},
    OrderSymbol{U'≤', {"≤", Comparison::lessOrEqual, false, true}},
    OrderSymbol{U'≥', {"≥", Comparison::greaterOrEqual, false, true}},
};

struct Found {
    const Phrase* phrase = nullptr;
    std::size_t tokens = 0;
};

bool beginsPhrase(Keyword keyword) {
    switch (keyword) {
    case Keyword::begins:
    case Keyword::comes:
    case Keyword::contains:
    case Keyword::does:
    case Keyword::doesnt:
    case Keyword::ends:
    case Keyword::equal:
    case Keyword::equals:
    case Keyword::greater:
    case Keyword::is:
    case Keyword::isnt:
    case Keyword::less:
    case Keyword::starts:
        return true;
    default:
        return false;
    }
}

/// The comparison that stands at the beginning of the tokens.
Found comparisonAt(std::span<const Token> tokens) {
    const Token& first = tokens.front();
    if (first.kind == Token::Kind::symbol) {
        for (const OrderSymbol& candidate : symbols) {
            if (candidate.symbol == first.symbol) return {&candidate.meaning, 1};
        }
    }
    if (!beginsPhrase(first.keyword)) return {};
    for (const Phrase& phrase : phrases) {
        if (const std::size_t words = wordsAt(tokens, phrase.words)) return {&phrase, words};
    }
    return {};
}

struct KindName {
    std::string_view words;
    Kind kind;
};

constexpr std::array kindNames{
    KindName{"unicode text", Kind::text}, KindName{"text", Kind::text}, KindName{"string", Kind::text},
    KindName{"integer", Kind::integer},   KindName{"real", Kind::real}, KindName{"number", Kind::number},
    KindName{"boolean", Kind::boolean},   KindName{"list", Kind::list}, KindName{"alias", Kind::alias},
};

struct OperationName {
    char32_t symbol;
    Keyword keyword;
    Operation operation;
};

constexpr std::array sums{OperationName{U'+', Keyword::none, Operation::add},
                          OperationName{U'-', Keyword::none, Operation::subtract}};
constexpr std::array products{OperationName{U'*', Keyword::none, Operation::multiply},
                              OperationName{U'/', Keyword::none, Operation::divide},
                              OperationName{0, Keyword::div, Operation::wholeDivide},
                              OperationName{0, Keyword::mod, Operation::remainder}};

const OperationName* operationAt(const Token& token, std::span<const OperationName> names) {
    for (const OperationName& name : names) {
        const bool isSymbol = token.kind == Token::Kind::symbol && token.symbol == name.symbol;
        const bool isWord = name.keyword != Keyword::none && token.keyword == name.keyword;
        if (isSymbol || isWord) return &name;
    }
    return nullptr;
}

} // namespace

Parser::ExpressionResult Parser::parseExpression() {
    const Nesting nesting(*this);
    if (nesting.isTooDeep()) return nesting.error();
    return parseDisjunction();
}

Parser::ExpressionResult Parser::parseDisjunction() {
    ExpressionResult left = parseConjunction();
    while (left && at(Keyword::or_)) {
        const Position place = position();
        skip(1);
        ExpressionResult right = parseConjunction();
        if (!right) return right;
        left = make<LogicExpression>(place, LogicExpression::Connective::disjunction, std::move(left).value(),
                                     std::move(right).value());
    }
    return left;
}

Parser::ExpressionResult Parser::parseConjunction() {
    ExpressionResult left = parseNegation();
    while (left && at(Keyword::and_)) {
        const Position place = position();
        skip(1);
        ExpressionResult right = parseNegation();
        if (!right) return right;
        left = make<LogicExpression>(place, LogicExpression::Connective::conjunction, std::move(left).value(),
                                     std::move(right).value());
    }
    return left;
}

Parser::ExpressionResult Parser::parseNegation() {
    if (!at(Keyword::not_)) return parseEquality();
    const Nesting nesting(*this);
    if (nesting.isTooDeep()) return nesting.error();
    const Position place = position();
    skip(1);
    ExpressionResult operand = parseNegation();
    if (!operand) return operand;
    return make<NotExpression>(place, std::move(operand).value());
}

Parser::ExpressionResult Parser::parseEquality() { return parseComparisons(false, &Parser::parseOrder); }

Parser::ExpressionResult Parser::parseOrder() { return parseComparisons(true, &Parser::parseCoercion); }

Parser::ExpressionResult Parser::parseComparisons(bool isOrder, ExpressionResult (Parser::*parseOperand)()) {
    ExpressionResult left = (this->*parseOperand)();
    while (left) {
        const Found found = comparisonAt(upcoming());
        if (!found.phrase || found.phrase->isOrder != isOrder) break;
        const Position place = position();
        skip(found.tokens);
        ExpressionResult right = (this->*parseOperand)();
        if (!right) return right;
        left = make<CompareExpression>(place, found.phrase->comparison, found.phrase->isNegated,
                                       std::move(left).value(), std::move(right).value());
    }
    return left;
}

Parser::ExpressionResult Parser::parseCoercion() {
    ExpressionResult operand = parseConcatenation();
    while (operand && at(Keyword::as)) {
        const Position place = position();
        skip(1);
        const auto kind = std::ranges::find_if(
            kindNames, [&](const KindName& candidate) { return takeWords(candidate.words); });
        if (kind == kindNames.end()) return expected("text, integer, real, number, boolean, list or alias");
        operand = make<CoerceExpression>(place, std::move(operand).value(), kind->kind);
    }
    return operand;
}

Parser::ExpressionResult Parser::parseConcatenation() {
    ExpressionResult left = parseSum();
    while (left && atSymbol(U'&')) {
        const Position place = position();
        skip(1);
        ExpressionResult right = parseSum();
        if (!right) return right;
        left = make<ConcatenateExpression>(place, std::move(left).value(), std::move(right).value());
    }
    return left;
}

Parser::ExpressionResult Parser::parseSum() {
    ExpressionResult left = parseProduct();
    while (left) {
        const OperationName* const name = operationAt(peek(), sums);
        if (!name) break;
        const Position place = position();
        skip(1);
        ExpressionResult right = parseProduct();
        if (!right) return right;
        left = make<ArithmeticExpression>(place, name->operation, std::move(left).value(),
                                          std::move(right).value());
    }
    return left;
}

Parser::ExpressionResult Parser::parseProduct() {
    ExpressionResult left = parsePower();
    while (left) {
        const OperationName* const name = operationAt(peek(), products);
        if (!name) break;
        const Position place = position();
        skip(1);
        ExpressionResult right = parsePower();
        if (!right) return right;
        left = make<ArithmeticExpression>(place, name->operation, std::move(left).value(),
                                          std::move(right).value());
    }
    return left;
}

Parser::ExpressionResult Parser::parsePower() {
    ExpressionResult base = parseSign();
    while (base && atSymbol(U'^')) {
        const Position place = position();
        skip(1);
        ExpressionResult exponent = parseSign();
        if (!exponent) return exponent;
        base = make<ArithmeticExpression>(place, Operation::power, std::move(base).value(),
                                          std::move(exponent).value());
    }
    return base;
}

Parser::ExpressionResult Parser::parseSign() {
    if (!atSymbol(U'-') && !atSymbol(U'+')) return parseExistence();
    const Nesting nesting(*this);
    if (nesting.isTooDeep()) return nesting.error();
    const Position place = position();
    const bool isNegative = atSymbol(U'-');
    skip(1);
    ExpressionResult operand = parseSign();
    if (!operand || !isNegative) return operand;
    return make<NegateExpression>(place, std::move(operand).value());
}

/// `x exists`.
Parser::ExpressionResult Parser::parseExistence() {
    ExpressionResult reference = parseReference();
    if (!reference || !at(Keyword::exists)) return reference;
    const Position place = position();
    skip(1);
    return make<ExistsExpression>(place, std::move(reference).value());
}

} // namespace songsweep::interpreter
