// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/interpreter/TokenCursor.h"
#include "scripting/interpreter/ast/CommandCall.h"

#include <vector>

namespace songsweep::interpreter {

class ExpressionParser;

/// Reads commands of the application that is told: the name, the direct parameter, and labelled arguments.
class CommandParser {
  public:
    /// Both must outlive it; `expressions` reads the arguments.
    CommandParser(TokenCursor& cursor, ExpressionParser& expressions)
        : m_cursor(cursor)
        , m_expressions(expressions) {}

    /// Whether a command begins here. `set volume to …` is the language's own `set`.
    bool atCommand() const;
    /// Only where one begins.
    CommandCall command();

    /// Whether a label of the command stands here whose direct parameter is being read: it ends that, and is
    /// no variable.
    bool atLabel() const { return m_command && atLabel(*m_command); }

  private:
    ExpressionPointer directParameter(const CommandTerm& term);
    std::vector<CommandCall::Argument> arguments(const CommandTerm& term);
    void flags(const CommandTerm& term, bool isOn, std::vector<CommandCall::Argument>& arguments);
    const ParameterTerm* takeLabel(const CommandTerm& term);
    bool atLabel(const CommandTerm& term) const;

    TokenCursor& m_cursor;
    ExpressionParser& m_expressions;
    const CommandTerm* m_command = nullptr; ///< whose direct parameter is being read
};

} // namespace songsweep::interpreter
