// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/interpreter/statements/Statement.h"

#include <array>
#include <string_view>

namespace songsweep::interpreter {

class StatementParser;

/// Reads a statement behind its first word, which stands at a place of the text.
using StatementRule = StatementPointer (*)(StatementParser& parser, Position place);

StatementPointer copyStatement(StatementParser& parser, Position place);
StatementPointer errorStatement(StatementParser& parser, Position place);
StatementPointer exitStatement(StatementParser& parser, Position place);
StatementPointer ifStatement(StatementParser& parser, Position place);
StatementPointer repeatStatement(StatementParser& parser, Position place);
StatementPointer returnStatement(StatementParser& parser, Position place);
StatementPointer setStatement(StatementParser& parser, Position place);
StatementPointer tellStatement(StatementParser& parser, Position place);
StatementPointer timeoutStatement(StatementParser& parser, Position place);
StatementPointer tryStatement(StatementParser& parser, Position place);

/// The statements that begin with a word of their own. A new one is a file with its node and its rule, and a
/// row here.
struct StatementWord {
    std::string_view word;
    StatementRule rule;
};
inline constexpr std::array statementWords{
    StatementWord{"copy", copyStatement},     StatementWord{"error", errorStatement},
    StatementWord{"exit", exitStatement},     StatementWord{"if", ifStatement},
    StatementWord{"repeat", repeatStatement}, StatementWord{"return", returnStatement},
    StatementWord{"set", setStatement},       StatementWord{"tell", tellStatement},
    StatementWord{"try", tryStatement},       StatementWord{"with", timeoutStatement},
};

/// A command of the application that is told; begins where the cursor stands.
StatementPointer commandStatement(StatementParser& parser);

/// An expression that stands for itself, with or without `get`.
StatementPointer expressionStatement(StatementParser& parser);

} // namespace songsweep::interpreter
