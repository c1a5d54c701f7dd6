// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/interpreter/ast/Statement.h"

#include <optional>

namespace songsweep::interpreter {

/// An expression that stands for itself, with or without `get`: its value is the result.
class ExpressionStatement final : public Statement {
  public:
    ExpressionStatement(Position position, ExpressionPointer expression)
        : Statement(position)
        , m_expression(std::move(expression)) {}

  protected:
    Result<Flow> run(Context& context) const override;

  private:
    ExpressionPointer m_expression;
};

/// A command of an application, as a statement or as a value.
class CommandCall {
  public:
    struct Argument {
        TermCode parameter = 0;
        ExpressionPointer value;
    };
    CommandCall(Position position, const Terminology& origin, const CommandTerm& term,
                ExpressionPointer direct, std::vector<Argument> arguments)
        : m_position(position)
        , m_origin(origin)
        , m_term(term)
        , m_direct(std::move(direct))
        , m_arguments(std::move(arguments)) {}

    Position position() const { return m_position; }
    int depth() const;
    Result<std::optional<Value>> perform(Context& context) const;

  private:
    Result<std::optional<Value>> directParameter(Context& context) const;

    Position m_position;
    const Terminology& m_origin;
    const CommandTerm& m_term;
    ExpressionPointer m_direct;
    std::vector<Argument> m_arguments;
};

class CommandStatement final : public Statement {
  public:
    explicit CommandStatement(CommandCall call)
        : Statement(call.position())
        , m_call(std::move(call)) {}

  protected:
    Result<Flow> run(Context& context) const override;

  private:
    CommandCall m_call;
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

/// `set a to b`.
class SetStatement final : public Statement {
  public:
    SetStatement(Position position, ExpressionPointer goal, ExpressionPointer value)
        : Statement(position)
        , m_goal(std::move(goal))
        , m_value(std::move(value)) {}

  protected:
    Result<Flow> run(Context& context) const override;

  private:
    ExpressionPointer m_goal;
    ExpressionPointer m_value;
};

/// `copy b to a`: lists are copied as a whole.
class CopyStatement final : public Statement {
  public:
    CopyStatement(Position position, ExpressionPointer value, ExpressionPointer goal)
        : Statement(position)
        , m_value(std::move(value))
        , m_goal(std::move(goal)) {}

  protected:
    Result<Flow> run(Context& context) const override;

  private:
    ExpressionPointer m_value;
    ExpressionPointer m_goal;
};

/// `tell x … end tell`, `tell x to …`.
class TellStatement final : public Statement {
  public:
    TellStatement(Position position, ExpressionPointer target, Block body)
        : Statement(position)
        , m_target(std::move(target))
        , m_body(std::move(body)) {}

  protected:
    Result<Flow> run(Context& context) const override;

  private:
    ExpressionPointer m_target;
    Block m_body;
};

/// `if … then … else if … then … else … end if`.
class IfStatement final : public Statement {
  public:
    struct Branch {
        ExpressionPointer condition; ///< null for `else`
        Block body;
    };
    IfStatement(Position position, std::vector<Branch> branches)
        : Statement(position)
        , m_branches(std::move(branches)) {}

  protected:
    Result<Flow> run(Context& context) const override;

  private:
    std::vector<Branch> m_branches;
};

/// `try … on error message number n … end try`.
class TryStatement final : public Statement {
  public:
    struct Handler {
        ExpressionPointer message; ///< a variable, or null
        ExpressionPointer number;  ///< a variable, or null
        Block body;
    };
    TryStatement(Position position, Block body, Handler handler)
        : Statement(position)
        , m_body(std::move(body))
        , m_handler(std::move(handler)) {}

  protected:
    Result<Flow> run(Context& context) const override;

  private:
    Block m_body;
    Handler m_handler;
};

/// `error "message" number n`.
class ErrorStatement final : public Statement {
  public:
    ErrorStatement(Position position, ExpressionPointer message, ExpressionPointer number)
        : Statement(position)
        , m_message(std::move(message))
        , m_number(std::move(number)) {}

  protected:
    Result<Flow> run(Context& context) const override;

  private:
    ExpressionPointer m_message;
    ExpressionPointer m_number;
};

/// `return x`, `return`.
class ReturnStatement final : public Statement {
  public:
    ReturnStatement(Position position, ExpressionPointer value)
        : Statement(position)
        , m_value(std::move(value)) {}

  protected:
    Result<Flow> run(Context& context) const override;

  private:
    ExpressionPointer m_value;
};

/// `exit repeat`.
class ExitRepeatStatement final : public Statement {
  public:
    using Statement::Statement;

  protected:
    Result<Flow> run(Context&) const override { return Flow::exitRepeat; }
};

} // namespace songsweep::interpreter
