// SPDX-License-Identifier: MIT
#include "scripting/interpreter/OperatorTable.h"

#include "scripting/interpreter/Vocabulary.h"
#include "scripting/interpreter/ast/Operators.h"

#include <algorithm>
#include <array>

namespace songsweep::interpreter {
namespace {

using Connective = LogicExpression::Connective;

template <Connective connective>
ExpressionPointer logic(Position position, ExpressionPointer left, ExpressionPointer right) {
    return std::make_unique<const LogicExpression>(position, connective, std::move(left), std::move(right));
}

template <Comparison comparison>
ExpressionPointer that(Position position, ExpressionPointer left, ExpressionPointer right) {
    return std::make_unique<const CompareExpression>(position, comparison, false, std::move(left),
                                                     std::move(right));
}

template <Comparison comparison>
ExpressionPointer notThat(Position position, ExpressionPointer left, ExpressionPointer right) {
    return std::make_unique<const CompareExpression>(position, comparison, true, std::move(left),
                                                     std::move(right));
}

template <Operation operation>
ExpressionPointer arithmetic(Position position, ExpressionPointer left, ExpressionPointer right) {
    return std::make_unique<const ArithmeticExpression>(position, operation, std::move(left),
                                                        std::move(right));
}

ExpressionPointer concatenation(Position position, ExpressionPointer left, ExpressionPointer right) {
    return std::make_unique<const ConcatenateExpression>(position, std::move(left), std::move(right));
}

struct Symbol {
    char32_t symbol;
    BinaryOperator meaning;
};

constexpr std::array symbols{
    Symbol{U'=', {Precedence::equality, that<Comparison::equal>}},
    Symbol{U'≠', {Precedence::equality, that<Comparison::notEqual>}},
    Symbol{U'<', {Precedence::order, that<Comparison::less>}},
    Symbol{U'>', {Precedence::order, that<Comparison::greater>}},
    Symbol{U'≤', {Precedence::order, that<Comparison::lessOrEqual>}},
    Symbol{U'≥', {Precedence::order, that<Comparison::greaterOrEqual>}},
    Symbol{U'&', {Precedence::concatenation, concatenation}},
    Symbol{U'+', {Precedence::sum, arithmetic<Operation::add>}},
    Symbol{U'-', {Precedence::sum, arithmetic<Operation::subtract>}},
    Symbol{U'*', {Precedence::product, arithmetic<Operation::multiply>}},
    Symbol{U'/', {Precedence::product, arithmetic<Operation::divide>}},
    Symbol{U'^', {Precedence::power, arithmetic<Operation::power>}},
};

struct Phrase {
    Keyword first; ///< its first word
    std::string_view words;
    BinaryOperator meaning;
};

// Sorted by the first word; longer phrases stand before their beginnings.
constexpr std::array phrases{
    Phrase{Keyword::and_, "and", {Precedence::conjunction, logic<Connective::conjunction>}},
    Phrase{Keyword::as, "as", {Precedence::coercion, nullptr}},
    Phrase{Keyword::begins, "begins with", {Precedence::equality, that<Comparison::beginsWith>}},
    Phrase{Keyword::comes, "comes before", {Precedence::order, that<Comparison::less>}},
    Phrase{Keyword::comes, "comes after", {Precedence::order, that<Comparison::greater>}},
    Phrase{Keyword::contains, "contains", {Precedence::equality, that<Comparison::contains>}},
    Phrase{Keyword::div, "div", {Precedence::product, arithmetic<Operation::wholeDivide>}},
    Phrase{Keyword::does, "does not come before", {Precedence::order, notThat<Comparison::less>}},
    Phrase{Keyword::does, "does not come after", {Precedence::order, notThat<Comparison::greater>}},
    Phrase{Keyword::does, "does not equal", {Precedence::equality, that<Comparison::notEqual>}},
    Phrase{Keyword::does, "does not contain", {Precedence::equality, notThat<Comparison::contains>}},
    Phrase{Keyword::doesnt, "doesn't come before", {Precedence::order, notThat<Comparison::less>}},
    Phrase{Keyword::doesnt, "doesn't come after", {Precedence::order, notThat<Comparison::greater>}},
    Phrase{Keyword::doesnt, "doesn't equal", {Precedence::equality, that<Comparison::notEqual>}},
    Phrase{Keyword::doesnt, "doesn't contain", {Precedence::equality, notThat<Comparison::contains>}},
    Phrase{Keyword::ends, "ends with", {Precedence::equality, that<Comparison::endsWith>}},
    Phrase{Keyword::equal, "equal to", {Precedence::equality, that<Comparison::equal>}},
    Phrase{Keyword::equals, "equals", {Precedence::equality, that<Comparison::equal>}},
    Phrase{
        Keyword::greater, "greater than or equal to", {Precedence::order, that<Comparison::greaterOrEqual>}},
    Phrase{Keyword::greater, "greater than", {Precedence::order, that<Comparison::greater>}},
    Phrase{Keyword::is,
           "is not greater than or equal to",
           {Precedence::order, notThat<Comparison::greaterOrEqual>}},
    Phrase{
        Keyword::is, "is not less than or equal to", {Precedence::order, notThat<Comparison::lessOrEqual>}},
    Phrase{Keyword::is, "is greater than or equal to", {Precedence::order, that<Comparison::greaterOrEqual>}},
    Phrase{Keyword::is, "is less than or equal to", {Precedence::order, that<Comparison::lessOrEqual>}},
    Phrase{Keyword::is, "is not greater than", {Precedence::order, notThat<Comparison::greater>}},
    Phrase{Keyword::is, "is not less than", {Precedence::order, notThat<Comparison::less>}},
    Phrase{Keyword::is, "is greater than", {Precedence::order, that<Comparison::greater>}},
    Phrase{Keyword::is, "is less than", {Precedence::order, that<Comparison::less>}},
    Phrase{Keyword::is, "is not contained by", {Precedence::equality, notThat<Comparison::isIn>}},
    Phrase{Keyword::is, "is contained by", {Precedence::equality, that<Comparison::isIn>}},
    Phrase{Keyword::is, "is not equal to", {Precedence::equality, that<Comparison::notEqual>}},
    Phrase{Keyword::is, "is not in", {Precedence::equality, notThat<Comparison::isIn>}},
    Phrase{Keyword::is, "is equal to", {Precedence::equality, that<Comparison::equal>}},
    Phrase{Keyword::is, "is in", {Precedence::equality, that<Comparison::isIn>}},
    Phrase{Keyword::is, "is not", {Precedence::equality, that<Comparison::notEqual>}},
    Phrase{Keyword::is, "is", {Precedence::equality, that<Comparison::equal>}},
    Phrase{Keyword::isnt, "isn't contained by", {Precedence::equality, notThat<Comparison::isIn>}},
    Phrase{Keyword::isnt, "isn't equal to", {Precedence::equality, that<Comparison::notEqual>}},
    Phrase{Keyword::isnt, "isn't in", {Precedence::equality, notThat<Comparison::isIn>}},
    Phrase{Keyword::isnt, "isn't", {Precedence::equality, that<Comparison::notEqual>}},
    Phrase{Keyword::less, "less than or equal to", {Precedence::order, that<Comparison::lessOrEqual>}},
    Phrase{Keyword::less, "less than", {Precedence::order, that<Comparison::less>}},
    Phrase{Keyword::mod, "mod", {Precedence::product, arithmetic<Operation::remainder>}},
    Phrase{Keyword::or_, "or", {Precedence::disjunction, logic<Connective::disjunction>}},
    Phrase{Keyword::starts, "starts with", {Precedence::equality, that<Comparison::beginsWith>}},
};
static_assert(std::ranges::is_sorted(phrases, {}, &Phrase::first));

} // namespace

OperatorFound binaryOperatorAt(std::span<const Token> tokens) {
    const Token& token = tokens.front();
    if (token.kind == Token::Kind::symbol) {
        const auto symbol = std::ranges::find(symbols, token.symbol, &Symbol::symbol);
        return symbol == symbols.end() ? OperatorFound() : OperatorFound{&symbol->meaning, 1};
    }
    auto phrase = std::ranges::lower_bound(phrases, token.keyword, {}, &Phrase::first);
    for (; phrase != phrases.end() && phrase->first == token.keyword; ++phrase) {
        if (const std::size_t words = wordsAt(tokens, phrase->words)) return {&phrase->meaning, words};
    }
    return {};
}

} // namespace songsweep::interpreter
