// SPDX-License-Identifier: MIT
#include "scripting/interpreter/Lexer.h"

#include "scripting/interpreter/Limits.h"
#include "scripting/interpreter/Try.h"

#include <algorithm>
#include <array>

namespace songsweep::interpreter {
namespace {

constexpr std::string_view continuationMark = "\u00AC";
constexpr std::string_view noBreakSpace = "\u00A0";

bool isDigit(char letter) { return letter >= '0' && letter <= '9'; }

bool isWordStart(char letter) {
    return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z') || letter == '_';
}

bool isWordPart(char letter) { return isWordStart(letter) || isDigit(letter); }

bool isLineEnd(char letter) { return letter == '\n' || letter == '\r'; }

bool isContinuationByte(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

struct SymbolSpelling {
    std::string_view spelling;
    char32_t symbol;
};

// Longer spellings stand before their beginnings.
constexpr std::array symbolSpellings{
    SymbolSpelling{"/=", U'≠'}, SymbolSpelling{"<=", U'≤'},  SymbolSpelling{">=", U'≥'},
    SymbolSpelling{"≠", U'≠'},  SymbolSpelling{"≤", U'≤'},   SymbolSpelling{"≥", U'≥'},
    SymbolSpelling{"÷", U'/'},  SymbolSpelling{"'s", U'\''}, SymbolSpelling{"’s", U'\''},
    SymbolSpelling{"=", U'='},  SymbolSpelling{"<", U'<'},   SymbolSpelling{">", U'>'},
    SymbolSpelling{"&", U'&'},  SymbolSpelling{"+", U'+'},   SymbolSpelling{"-", U'-'},
    SymbolSpelling{"*", U'*'},  SymbolSpelling{"/", U'/'},   SymbolSpelling{"^", U'^'},
    SymbolSpelling{"(", U'('},  SymbolSpelling{")", U')'},   SymbolSpelling{"{", U'{'},
    SymbolSpelling{"}", U'}'},  SymbolSpelling{"[", U'['},   SymbolSpelling{"]", U']'},
    SymbolSpelling{",", U','},  SymbolSpelling{":", U':'},
};

std::size_t countWhile(std::string_view text, bool (*isPart)(char)) {
    const auto end = std::find_if_not(text.begin(), text.end(), isPart);
    return static_cast<std::size_t>(end - text.begin());
}

/// The length of the character that starts a text, in bytes.
std::size_t characterBytes(std::string_view text) {
    return 1 + countWhile(text.substr(1), isContinuationByte);
}

char unescapedLetter(char letter) {
    switch (letter) {
    case 'n':
        return '\n';
    case 'r':
        return '\r';
    case 't':
        return '\t';
    default:
        return letter;
    }
}

} // namespace

Position Lexer::position() const {
    if (m_countedOffset < m_lineStart) {
        m_countedOffset = m_lineStart;
        m_countedColumn = 1;
    }
    for (; m_countedOffset < m_offset; ++m_countedOffset) {
        if (!isContinuationByte(m_source[m_countedOffset])) ++m_countedColumn;
    }
    return {m_line, m_countedColumn};
}

void Lexer::skip(std::size_t bytes) { m_offset = std::min(m_offset + bytes, m_source.size()); }

void Lexer::beginLine(std::size_t bytes) {
    skip(bytes);
    ++m_line;
    m_lineStart = m_offset;
}

Error Lexer::failure(Position position, const std::string& reason) const {
    return {Error::Code::invalid, locatedText(position, reason)};
}

Result<std::vector<Token>> Lexer::tokens() {
    if (m_source.size() > maximumSourceBytes) return failure({}, "the text is too long");
    std::vector<Token> tokens;
    tokens.reserve(m_source.size() / 4 + 1);
    do {
        if (Result<void> skipped = skipBlanks(); !skipped) return skipped.error();
        TRY(const Token& token, nextToken());
        tokens.push_back(token);
    } while (tokens.back().kind != Token::Kind::end);
    return tokens;
}

Result<void> Lexer::skipBlanks() {
    while (!atEnd()) {
        if (rest().front() == ' ' || rest().front() == '\t') {
            skip(1);
        } else if (rest().starts_with(noBreakSpace)) {
            skip(noBreakSpace.size());
        } else if (!skipContinuation()) {
            TRY(const bool skipped, skipComment());
            if (!skipped) break;
        }
    }
    return {};
}

bool Lexer::skipContinuation() {
    if (!rest().starts_with(continuationMark)) return false;
    std::size_t bytes = continuationMark.size();
    while (bytes < rest().size() && (rest()[bytes] == ' ' || rest()[bytes] == '\t'))
        ++bytes;
    if (bytes >= rest().size() || !isLineEnd(rest()[bytes])) return false;
    skip(bytes);
    lineEndToken();
    return true;
}

Result<bool> Lexer::skipComment() {
    if (rest().starts_with("--") || rest().front() == '#') {
        skip(countWhile(rest(), [](char letter) { return !isLineEnd(letter); }));
        return true;
    }
    if (!rest().starts_with("(*")) return false;
    if (Result<void> skipped = skipBlockComment(); !skipped) return skipped.error();
    return true;
}

Result<void> Lexer::skipBlockComment() {
    const Position start = position();
    int depth = 0;
    do {
        if (atEnd()) return failure(start, "the comment has no end");
        if (rest().starts_with("(*")) {
            ++depth;
            skip(2);
        } else if (rest().starts_with("*)")) {
            --depth;
            skip(2);
        } else if (isLineEnd(rest().front())) {
            lineEndToken();
        } else {
            skip(1);
        }
    } while (depth > 0);
    return {};
}

Result<Token> Lexer::nextToken() {
    if (atEnd()) return tokenOf(Token::Kind::end, 0);
    const char first = rest().front();
    if (isLineEnd(first)) return lineEndToken();
    if (isWordStart(first)) return wordToken();
    if (isDigit(first)) return numberToken();
    if (first == '"') return delimitedToken(Token::Kind::text, '"');
    if (first == '|') return delimitedToken(Token::Kind::quotedWord, '|');
    return symbolToken();
}

Token Lexer::tokenOf(Token::Kind kind, std::size_t bytes) {
    Token token;
    token.kind = kind;
    token.position = position();
    token.text = rest().substr(0, bytes);
    skip(bytes);
    return token;
}

Token Lexer::lineEndToken() {
    Token token = tokenOf(Token::Kind::lineEnd, 0);
    beginLine(rest().starts_with("\r\n") ? 2 : 1);
    return token;
}

Token Lexer::wordToken() {
    std::size_t bytes = countWhile(rest(), isWordPart);
    // "isn't" and "doesn't" are one word each.
    if (rest()[bytes - 1] == 'n' && rest().substr(bytes).starts_with("'t")) bytes += 2;
    Token token = tokenOf(Token::Kind::word, bytes);
    token.keyword = keywordOf(token.text);
    return token;
}

Result<Token> Lexer::numberToken() {
    std::size_t bytes = countWhile(rest(), isDigit);
    const auto isDigitAt = [&](std::size_t offset) {
        return offset < rest().size() && isDigit(rest()[offset]);
    };
    bool isReal = false;
    if (bytes < rest().size() && rest()[bytes] == '.' && isDigitAt(bytes + 1)) {
        isReal = true;
        bytes += 1 + countWhile(rest().substr(bytes + 1), isDigit);
    }
    if (bytes < rest().size() && (rest()[bytes] == 'E' || rest()[bytes] == 'e')) {
        const std::size_t sign =
            bytes + 1 < rest().size() && (rest()[bytes + 1] == '+' || rest()[bytes + 1] == '-');
        if (isDigitAt(bytes + 1 + sign)) {
            isReal = true;
            bytes += 1 + sign + countWhile(rest().substr(bytes + 1 + sign), isDigit);
        }
    }
    const Token token = tokenOf(isReal ? Token::Kind::real : Token::Kind::integer, bytes);
    if (!atEnd() && isWordPart(rest().front())) return failure(position(), "a number runs into a word");
    return token;
}

Result<Token> Lexer::delimitedToken(Token::Kind kind, char delimiter) {
    const Position start = position();
    skip(1);
    const std::size_t begin = m_offset;
    while (!atEnd() && rest().front() != delimiter) {
        if (isLineEnd(rest().front())) {
            if (kind == Token::Kind::quotedWord) break;
            lineEndToken();
        } else if (kind == Token::Kind::text && rest().front() == '\\') {
            if (rest().size() > 1 && !isEscape(rest()[1]))
                return failure(position(), "unknown escape in a text");
            skip(2);
        } else {
            skip(1);
        }
    }
    if (atEnd() || rest().front() != delimiter) {
        return failure(start, kind == Token::Kind::text ? "the text has no end" : "the |word| has no end");
    }
    Token token;
    token.kind = kind;
    token.position = start;
    token.text = m_source.substr(begin, m_offset - begin);
    skip(1);
    return token;
}

Result<Token> Lexer::symbolToken() {
    for (const SymbolSpelling& candidate : symbolSpellings) {
        if (!rest().starts_with(candidate.spelling)) continue;
        Token token = tokenOf(Token::Kind::symbol, candidate.spelling.size());
        token.symbol = candidate.symbol;
        return token;
    }
    const std::string character(rest().substr(0, characterBytes(rest())));
    return failure(position(), "unknown character “" + character + "”");
}

bool isEscape(char letter) { return std::string_view("\"\\nrt").find(letter) != std::string_view::npos; }

std::string unescapedText(std::string_view quoted) {
    std::string text;
    text.reserve(quoted.size());
    for (std::size_t i = 0; i < quoted.size(); ++i) {
        const bool isEscaped = quoted[i] == '\\' && i + 1 < quoted.size();
        text += isEscaped ? unescapedLetter(quoted[++i]) : quoted[i];
    }
    return text;
}

} // namespace songsweep::interpreter
