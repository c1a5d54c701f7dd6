// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"
#include "scripting/interpreter/Token.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace songsweep::interpreter {

/// Cuts a text (UTF-8) into tokens. Comments, blanks and continued line ends are dropped; the last token is
/// always the end. The tokens point into the source.
///
/// Linear; an error names the place of a character that cannot be read, an open text or an open comment.
class Lexer {
  public:
    explicit Lexer(std::string_view source)
        : m_source(source) {}

    Result<std::vector<Token>> tokens();

  private:
    bool atEnd() const { return m_offset >= m_source.size(); }
    std::string_view rest() const { return m_source.substr(m_offset); }
    Position position() const;
    void skip(std::size_t bytes);
    void beginLine(std::size_t bytes);
    Error failure(Position position, const std::string& reason) const;

    Result<void> skipBlanks();
    Result<bool> skipComment();
    Result<void> skipBlockComment();
    bool skipContinuation();

    Result<Token> nextToken();
    Token wordToken();
    Result<Token> numberToken();
    Result<Token> delimitedToken(Token::Kind kind, char delimiter);
    Result<Token> symbolToken();
    Token lineEndToken();
    Token tokenOf(Token::Kind kind, std::size_t bytes);

    std::string_view m_source;
    std::size_t m_offset = 0;
    std::size_t m_lineStart = 0;
    int m_line = 1;
    // The column is counted on from the last place it was asked for, so that a long line stays linear.
    mutable std::size_t m_countedOffset = 0;
    mutable int m_countedColumn = 1;
};

/// Whether a letter may stand behind a backslash in a quoted text.
bool isEscape(char letter);

/// A quoted text without its escapes: \" \\ \n \r \t.
std::string unescapedText(std::string_view quoted);

} // namespace songsweep::interpreter
