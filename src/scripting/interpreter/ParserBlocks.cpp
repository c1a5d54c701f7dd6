// SPDX-License-Identifier: MIT
#include "scripting/interpreter/Lexer.h"
#include "scripting/interpreter/ParserSupport.h"
#include "scripting/interpreter/ast/Repeats.h"

#include <utility>

namespace songsweep::interpreter {

/// `end tell`, or `end` alone.
Result<void> Parser::expectEnd(Keyword keyword, const std::string& what) {
    if (!take(Keyword::end)) return expected("“end " + what + "”");
    take(keyword);
    return {};
}

Parser::StatementResult Parser::parseTell() {
    const Position place = position();
    skip(1);
    ExpressionResult target = parseReference();
    if (!target) return target.error();
    const Vocabulary* inner = m_vocabulary;
    if (const Applications::Entry* const application = target.value()->namedApplication()) {
        inner = &application->vocabulary;
    }
    const Vocabulary* const outer = std::exchange(m_vocabulary, inner);
    Result<Block> body = parseTellBody();
    m_vocabulary = outer;
    if (!body) return body.error();
    return makeStatement<TellStatement>(place, std::move(target).value(), std::move(body).value());
}

Result<Block> Parser::parseTellBody() {
    if (take(Keyword::to)) return parseOneStatement();
    if (!atLineEnd()) return expected("“to” or the end of the line");
    Result<Block> body = parseBlock();
    if (!body) return body;
    if (Result<void> ended = expectEnd(Keyword::tell, "tell"); !ended) return ended.error();
    return body;
}

Parser::StatementResult Parser::parseIf() {
    const Position place = position();
    skip(1);
    std::vector<IfStatement::Branch> branches;
    while (true) {
        Result<IfStatement::Branch> branch = parseCondition();
        if (!branch) return branch.error();
        if (branches.empty() && !atLineEnd()) return parseOneLineIf(place, std::move(branch).value());
        Result<Block> body = parseBlock();
        if (!body) return body.error();
        branch.value().body = std::move(body).value();
        branches.push_back(std::move(branch).value());
        if (!take(Keyword::else_)) break;
        if (take(Keyword::if_)) continue;
        Result<Block> otherwise = parseBlock();
        if (!otherwise) return otherwise.error();
        branches.push_back({nullptr, std::move(otherwise).value()});
        break;
    }
    if (Result<void> ended = expectEnd(Keyword::if_, "if"); !ended) return ended.error();
    return makeStatement<IfStatement>(place, std::move(branches));
}

/// A condition and its `then`; the body is still to come.
Result<IfStatement::Branch> Parser::parseCondition() {
    ExpressionResult condition = parseExpression();
    if (!condition) return condition.error();
    if (!take(Keyword::then) && !atLineEnd()) return expected("“then”");
    return IfStatement::Branch{std::move(condition).value(), {}};
}

Parser::StatementResult Parser::parseOneLineIf(Position place, IfStatement::Branch branch) {
    Result<Block> body = parseOneStatement();
    if (!body) return body.error();
    branch.body = std::move(body).value();
    std::vector<IfStatement::Branch> branches;
    branches.push_back(std::move(branch));
    if (take(Keyword::else_)) {
        Result<Block> otherwise = parseOneStatement();
        if (!otherwise) return otherwise.error();
        branches.push_back({nullptr, std::move(otherwise).value()});
    }
    return makeStatement<IfStatement>(place, std::move(branches));
}

Parser::StatementResult Parser::parseRepeat() {
    const Position place = position();
    skip(1);
    if (take(Keyword::with)) return parseRepeatWith(place);
    const bool isWhile = take(Keyword::while_);
    const bool isUntil = !isWhile && take(Keyword::until);
    if (atLineEnd() && !isWhile && !isUntil) {
        Result<Block> body = parseRepeatBody();
        if (!body) return body.error();
        return makeStatement<RepeatForeverStatement>(place, std::move(body).value());
    }
    ExpressionResult expression = parseExpression();
    if (!expression) return expression.error();
    if (!isWhile && !isUntil && !take(Keyword::times)) return expected("“times”");
    Result<Block> body = parseRepeatBody();
    if (!body) return body.error();
    if (!isWhile && !isUntil) {
        return makeStatement<RepeatTimesStatement>(place, std::move(expression).value(),
                                                   std::move(body).value());
    }
    using Mode = RepeatConditionStatement::Mode;
    return makeStatement<RepeatConditionStatement>(place, isWhile ? Mode::whileTrue : Mode::untilTrue,
                                                   std::move(expression).value(), std::move(body).value());
}

/// `repeat with x in list`, `repeat with i from a to b`.
Parser::StatementResult Parser::parseRepeatWith(Position place) {
    ExpressionResult variable = parseVariable();
    if (!variable) return variable.error();
    if (take(Keyword::from)) return parseRepeatRange(place, std::move(variable).value());
    if (!take(Keyword::in)) return expected("“from” or “in”");
    ExpressionResult list = parseExpression();
    if (!list) return list.error();
    Result<Block> body = parseRepeatBody();
    if (!body) return body.error();
    return makeStatement<RepeatListStatement>(place, std::move(variable).value(), std::move(list).value(),
                                              std::move(body).value());
}

Parser::StatementResult Parser::parseRepeatRange(Position place, ExpressionPointer variable) {
    RepeatRangeStatement::Range range;
    ExpressionResult first = parseExpression();
    if (!first) return first.error();
    range.first = std::move(first).value();
    if (Result<void> to = expect(Keyword::to, "“to”"); !to) return to.error();
    ExpressionResult last = parseExpression();
    if (!last) return last.error();
    range.last = std::move(last).value();
    if (take(Keyword::by)) {
        ExpressionResult step = parseExpression();
        if (!step) return step.error();
        range.step = std::move(step).value();
    }
    Result<Block> body = parseRepeatBody();
    if (!body) return body.error();
    return makeStatement<RepeatRangeStatement>(place, std::move(variable), std::move(range),
                                               std::move(body).value());
}

Result<Block> Parser::parseRepeatBody() {
    if (!atLineEnd()) return expected("the end of the line");
    ++m_repeats;
    Result<Block> body = parseBlock();
    --m_repeats;
    if (!body) return body;
    if (Result<void> ended = expectEnd(Keyword::repeat, "repeat"); !ended) return ended.error();
    return body;
}

Parser::StatementResult Parser::parseTry() {
    const Position place = position();
    skip(1);
    if (!atLineEnd()) return expected("the end of the line");
    Result<Block> body = parseBlock();
    if (!body) return body.error();
    TryStatement::Handler handler;
    if (at(Keyword::on) && at(Keyword::error, 1)) {
        skip(2);
        Result<TryStatement::Handler> parsed = parseErrorHandler();
        if (!parsed) return parsed.error();
        handler = std::move(parsed).value();
    }
    if (Result<void> ended = expectEnd(Keyword::try_, "try"); !ended) return ended.error();
    take(Keyword::error);
    return makeStatement<TryStatement>(place, std::move(body).value(), std::move(handler));
}

/// What follows `on error`: the variables for message and number, and the body.
Result<TryStatement::Handler> Parser::parseErrorHandler() {
    TryStatement::Handler handler;
    if (!atLineEnd() && !at(Keyword::number)) {
        ExpressionResult message = parseVariable();
        if (!message) return message.error();
        handler.message = std::move(message).value();
    }
    if (take(Keyword::number)) {
        ExpressionResult number = parseVariable();
        if (!number) return number.error();
        handler.number = std::move(number).value();
    }
    if (!atLineEnd()) return expected("the end of the line");
    Result<Block> body = parseBlock();
    if (!body) return body.error();
    handler.body = std::move(body).value();
    return handler;
}

} // namespace songsweep::interpreter
