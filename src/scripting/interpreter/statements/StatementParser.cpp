// SPDX-License-Identifier: MIT
#include "scripting/interpreter/statements/StatementParser.h"

#include "scripting/interpreter/Words.h"

namespace songsweep::interpreter {
namespace {

/// Words that begin statements of the whole language which are not in this part of it.
constexpr std::array<std::string_view, 10> unsupportedWords{
    "considering", "ignoring", "script", "using", "use", "property", "global", "continue", "local", "prop"};

bool isUnsupported(std::string_view word) {
    return std::ranges::any_of(unsupportedWords,
                               [&](std::string_view unsupported) { return isSameWord(unsupported, word); });
}

bool isWord(const Token& token) {
    return token.kind == Token::Kind::word || token.kind == Token::Kind::quotedWord;
}

} // namespace

bool StatementParser::atBlockEnd() const {
    if (m_cursor.peek().kind == Token::Kind::end) return true;
    if (m_cursor.at(Keyword::else_) || m_cursor.at(Keyword::on)) return true;
    return m_cursor.at(Keyword::end) && !m_cursor.at(Keyword::of, 1);
}

Block StatementParser::block() {
    Block block;
    for (m_cursor.skipLineEnds(); !atBlockEnd(); m_cursor.skipLineEnds()) {
        block.push_back(statement());
        m_cursor.expectLineEnd();
    }
    return block;
}

Block StatementParser::oneStatement() {
    Block block;
    block.push_back(statement());
    return block;
}

Block StatementParser::repeatBody() {
    m_cursor.expectLineEnd();
    ++m_repeats;
    Block body = block();
    --m_repeats;
    expectEnd(Keyword::repeat, "repeat");
    return body;
}

void StatementParser::expectEnd(Keyword keyword, const std::string& word) {
    m_cursor.expect(Keyword::end, "“end " + word + "”");
    m_cursor.take(keyword);
}

StatementPointer StatementParser::statement() {
    const TokenCursor::Nesting nesting(m_cursor);
    if (m_expressions.commands().atCommand()) return commandStatement(*this);
    const Token& token = m_cursor.peek();
    if (token.kind != Token::Kind::word) return expressionStatement(*this);
    for (const StatementWord& row : statementWords) {
        if (!isSameWord(row.word, token.text)) continue;
        m_cursor.skip();
        return row.rule(*this, token.position);
    }
    if (isWord(m_cursor.peek(1)) && isUnsupported(token.text)) {
        m_cursor.fail("“" + std::string(token.text) + "” is not supported");
    }
    return expressionStatement(*this);
}

ExpressionPointer StatementParser::assignable() {
    const Position place = m_cursor.position();
    ExpressionPointer assignable = m_expressions.reference();
    if (!assignable->isAssignable()) m_cursor.fail(place, "this cannot be set");
    return assignable;
}

} // namespace songsweep::interpreter
