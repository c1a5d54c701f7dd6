// SPDX-License-Identifier: MIT
#include "scripting/interpreter/Lexer.h"

#include "scripting/interpreter/Limits.h"

#include <gtest/gtest.h>

namespace songsweep::interpreter {
namespace {

using enum Token::Kind;

std::string nameOf(Token::Kind kind) {
    switch (kind) {
    case word:
        return "word";
    case quotedWord:
        return "quoted";
    case text:
        return "text";
    case integer:
        return "integer";
    case real:
        return "real";
    case symbol:
        return "symbol";
    case lineEnd:
        return "line";
    case end:
        break;
    }
    return "end";
}

/// "word@1:1 integer@1:5": kinds and places, without the end.
std::string shown(const std::string& source) {
    const Result<std::vector<Token>> tokens = Lexer(source).tokens();
    if (!tokens) return tokens.error().message;
    std::string result;
    for (const Token& token : tokens.value()) {
        if (token.kind == end) break;
        if (!result.empty()) result += ' ';
        result += nameOf(token.kind) + '@' + std::to_string(token.position.line) + ':' +
                  std::to_string(token.position.column);
    }
    return result;
}

struct Case {
    const char* source;
    const char* tokens;
};

class LexerTest : public testing::TestWithParam<Case> {};

TEST_P(LexerTest, CutsTheText) {
    EXPECT_EQ(shown(GetParam().source), GetParam().tokens) << GetParam().source;
}

const Case cases[] = {
    {"", ""},
    {"  \t ", ""},
    {"tell x", "word@1:1 word@1:6"},
    {"a\nb\r\nc\rd", "word@1:1 line@1:2 word@2:1 line@2:2 word@3:1 line@3:2 word@4:1"},
    {"12 1.5 1E5 2.5e-3", "integer@1:1 real@1:4 real@1:8 real@1:12"},
    {"\"ä\" x", "text@1:1 word@1:5"},
    {"\"a\nb\" x", "text@1:1 word@2:4"},
    {"|a b| x", "quoted@1:1 word@1:7"},
    {"a≤b", "word@1:1 symbol@1:2 word@1:3"},
    {"a/=b", "word@1:1 symbol@1:2 word@1:4"},
    {"x's y", "word@1:1 symbol@1:2 word@1:5"},
    {"x isn't y", "word@1:1 word@1:3 word@1:9"},
    {"a -- b\nc", "word@1:1 line@1:7 word@2:1"},
    {"a # b", "word@1:1"},
    {"a (* b (* c *)\n *) d", "word@1:1 word@2:5"},
    {"a ¬\n b", "word@1:1 word@2:2"},
    {"a ¬ \t\r\n b", "word@1:1 word@2:2"},
    {"a ¬ b", "line 1, column 3: unknown character “¬”"},
    {"a\xC2\xA0"
     "b",
     "word@1:1 word@1:3"},
    {"\xFF", "line 1, column 1: unknown character “\xFF”"},
    {"\"a\nb", "line 1, column 1: the text has no end"},
    {"\"a\\", "line 1, column 1: the text has no end"},
    {"\n \"a\\x\"", "line 2, column 4: unknown escape in a text"},
    {"|a\n|", "line 1, column 1: the |word| has no end"},
    {"x (* y", "line 1, column 3: the comment has no end"},
    {"1st", "line 1, column 2: a number runs into a word"},
};

INSTANTIATE_TEST_SUITE_P(Texts, LexerTest, testing::ValuesIn(cases));

TEST(LexerEscapesTest, TakesEscapesOutOfATextOnlyWhenAsked) {
    const std::string source = R"("a\"b\\c\nd\te\rf")";
    const Result<std::vector<Token>> tokens = Lexer(source).tokens();
    ASSERT_TRUE(tokens);
    EXPECT_EQ(tokens.value().front().text, R"(a\"b\\c\nd\te\rf)");
    EXPECT_EQ(unescapedText(tokens.value().front().text), "a\"b\\c\nd\te\rf");
}

TEST(LexerKeywordTest, KnowsKeywordsInAnyCase) {
    EXPECT_EQ(keywordOf("Tell"), Keyword::tell);
    EXPECT_EQ(keywordOf("ISN'T"), Keyword::isnt);
    EXPECT_EQ(keywordOf("tells"), Keyword::none);
}

TEST(LexerKeywordTest, ReservesTheWordsThatNoVariableMayHave) {
    for (const char* const word :
         {"after",  "alias",   "and",    "app",     "application", "as",    "before", "beginning",
          "begins", "by",      "comes",  "contain", "contains",    "copy",  "count",  "div",
          "does",   "doesn't", "else",   "end",     "ends",        "equal", "equals", "error",
          "every",  "exists",  "exit",   "false",   "first",       "from",  "get",    "if",
          "in",     "is",      "isn't",  "it",      "its",         "last",  "me",     "middle",
          "mod",    "my",      "not",    "of",      "on",          "or",    "repeat", "return",
          "second", "set",     "starts", "tell",    "the",         "then",  "third",  "through",
          "thru",   "times",   "to",     "true",    "try",         "until", "where",  "while",
          "whose",  "with",    "without"})
        EXPECT_TRUE(isReserved(keywordOf(word))) << word;
    for (const char* const word :
         {"character", "characters", "come", "contained", "date", "greater", "id", "item", "items", "less",
          "missing", "named", "number", "posix", "start", "than"})
        EXPECT_FALSE(isReserved(keywordOf(word))) << word;
    EXPECT_FALSE(isReserved(Keyword::none));
}

TEST(LexerLimitTest, TakesATextOfTheGreatestLength) {
    EXPECT_EQ(shown(std::string(maximumSourceBytes, ' ')), "");
    EXPECT_EQ(shown(std::string(maximumSourceBytes + 1, ' ')), "line 1, column 1: the text is too long");
}

} // namespace
} // namespace songsweep::interpreter
