// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/interpreter/ast/Expression.h"

namespace songsweep::interpreter {

/// How a statement leaves: on to the next one, out of the innermost repeat, or out of the script.
enum class Flow { onward, exitRepeat, returned };

/// A part of a text that does something. Executes itself against a context, and leaves there the result of
/// the script so far.
///
/// What a node is made of, its rule fills in; from then on it does not change.
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

/// Statements one after another.
using Block = std::vector<StatementPointer>;
Result<Flow> executeBlock(Context& context, const Block& block);

} // namespace songsweep::interpreter
