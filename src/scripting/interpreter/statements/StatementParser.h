// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/interpreter/ExpressionParser.h"
#include "scripting/interpreter/statements/StatementRules.h"

namespace songsweep::interpreter {

/// Reads statements and blocks of them. What each statement is made of stands with its node in a file of its
/// own (StatementRules.h); here is what those rules use.
///
/// Never gives null; errors are latched in the cursor.
class StatementParser {
  public:
    /// Both must outlive it.
    StatementParser(TokenCursor& cursor, ExpressionParser& expressions)
        : m_cursor(cursor)
        , m_expressions(expressions) {}

    TokenCursor& cursor() { return m_cursor; }
    ExpressionParser& expressions() { return m_expressions; }
    ExpressionPointer expression() { return m_expressions.expression(); }
    ExpressionPointer variable() { return m_expressions.variable(); }
    /// What `set` and `copy` can put a value into.
    ExpressionPointer assignable();

    /// The statements up to the end of the block, which is not taken.
    Block block();
    /// A block of the one statement that stands here.
    Block oneStatement();
    /// The block of a repeat, with its end.
    Block repeatBody();
    bool isInRepeat() const { return m_repeats > 0; }
    /// `end tell`, or `end` alone.
    void expectEnd(Keyword keyword, const std::string& word);

  private:
    StatementPointer statement();
    bool atBlockEnd() const;

    TokenCursor& m_cursor;
    ExpressionParser& m_expressions;
    int m_repeats = 0; ///< how many surround the place
};

} // namespace songsweep::interpreter
