// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/interpreter/ast/Statement.h"

namespace songsweep::interpreter {

/// What all kinds of repeat have in common: a body, which `exit repeat` leaves.
class RepeatStatement : public Statement {
  public:
    RepeatStatement(Position position, Block body)
        : Statement(position)
        , m_body(std::move(body)) {}

  protected:
    /// Runs the body once. False when the repeat is over; then `flow` says how the statement leaves.
    Result<bool> runOnce(Context& context, Flow& flow) const;

  private:
    Block m_body;
};

/// `repeat`, without end but for `exit repeat`.
class RepeatForeverStatement final : public RepeatStatement {
  public:
    using RepeatStatement::RepeatStatement;

  protected:
    Result<Flow> run(Context& context) const override;
};

/// `repeat n times`.
class RepeatTimesStatement final : public RepeatStatement {
  public:
    RepeatTimesStatement(Position position, ExpressionPointer times, Block body)
        : RepeatStatement(position, std::move(body))
        , m_times(std::move(times)) {}

  protected:
    Result<Flow> run(Context& context) const override;

  private:
    ExpressionPointer m_times;
};

/// `repeat while x`, `repeat until x`.
class RepeatConditionStatement final : public RepeatStatement {
  public:
    enum class Mode { whileTrue, untilTrue };
    RepeatConditionStatement(Position position, Mode mode, ExpressionPointer condition, Block body)
        : RepeatStatement(position, std::move(body))
        , m_mode(mode)
        , m_condition(std::move(condition)) {}

  protected:
    Result<Flow> run(Context& context) const override;

  private:
    Mode m_mode;
    ExpressionPointer m_condition;
};

/// `repeat with i from a to b by c`. The bounds are evaluated once.
class RepeatRangeStatement final : public RepeatStatement {
  public:
    struct Range {
        ExpressionPointer first;
        ExpressionPointer last;
        ExpressionPointer step; ///< null for 1
    };
    RepeatRangeStatement(Position position, ExpressionPointer variable, Range range, Block body)
        : RepeatStatement(position, std::move(body))
        , m_variable(std::move(variable))
        , m_range(std::move(range)) {}

  protected:
    Result<Flow> run(Context& context) const override;

  private:
    ExpressionPointer m_variable;
    Range m_range;
};

/// `repeat with x in list`. Goes through the items that the list has at the start.
class RepeatListStatement final : public RepeatStatement {
  public:
    RepeatListStatement(Position position, ExpressionPointer variable, ExpressionPointer list, Block body)
        : RepeatStatement(position, std::move(body))
        , m_variable(std::move(variable))
        , m_list(std::move(list)) {}

  protected:
    Result<Flow> run(Context& context) const override;

  private:
    ExpressionPointer m_variable;
    ExpressionPointer m_list;
};

} // namespace songsweep::interpreter
