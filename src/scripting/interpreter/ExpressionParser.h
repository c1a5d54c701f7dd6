// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/interpreter/Applications.h"
#include "scripting/interpreter/CommandParser.h"
#include "scripting/interpreter/OperatorTable.h"
#include "scripting/interpreter/ReferenceParser.h"
#include "scripting/interpreter/TokenCursor.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace songsweep::interpreter {

/// Reads expressions: operators by their table, values by the token that they begin with. Gives the
/// variables of a text their numbers.
///
/// Never gives null: where it fails, the error is latched in the cursor, and a node stands in.
class ExpressionParser {
  public:
    /// Cursor and applications must outlive it; the applications the nodes, too.
    ExpressionParser(TokenCursor& cursor, const Applications& applications)
        : m_cursor(cursor)
        , m_applications(applications)
        , m_references(cursor, *this)
        , m_commands(cursor, *this) {}

    ExpressionPointer expression();
    ExpressionPointer reference() { return m_references.reference(); }
    /// An expression without operators, `of` and possessives.
    ExpressionPointer value();
    ExpressionPointer variable();
    CommandParser& commands() { return m_commands; }

    std::size_t variableCount() const { return m_slots.size(); }
    /// The texts in quotes that are values, as they stand in the source and in its order.
    const std::vector<std::string_view>& texts() const { return m_texts; }

    /// A node; an error where the tree becomes too deep.
    template <class Node, class... Arguments>
    ExpressionPointer make(Arguments&&... arguments) {
        return checked(std::make_unique<const Node>(std::forward<Arguments>(arguments)...));
    }

  private:
    ExpressionPointer operation(Precedence loosest);
    ExpressionPointer negation();
    ExpressionPointer coercion(Position place, ExpressionPointer operand);
    ExpressionPointer sign();
    ExpressionPointer existence();

    ExpressionPointer number();
    ExpressionPointer text();
    ExpressionPointer symbolValue();
    ExpressionPointer parenthesis();
    ExpressionPointer list(char32_t closing);
    ExpressionPointer wordValue();
    ExpressionPointer prefixedValue();
    ExpressionPointer application();
    ExpressionPointer date();
    ExpressionPointer count();
    ExpressionPointer name();

    ExpressionPointer checked(ExpressionPointer expression);
    ExpressionPointer failExpecting(std::string_view what);
    ExpressionPointer standIn() const;

    TokenCursor& m_cursor;
    const Applications& m_applications;
    ReferenceParser m_references;
    CommandParser m_commands;
    std::map<std::string, std::size_t, std::less<>> m_slots; ///< of the variables, by name
    std::vector<std::string_view> m_texts;
};

} // namespace songsweep::interpreter
