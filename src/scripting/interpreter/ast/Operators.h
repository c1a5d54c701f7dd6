// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/interpreter/Arithmetic.h"
#include "scripting/interpreter/Coercion.h"
#include "scripting/interpreter/ast/Expression.h"

namespace songsweep::interpreter {

/// An operator between two expressions.
class BinaryExpression : public Expression {
  public:
    BinaryExpression(Position position, ExpressionPointer left, ExpressionPointer right)
        : Expression(position, depthAbove(left, right))
        , m_left(std::move(left))
        , m_right(std::move(right)) {}

    bool dependsOnTarget() const override { return m_left->dependsOnTarget() || m_right->dependsOnTarget(); }

  protected:
    const Expression& left() const { return *m_left; }
    const Expression& right() const { return *m_right; }

  private:
    ExpressionPointer m_left;
    ExpressionPointer m_right;
};

/// `and`, `or`: the right side is evaluated only if the left one does not decide.
class LogicExpression final : public BinaryExpression {
  public:
    enum class Connective { conjunction, disjunction };
    LogicExpression(Position position, Connective connective, ExpressionPointer left, ExpressionPointer right)
        : BinaryExpression(position, std::move(left), std::move(right))
        , m_connective(connective) {}

    void collectTests(std::vector<const CompareExpression*>& tests) const override;

  protected:
    Result<Value> compute(Context& context) const override;

  private:
    Connective m_connective;
};

/// `a = b`, `a contains b` and their like, and their negations.
class CompareExpression final : public BinaryExpression {
  public:
    CompareExpression(Position position, Comparison comparison, bool isNegated, ExpressionPointer left,
                      ExpressionPointer right)
        : BinaryExpression(position, std::move(left), std::move(right))
        , m_comparison(comparison)
        , m_isNegated(isNegated) {}

    void collectTests(std::vector<const CompareExpression*>& tests) const override { tests.push_back(this); }

    /// The comparison as a test of one property of the element that a filter looks at, for an application
    /// that may have an index; nothing where it is none.
    Result<std::optional<PropertyTest>> propertyTest(Context& context, const Terminology& words) const;

  protected:
    Result<Value> compute(Context& context) const override;

  private:
    Comparison m_comparison;
    bool m_isNegated;
};

class ArithmeticExpression final : public BinaryExpression {
  public:
    ArithmeticExpression(Position position, Operation operation, ExpressionPointer left,
                         ExpressionPointer right)
        : BinaryExpression(position, std::move(left), std::move(right))
        , m_operation(operation) {}

  protected:
    Result<Value> compute(Context& context) const override;

  private:
    Operation m_operation;
};

/// `&`: a text where the left side is one, else a list.
class ConcatenateExpression final : public BinaryExpression {
  public:
    using BinaryExpression::BinaryExpression;

  protected:
    Result<Value> compute(Context& context) const override;

  private:
    Result<Value> joinedTexts(Context& context, const std::string& first, const Value& second) const;
    Result<Value> joinedLists(Context& context, const Value& first, const Value& second) const;
};

/// An operator before or after one expression.
class UnaryExpression : public Expression {
  public:
    UnaryExpression(Position position, ExpressionPointer operand)
        : Expression(position, depthAbove(operand))
        , m_operand(std::move(operand)) {}

    bool dependsOnTarget() const override { return m_operand->dependsOnTarget(); }

  protected:
    const Expression& operand() const { return *m_operand; }

  private:
    ExpressionPointer m_operand;
};

class NotExpression final : public UnaryExpression {
  public:
    using UnaryExpression::UnaryExpression;

  protected:
    Result<Value> compute(Context& context) const override;
};

class NegateExpression final : public UnaryExpression {
  public:
    using UnaryExpression::UnaryExpression;

  protected:
    Result<Value> compute(Context& context) const override;
};

/// `x as text`.
class CoerceExpression final : public UnaryExpression {
  public:
    CoerceExpression(Position position, ExpressionPointer operand, Kind kind)
        : UnaryExpression(position, std::move(operand))
        , m_kind(kind) {}

  protected:
    Result<Value> compute(Context& context) const override;

  private:
    Kind m_kind;
};

/// `count of x`, `number of x`: of items, elements or characters.
class CountExpression final : public UnaryExpression {
  public:
    using UnaryExpression::UnaryExpression;

  protected:
    Result<Value> compute(Context& context) const override;
};

/// `exists x`, `x exists`: whether a reference leads to something.
class ExistsExpression final : public UnaryExpression {
  public:
    using UnaryExpression::UnaryExpression;

  protected:
    Result<Value> compute(Context& context) const override;
};

/// `application "iTunes" is running`: those that a text can tell always are.
class RunningExpression final : public UnaryExpression {
  public:
    using UnaryExpression::UnaryExpression;

  protected:
    Result<Value> compute(Context& context) const override;
};

/// `alias "disk:folder:file"`.
class AliasExpression final : public UnaryExpression {
  public:
    using UnaryExpression::UnaryExpression;

  protected:
    Result<Value> compute(Context& context) const override;
};

/// `POSIX file "/folder/file"`.
class PosixFileExpression final : public UnaryExpression {
  public:
    using UnaryExpression::UnaryExpression;

  protected:
    Result<Value> compute(Context& context) const override;
};

} // namespace songsweep::interpreter
