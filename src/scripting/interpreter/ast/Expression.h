// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"
#include "scripting/interpreter/Context.h"
#include "scripting/interpreter/Position.h"
#include "scripting/interpreter/ast/ElementSet.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <variant>
#include <vector>

namespace songsweep::interpreter {

class CompareExpression;

/// What a reference leads to before it is a value: a value, or elements that nobody has looked at yet. So
/// `count of tracks of playlist 1` asks for a number and not for the tracks.
struct Referent {
    std::variant<Value, ElementSet> what;
    /// The value is a list with one item for each of several containers: `tracks of every playlist`.
    bool isGathered = false;
};

/// A part of a text that has a value. Immutable; evaluates itself against a context.
class Expression {
  public:
    Expression(Position position, int treeDepth)
        : m_position(position)
        , m_treeDepth(treeDepth) {}
    Expression(const Expression&) = delete;
    Expression& operator=(const Expression&) = delete;
    virtual ~Expression() = default;

    Position position() const { return m_position; }
    int treeDepth() const { return m_treeDepth; }

    /// The value. Takes a step.
    Result<Value> evaluate(Context& context) const;

    /// What a reference leads to; of any other expression its value. Takes a step.
    Result<Referent> resolve(Context& context) const;

    virtual bool isAssignable() const { return false; }
    /// `set … to value`. Only for what is assignable.
    virtual Result<void> assign(Context& context, const Value& value) const;

    /// Whether the value may be another one while another object is being told. Unless overridden, it may.
    virtual bool dependsOnTarget() const { return true; }

    /// Adds the comparisons that all have to hold for the expression to be true.
    virtual void collectTests(std::vector<const CompareExpression*>&) const {}

    /// The property of the object being told that the expression is, as those words number it; else nothing.
    virtual std::optional<TermCode> ownProperty(const Terminology&) const { return {}; }

    /// The application that the expression names; null for any other expression.
    virtual const Applications::Entry* namedApplication() const { return nullptr; }

  protected:
    virtual Result<Value> compute(Context& context) const = 0;
    virtual Result<Referent> computeReferent(Context& context) const;

  private:
    Position m_position;
    int m_treeDepth;
};

using ExpressionPointer = std::unique_ptr<const Expression>;

/// The depth of a tree node above these; a missing one counts nothing.
template <class... Children>
int depthAbove(const Children&... children) {
    int depth = 0;
    ((depth = children ? std::max(depth, children->treeDepth()) : depth), ...);
    return depth + 1;
}
int depthAboveAll(const std::vector<ExpressionPointer>& children);

} // namespace songsweep::interpreter
