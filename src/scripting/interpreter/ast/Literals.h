// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/interpreter/ast/Expression.h"

#include <cstddef>
#include <string>

namespace songsweep::interpreter {

/// A value that stands in the text: `5`, `true`, `missing value`, `date "…"`.
class LiteralExpression final : public Expression {
  public:
    LiteralExpression(Position position, Value value)
        : Expression(position, 1)
        , m_value(std::move(value)) {}

    bool dependsOnTarget() const override { return false; }

  protected:
    Result<Value> compute(Context& context) const override;

  private:
    Value m_value;
};

/// `"text"`, by its number among those of the program: what it holds is the run's, so that one tree serves
/// all programs that differ in such texts alone.
class TextExpression final : public Expression {
  public:
    TextExpression(Position position, std::size_t number)
        : Expression(position, 1)
        , m_number(number) {}

    bool dependsOnTarget() const override { return false; }

  protected:
    Result<Value> compute(Context& context) const override;

  private:
    std::size_t m_number;
};

/// `{a, b}`, and `[a, b]`. As the goal of `set`, its variables get the items of a list.
class ListExpression final : public Expression {
  public:
    ListExpression(Position position, std::vector<ExpressionPointer> items)
        : Expression(position, depthAboveAll(items))
        , m_items(std::move(items)) {}

    bool isAssignable() const override;
    Result<void> assign(Context& context, const Value& value) const override;
    bool dependsOnTarget() const override;

  protected:
    Result<Value> compute(Context& context) const override;

  private:
    std::vector<ExpressionPointer> m_items;
};

/// A variable, by the number that the parser gave to its name.
class VariableExpression final : public Expression {
  public:
    VariableExpression(Position position, std::size_t slot, std::string name)
        : Expression(position, 1)
        , m_slot(slot)
        , m_name(std::move(name)) {}

    bool isAssignable() const override { return true; }
    Result<void> assign(Context& context, const Value& value) const override;
    bool dependsOnTarget() const override { return false; }

  protected:
    Result<Value> compute(Context& context) const override;

  private:
    std::size_t m_slot;
    std::string m_name;
};

/// `current date`: the time at which it is evaluated.
class CurrentDateExpression final : public Expression {
  public:
    explicit CurrentDateExpression(Position position)
        : Expression(position, 1) {}
    bool dependsOnTarget() const override { return false; }

  protected:
    Result<Value> compute(Context& context) const override;
};

/// `result`: the value of the statement before.
class ResultExpression final : public Expression {
  public:
    explicit ResultExpression(Position position)
        : Expression(position, 1) {}
    bool dependsOnTarget() const override { return false; }

  protected:
    Result<Value> compute(Context& context) const override;
};

} // namespace songsweep::interpreter
