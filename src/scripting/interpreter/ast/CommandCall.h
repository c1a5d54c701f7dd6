// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/interpreter/ast/Expression.h"

#include <optional>

namespace songsweep::interpreter {

/// A command of an application, as a statement or as a value.
class CommandCall {
  public:
    struct Argument {
        TermCode parameter = 0;
        ExpressionPointer value;
    };
    /// Words and term must outlive it. `direct` may be null.
    CommandCall(Position position, const Terminology& origin, const CommandTerm& term,
                ExpressionPointer direct, std::vector<Argument> arguments)
        : m_position(position)
        , m_origin(origin)
        , m_term(term)
        , m_direct(std::move(direct))
        , m_arguments(std::move(arguments)) {}

    Position position() const { return m_position; }
    int depth() const;
    /// The command's result, nothing where it has none.
    Result<std::optional<Value>> perform(Context& context) const;

  private:
    Result<std::optional<Value>> directParameter(Context& context) const;

    Position m_position;
    const Terminology& m_origin;
    const CommandTerm& m_term;
    ExpressionPointer m_direct;
    std::vector<Argument> m_arguments;
};

class CommandExpression final : public Expression {
  public:
    explicit CommandExpression(CommandCall call)
        : Expression(call.position(), call.depth())
        , m_call(std::move(call)) {}

  protected:
    Result<Value> compute(Context& context) const override;

  private:
    CommandCall m_call;
};

} // namespace songsweep::interpreter
