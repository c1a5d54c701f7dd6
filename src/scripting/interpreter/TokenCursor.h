// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"
#include "scripting/interpreter/Token.h"
#include "scripting/interpreter/Vocabulary.h"

#include <algorithm>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace songsweep::interpreter {

/// The place in a text that the parsers have come to, and all that they share: the tokens, the words known
/// there, how deep it lies, and the first error.
///
///     ExpressionPointer target = parser.assignable();
///     parser.cursor().expect(Keyword::to, "“to”");
///     ExpressionPointer value = parser.expression();
///
/// The first error is latched and moves the cursor to the end of the text, where no rule finds anything and
/// every loop ends. So no rule looks at what another one met: all of them return nodes, and who parses the
/// whole text asks for the error once. Linear in the number of tokens.
class TokenCursor {
  public:
    /// The last token is the end. The source that the tokens point into must outlive the cursor.
    explicit TokenCursor(std::vector<Token> tokens)
        : m_tokens(std::move(tokens)) {}

    const Token& peek(std::size_t ahead = 0) const {
        return m_tokens[std::min(m_next + ahead, m_tokens.size() - 1)];
    }
    std::span<const Token> upcoming() const { return std::span(m_tokens).subspan(m_next); }
    Position position() const { return peek().position; }

    bool at(Keyword keyword, std::size_t ahead = 0) const { return peek(ahead).keyword == keyword; }
    bool atSymbol(char32_t symbol) const {
        return peek().kind == Token::Kind::symbol && peek().symbol == symbol;
    }
    bool atWords(std::string_view words) const { return wordsAt(upcoming(), words) > 0; }
    bool atLineEnd() const { return peek().kind == Token::Kind::lineEnd || peek().kind == Token::Kind::end; }

    /// Goes on behind tokens; never behind the end.
    void skip(std::size_t count = 1) { m_next = std::min(m_next + count, m_tokens.size() - 1); }
    void skipLineEnds();
    bool take(Keyword keyword);
    bool takeSymbol(char32_t symbol);
    bool takeWords(std::string_view words);

    // Errors. `what` continues “expected …”.

    void expect(Keyword keyword, std::string_view what);
    void expectSymbol(char32_t symbol, std::string_view what);
    void expectLineEnd();
    void expectTextEnd();
    void failExpecting(std::string_view what);
    void fail(const std::string& reason) { fail(position(), reason); }
    void fail(Position position, const std::string& reason);
    const std::optional<Error>& error() const { return m_error; }

    // Words of applications.

    /// The words of the application that is told at this place; null where none is.
    const Vocabulary* vocabulary() const { return m_vocabulary; }
    void setVocabulary(const Vocabulary* vocabulary) { m_vocabulary = vocabulary; }
    const Terminology* terminology() const { return m_vocabulary ? &m_vocabulary->terminology() : nullptr; }
    /// The longest term of that application that begins here, null where there is none.
    const Vocabulary::Entry* term() const;

    /// One more level of nesting, until the end of a scope; an error where it is one too many.
    class Nesting {
      public:
        explicit Nesting(TokenCursor& cursor);
        Nesting(const Nesting&) = delete;
        Nesting& operator=(const Nesting&) = delete;
        ~Nesting() { --m_cursor.m_nesting; }

      private:
        TokenCursor& m_cursor;
    };

  private:
    std::vector<Token> m_tokens;
    std::size_t m_next = 0;
    std::optional<Error> m_error;
    const Vocabulary* m_vocabulary = nullptr;
    int m_nesting = 0;
    // The term found last and where: several rules ask about the same place.
    mutable const Vocabulary::Entry* m_term = nullptr;
    mutable const Vocabulary* m_termVocabulary = nullptr;
    mutable std::size_t m_termPlace = 0;
};

} // namespace songsweep::interpreter
