// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/interpreter/TokenCursor.h"
#include "scripting/interpreter/ast/References.h"

namespace songsweep::interpreter {

class ExpressionParser;

/// Reads references: what is named (a property, elements, items), which of several, and what contains it. A
/// reference may be a plain value, too.
///
/// Never gives null; errors are latched in the cursor.
class ReferenceParser {
  public:
    /// Both must outlive it; `expressions` reads indexes, filters and plain values.
    ReferenceParser(TokenCursor& cursor, ExpressionParser& expressions)
        : m_cursor(cursor)
        , m_expressions(expressions) {}

    ExpressionPointer reference();

  private:
    struct Specifier;

    ExpressionPointer contained(Specifier specifier);
    ExpressionPointer possessives(ExpressionPointer owner);
    ExpressionPointer node(Specifier specifier, ExpressionPointer container);
    void filter(Specifier& specifier);

    bool atProperties() const;
    ExpressionPointer properties();
    std::unique_ptr<const PropertyReference> property();
    bool atSpecifier() const;
    bool atItems() const;
    bool atFilter() const;
    Specifier specifier();
    Specifier term();
    Specifier elements();
    Specifier ordinal();
    void selector(Specifier& specifier);
    void rangeEnd(Specifier& specifier);
    bool atIndex() const;
    ExpressionPointer index();

    TokenCursor& m_cursor;
    ExpressionParser& m_expressions;
};

} // namespace songsweep::interpreter
