// SPDX-License-Identifier: MIT
#include "scripting/interpreter/ParserSupport.h"
#include "scripting/interpreter/Words.h"

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

} // namespace

const Token& Parser::peek(std::size_t ahead) const {
    return m_tokens[std::min(m_next + ahead, m_tokens.size() - 1)];
}

/// The longest term of the application told that begins here, null where there is none.
const Vocabulary::Entry* Parser::termAhead() const {
    if (!m_vocabulary) return nullptr;
    if (m_termVocabulary != m_vocabulary || m_termPlace != m_next) {
        m_term = m_vocabulary->longestAt(upcoming());
        m_termVocabulary = m_vocabulary;
        m_termPlace = m_next;
    }
    return m_term;
}

bool Parser::at(Keyword keyword, std::size_t ahead) const { return peek(ahead).keyword == keyword; }

bool Parser::atSymbol(char32_t symbol) const {
    return peek().kind == Token::Kind::symbol && peek().symbol == symbol;
}

bool Parser::atLineEnd() const {
    return peek().kind == Token::Kind::lineEnd || peek().kind == Token::Kind::end;
}

bool Parser::take(Keyword keyword) {
    if (!at(keyword)) return false;
    ++m_next;
    return true;
}

bool Parser::takeSymbol(char32_t symbol) {
    if (!atSymbol(symbol)) return false;
    ++m_next;
    return true;
}

bool Parser::takeWords(std::string_view words) {
    const std::size_t count = wordsAt(upcoming(), words);
    m_next += count;
    return count > 0;
}

void Parser::skipLineEnds() {
    while (peek().kind == Token::Kind::lineEnd)
        ++m_next;
}

Error Parser::failure(Position position, const std::string& reason) const {
    return {Error::Code::invalid, locatedText(position, reason)};
}

Error Parser::failure(const std::string& reason) const { return failure(position(), reason); }

Error Parser::expected(const std::string& what) const {
    return failure("expected " + what + ", but found " + described(peek()));
}

Result<void> Parser::expect(Keyword keyword, const std::string& what) {
    if (take(keyword)) return {};
    return expected(what);
}

Result<void> Parser::expectSymbol(char32_t symbol, const std::string& what) {
    if (takeSymbol(symbol)) return {};
    return expected(what);
}

Result<void> Parser::expectLineEnd() {
    if (!atLineEnd()) return expected("the end of the line");
    return {};
}

Parser::ExpressionResult Parser::checked(ExpressionPointer expression) const {
    if (expression->treeDepth() > maximumTreeDepth)
        return failure(expression->position(), "this is too long");
    return expression;
}

std::size_t Parser::slotOf(std::string_view name) {
    return m_slots.try_emplace(loweredWord(name), m_slots.size()).first->second;
}

Result<Program> Parser::program() {
    Result<Block> body = parseBlock();
    if (!body) return body.error();
    if (peek().kind != Token::Kind::end) return failure(described(peek()) + " stands outside of any block");
    return Program{std::move(body).value(), m_slots.size()};
}

} // namespace songsweep::interpreter
