// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/interpreter/Limits.h"
#include "scripting/interpreter/Parser.h"

namespace songsweep::interpreter {

/// One more level of nesting, until the end of a scope.
class Parser::Nesting {
  public:
    explicit Nesting(Parser& parser)
        : m_parser(parser) {
        ++m_parser.m_nesting;
    }
    Nesting(const Nesting&) = delete;
    Nesting& operator=(const Nesting&) = delete;
    ~Nesting() { --m_parser.m_nesting; }

    bool isTooDeep() const { return m_parser.m_nesting > maximumNesting; }
    Error error() const { return m_parser.failure("the text is nested too deep"); }

  private:
    Parser& m_parser;
};

/// What is named, before it is known what contains it.
struct Parser::Specifier {
    enum class Kind { property, element, item, beginning, end, posixPath };
    Kind kind = Kind::property;
    Position position;
    std::string name; ///< of a property
    const PropertyTerm* property = nullptr;
    ClassReference elementClass;
    Selector selector;
    ExpressionPointer filter;
    bool isOrdinal = false;

    bool needsContainer() const { return kind != Kind::element && (kind != Kind::property || !property); }
    /// `every track whose …`, `tracks whose …`, `first track whose …`; not `track 1 whose …`, so that a
    /// filter behind `every track of playlist 1` is one of the tracks.
    bool canBeFiltered() const {
        return kind == Kind::element && !filter && (isOrdinal || selector.kind == Selector::Kind::every);
    }
};

template <class Node, class... Arguments>
Parser::ExpressionResult Parser::make(Arguments&&... arguments) {
    return checked(std::make_unique<const Node>(std::forward<Arguments>(arguments)...));
}

template <class Node, class... Arguments>
Result<StatementPointer> makeStatement(Arguments&&... arguments) {
    return StatementPointer(std::make_unique<const Node>(std::forward<Arguments>(arguments)...));
}

} // namespace songsweep::interpreter
