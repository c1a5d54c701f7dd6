// SPDX-License-Identifier: MIT
#include "scripting/interpreter/ParserSupport.h"
#include "scripting/interpreter/Words.h"
#include "scripting/interpreter/ast/Literals.h"

#include <array>

namespace songsweep::interpreter {
namespace {

/// Words that begin statements of the whole language which are not in this part of it.
constexpr std::array<std::string_view, 10> unsupportedWords{
    "considering", "ignoring", "script", "using", "use", "property", "global", "continue", "local", "prop"};

bool isUnsupported(const Token& token) {
    return token.kind == Token::Kind::word &&
           std::ranges::any_of(unsupportedWords,
                               [&](std::string_view word) { return isSameWord(word, token.text); });
}

bool beginsWord(const Token& token) {
    return token.kind == Token::Kind::word || token.kind == Token::Kind::quotedWord;
}

} // namespace

bool Parser::atBlockEnd() const {
    if (peek().kind == Token::Kind::end || at(Keyword::else_) || at(Keyword::on)) return true;
    return at(Keyword::end) && !at(Keyword::of, 1);
}

Result<Block> Parser::parseBlock() {
    Block block;
    for (skipLineEnds(); !atBlockEnd(); skipLineEnds()) {
        StatementResult statement = parseStatement();
        if (!statement) return statement.error();
        block.push_back(std::move(statement).value());
        if (Result<void> ended = expectLineEnd(); !ended) return ended.error();
    }
    return block;
}

Result<Block> Parser::parseOneStatement() {
    StatementResult statement = parseStatement();
    if (!statement) return statement.error();
    Block block;
    block.push_back(std::move(statement).value());
    return block;
}

Parser::StatementResult Parser::parseStatement() {
    const Nesting nesting(*this);
    if (nesting.isTooDeep()) return nesting.error();
    if (commandAhead()) {
        Result<CommandCall> call = parseCommand();
        if (!call) return call.error();
        return makeStatement<CommandStatement>(std::move(call).value());
    }
    if (isUnsupported(peek()) && beginsWord(peek(1))) {
        return failure("“" + std::string(peek().text) + "” is not supported");
    }
    return parseKeywordStatement();
}

Parser::StatementResult Parser::parseKeywordStatement() {
    switch (peek().keyword) {
    case Keyword::tell:
        return parseTell();
    case Keyword::set:
        return parseSet();
    case Keyword::copy:
        return parseCopy();
    case Keyword::if_:
        return parseIf();
    case Keyword::repeat:
        return parseRepeat();
    case Keyword::exit:
        return parseExit();
    case Keyword::try_:
        return parseTry();
    case Keyword::error:
        return parseErrorStatement();
    case Keyword::return_:
        return parseReturn();
    default:
        return parseExpressionStatement();
    }
}

Parser::StatementResult Parser::parseExpressionStatement() {
    const Position place = position();
    if (at(Keyword::with)) return failure("“with” is not supported as a statement");
    take(Keyword::get);
    ExpressionResult expression = parseExpression();
    if (!expression) return expression.error();
    return makeStatement<ExpressionStatement>(place, std::move(expression).value());
}

/// What `set` and `copy` can put a value into.
Parser::ExpressionResult Parser::parseGoal() {
    const Position place = position();
    ExpressionResult goal = parseReference();
    if (!goal) return goal;
    if (!goal.value()->isAssignable()) return failure(place, "this cannot be set");
    return goal;
}

Parser::ExpressionResult Parser::parseVariable() {
    const Token& token = peek();
    if (!beginsWord(token) || (token.kind == Token::Kind::word && isReserved(token.keyword))) {
        return expected("a variable");
    }
    skip(1);
    return make<VariableExpression>(token.position, slotOf(token.text), std::string(token.text));
}

Parser::StatementResult Parser::parseSet() {
    const Position place = position();
    skip(1);
    ExpressionResult goal = parseGoal();
    if (!goal) return goal.error();
    if (Result<void> to = expect(Keyword::to, "“to”"); !to) return to.error();
    ExpressionResult value = parseExpression();
    if (!value) return value.error();
    return makeStatement<SetStatement>(place, std::move(goal).value(), std::move(value).value());
}

Parser::StatementResult Parser::parseCopy() {
    const Position place = position();
    skip(1);
    ExpressionResult value = parseExpression();
    if (!value) return value.error();
    if (Result<void> to = expect(Keyword::to, "“to”"); !to) return to.error();
    ExpressionResult goal = parseGoal();
    if (!goal) return goal.error();
    return makeStatement<CopyStatement>(place, std::move(value).value(), std::move(goal).value());
}

Parser::StatementResult Parser::parseReturn() {
    const Position place = position();
    skip(1);
    if (atLineEnd() || at(Keyword::else_)) return makeStatement<ReturnStatement>(place, nullptr);
    ExpressionResult value = parseExpression();
    if (!value) return value.error();
    return makeStatement<ReturnStatement>(place, std::move(value).value());
}

Parser::StatementResult Parser::parseExit() {
    const Position place = position();
    skip(1);
    take(Keyword::repeat);
    if (m_repeats == 0) return failure(place, "“exit repeat” stands outside of a repeat");
    return makeStatement<ExitRepeatStatement>(place);
}

Parser::StatementResult Parser::parseErrorStatement() {
    const Position place = position();
    skip(1);
    ExpressionPointer message;
    ExpressionPointer number;
    if (!atLineEnd() && !at(Keyword::number) && !at(Keyword::else_)) {
        ExpressionResult parsed = parseExpression();
        if (!parsed) return parsed.error();
        message = std::move(parsed).value();
    }
    if (take(Keyword::number)) {
        ExpressionResult parsed = parseExpression();
        if (!parsed) return parsed.error();
        number = std::move(parsed).value();
    }
    return makeStatement<ErrorStatement>(place, std::move(message), std::move(number));
}

} // namespace songsweep::interpreter
