// SPDX-License-Identifier: MIT
#include "scripting/interpreter/TokenCursor.h"

#include "scripting/interpreter/Limits.h"

namespace songsweep::interpreter {
namespace {

std::string described(const Token& token) {
    switch (token.kind) {
    case Token::Kind::end:
        return "the end of the text";
    case Token::Kind::lineEnd:
        return "the end of the line";
    case Token::Kind::text:
        return "a text";
    default:
        return "“" + std::string(token.text) + "”";
    }
}

bool isName(const Token& token) { return token.kind == Token::Kind::word && token.keyword == Keyword::none; }

} // namespace

void TokenCursor::skipLineEnds() {
    while (peek().kind == Token::Kind::lineEnd)
        skip();
}

bool TokenCursor::take(Keyword keyword) {
    if (!at(keyword)) return false;
    skip();
    return true;
}

bool TokenCursor::takeSymbol(char32_t symbol) {
    if (!atSymbol(symbol)) return false;
    skip();
    return true;
}

bool TokenCursor::takeWords(std::string_view words) {
    const std::size_t count = wordsAt(upcoming(), words);
    skip(count);
    return count > 0;
}

void TokenCursor::expect(Keyword keyword, std::string_view what) {
    if (!take(keyword)) failExpecting(what);
}

void TokenCursor::expectSymbol(char32_t symbol, std::string_view what) {
    if (!takeSymbol(symbol)) failExpecting(what);
}

void TokenCursor::expectLineEnd() {
    if (!atLineEnd()) failExpecting("the end of the line");
}

void TokenCursor::expectTextEnd() {
    if (peek().kind != Token::Kind::end) fail(described(peek()) + " stands outside of any block");
}

/// Names the word before, too: where that is one that nobody knows, it is the one to blame.
void TokenCursor::failExpecting(std::string_view what) {
    const bool isBehindName = m_next > 0 && isName(m_tokens[m_next - 1]);
    const std::string behind = isBehindName ? " behind " + described(m_tokens[m_next - 1]) : "";
    fail("expected " + std::string(what) + ", but found " + described(peek()) + behind);
}

void TokenCursor::fail(Position position, const std::string& reason) {
    if (m_error) return;
    m_error = Error{Error::Code::invalid, locatedText(position, reason)};
    m_next = m_tokens.size() - 1;
}

const Vocabulary::Entry* TokenCursor::term() const {
    if (!m_vocabulary) return nullptr;
    if (m_termVocabulary != m_vocabulary || m_termPlace != m_next) {
        m_term = m_vocabulary->longestAt(upcoming());
        m_termVocabulary = m_vocabulary;
        m_termPlace = m_next;
    }
    return m_term;
}

TokenCursor::Nesting::Nesting(TokenCursor& cursor)
    : m_cursor(cursor) {
    if (++m_cursor.m_nesting > maximumNesting) m_cursor.fail("the text is nested too deep");
}

} // namespace songsweep::interpreter
