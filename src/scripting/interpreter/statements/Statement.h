// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/interpreter/ast/Expression.h"

namespace songsweep::interpreter {

/// How a statement leaves: on to the next one, out of the innermost repeat, or out of the script.
enum class Flow { onward, exitRepeat, returned };

/// A part of a text that does something. Executes itself against a context, and leaves there the result of
/// the script so far.
///
/// Never changes once it is made. Rules make theirs by `makeStatement`.
class Statement {
  public:
    explicit Statement(Position position)
        : m_position(position) {}
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;
    virtual ~Statement() = default;

    Position position() const { return m_position; }

    /// Takes a step.
    Result<Flow> execute(Context& context) const;

  protected:
    virtual Result<Flow> run(Context& context) const = 0;

  private:
    Position m_position;
};

using StatementPointer = std::unique_ptr<const Statement>;

/// A statement that runs a function, `Result<Flow> run(Context&)`, which holds what the statement is made of:
///
///     ExpressionPointer value = parser.expression();
///     return makeStatement(place, [value = std::move(value)](Context& context) -> Result<Flow> { … });
template <class Run>
StatementPointer makeStatement(Position position, Run run) {
    class RunningStatement final : public Statement {
      public:
        RunningStatement(Position place, Run function)
            : Statement(place)
            , m_run(std::move(function)) {}

      protected:
        Result<Flow> run(Context& context) const override { return m_run(context); }

      private:
        Run m_run;
    };
    return std::make_unique<const RunningStatement>(position, std::move(run));
}

/// Statements one after another.
using Block = std::vector<StatementPointer>;
Result<Flow> executeBlock(Context& context, const Block& block);

} // namespace songsweep::interpreter
