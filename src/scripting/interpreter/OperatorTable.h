// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/interpreter/Token.h"
#include "scripting/interpreter/ast/Expression.h"

#include <cstddef>
#include <span>

namespace songsweep::interpreter {

/// How tightly an operator binds, loosest first. `not` and the sign stand before their operand and are no
/// rows of the table.
enum class Precedence {
    disjunction,
    conjunction,
    negation,
    equality,
    order,
    coercion,
    concatenation,
    sum,
    product,
    power,
    sign
};

constexpr Precedence tighter(Precedence precedence) {
    return static_cast<Precedence>(static_cast<int>(precedence) + 1);
}

/// An operator behind an expression. A new one is a new row of the table.
struct BinaryOperator {
    Precedence precedence;
    /// The node of two operands; null for `as`, which has the name of a kind on its right.
    ExpressionPointer (*make)(Position position, ExpressionPointer left, ExpressionPointer right);
};

struct OperatorFound {
    const BinaryOperator* row = nullptr; ///< null for none
    std::size_t tokens = 0;
};

/// The operator that stands at the beginning of the tokens, and how many of them it takes.
OperatorFound binaryOperatorAt(std::span<const Token> tokens);

} // namespace songsweep::interpreter
