// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"
#include "scripting/interpreter/Applications.h"
#include "scripting/interpreter/Program.h"
#include "scripting/interpreter/Token.h"
#include "scripting/interpreter/ast/References.h"
#include "scripting/interpreter/ast/Statements.h"

#include <initializer_list>
#include <map>
#include <span>
#include <string>
#include <vector>

namespace songsweep::interpreter {

/// Reads tokens into a tree: one function for each rule of the grammar in docs/applescript.md.
///
/// Inside `tell application "…"` the words of that application are known. A construct that no rule fits is an
/// error with its place and what was expected there. Linear in the number of tokens; depth is bounded.
class Parser {
  public:
    /// The source that the tokens point into, and the applications, must outlive the parser; the applications
    /// the program too.
    Parser(std::vector<Token> tokens, const Applications& applications)
        : m_tokens(std::move(tokens))
        , m_applications(applications) {}

    Result<Program> program();

  private:
    using ExpressionResult = Result<ExpressionPointer>;
    using StatementResult = Result<StatementPointer>;
    class Nesting;
    struct Specifier;

    // Tokens.
    const Token& peek(std::size_t ahead = 0) const;
    std::span<const Token> upcoming() const { return std::span(m_tokens).subspan(m_next); }
    Position position() const { return peek().position; }
    const Vocabulary::Entry* termAhead() const;
    bool at(Keyword keyword, std::size_t ahead = 0) const;
    bool atSymbol(char32_t symbol) const;
    bool atLineEnd() const;
    bool take(Keyword keyword);
    bool takeSymbol(char32_t symbol);
    bool takeWords(std::string_view words);
    void skip(std::size_t count) { m_next += count; }
    void skipLineEnds();
    Error failure(const std::string& reason) const;
    Error failure(Position position, const std::string& reason) const;
    Error expected(const std::string& what) const;
    Result<void> expect(Keyword keyword, const std::string& what);
    Result<void> expectSymbol(char32_t symbol, const std::string& what);
    Result<void> expectLineEnd();

    // Statements (ParserStatements.cpp, ParserBlocks.cpp).
    Result<Block> parseBlock();
    bool atBlockEnd() const;
    StatementResult parseStatement();
    StatementResult parseKeywordStatement();
    StatementResult parseExpressionStatement();
    StatementResult parseSet();
    StatementResult parseCopy();
    StatementResult parseReturn();
    StatementResult parseExit();
    StatementResult parseErrorStatement();
    StatementResult parseTell();
    Result<Block> parseTellBody();
    StatementResult parseIf();
    Result<IfStatement::Branch> parseCondition();
    StatementResult parseOneLineIf(Position position, IfStatement::Branch branch);
    Result<Block> parseOneStatement();
    StatementResult parseRepeat();
    StatementResult parseRepeatWith(Position position);
    StatementResult parseRepeatRange(Position position, ExpressionPointer variable);
    Result<Block> parseRepeatBody();
    StatementResult parseTry();
    Result<TryStatement::Handler> parseErrorHandler();
    Result<void> expectEnd(Keyword keyword, const std::string& what);
    ExpressionResult parseGoal();
    ExpressionResult parseVariable();

    // Commands of applications (ParserCommands.cpp).
    const CommandTerm* commandAhead() const;
    Result<CommandCall> parseCommand();
    ExpressionResult parseDirectParameter(const CommandTerm& term);
    Result<std::vector<CommandCall::Argument>> parseArguments(const CommandTerm& term);
    Result<void> parseFlags(const CommandTerm& term, bool isOn,
                            std::vector<CommandCall::Argument>& arguments);
    const ParameterTerm* takeLabel(const CommandTerm& term);
    bool atLabel(const CommandTerm& term) const;

    // Expressions, loosest first (ParserExpressions.cpp).
    ExpressionResult parseExpression();
    ExpressionResult parseDisjunction();
    ExpressionResult parseConjunction();
    ExpressionResult parseNegation();
    ExpressionResult parseEquality();
    ExpressionResult parseOrder();
    ExpressionResult parseComparisons(bool isOrder, ExpressionResult (Parser::*parseOperand)());
    ExpressionResult parseCoercion();
    ExpressionResult parseConcatenation();
    ExpressionResult parseSum();
    ExpressionResult parseProduct();
    ExpressionResult parsePower();
    ExpressionResult parseSign();
    ExpressionResult parseExistence();

    // References and values (ParserReferences.cpp, ParserSpecifiers.cpp, ParserValues.cpp).
    ExpressionResult parseReference();
    ExpressionResult parseUnowned();
    ExpressionResult parseContained(Specifier specifier);
    ExpressionResult parsePossessives(ExpressionPointer owner);
    ExpressionResult built(Specifier specifier, ExpressionPointer container);
    Result<void> parseFilter(Specifier& specifier);
    bool atSpecifier() const;
    Result<Specifier> parseSpecifier();
    Result<Specifier> parseElements(bool isEvery);
    Result<Specifier> parseOrdinal();
    Result<Specifier> parseTerm();
    Result<void> parseSelector(Specifier& specifier);
    Result<void> parseRangeEnd(Specifier& specifier);
    bool atIndex() const;
    ExpressionResult parseIndex();
    ExpressionResult parseValue();
    ExpressionResult parseKeywordValue();
    ExpressionResult parsePrefixed();
    ExpressionResult parseNumber();
    ExpressionResult parseList(char32_t closing);
    ExpressionResult parseParenthesis();
    ExpressionResult parseApplication();
    ExpressionResult parseDate();
    ExpressionResult parseCount();
    ExpressionResult parseWord();

    template <class Node, class... Arguments>
    ExpressionResult make(Arguments&&... arguments);
    ExpressionResult checked(ExpressionPointer expression) const;
    std::size_t slotOf(std::string_view name);

    std::vector<Token> m_tokens;
    std::size_t m_next = 0;
    const Applications& m_applications;
    const Vocabulary* m_vocabulary = nullptr; ///< of the application being told
    const CommandTerm* m_command = nullptr;   ///< whose direct parameter is being read
    std::map<std::string, std::size_t, std::less<>> m_slots;
    // The term found last and where: several rules ask about the same place.
    mutable const Vocabulary::Entry* m_term = nullptr;
    mutable const Vocabulary* m_termVocabulary = nullptr;
    mutable std::size_t m_termPlace = 0;
    int m_nesting = 0;
    int m_repeats = 0; ///< how many surround the place
};

} // namespace songsweep::interpreter
