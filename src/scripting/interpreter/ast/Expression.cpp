// SPDX-License-Identifier: MIT
#include "scripting/interpreter/ast/Expression.h"

#include "scripting/interpreter/Try.h"

#include <algorithm>

namespace songsweep::interpreter {

Result<Value> Expression::evaluate(Context& context) const {
    if (!context.spend()) return context.exhausted(m_position);
    return compute(context);
}

Result<Referent> Expression::resolve(Context& context) const {
    if (!context.spend()) return context.exhausted(m_position);
    return computeReferent(context);
}

Result<void> Expression::assign(Context& context, const Value&) const {
    return context.fail(m_position, ErrorNumber::general, "this cannot be set");
}

Result<Referent> Expression::computeReferent(Context& context) const {
    TRY(Value && value, compute(context));
    return Referent{std::move(value)};
}

int depthAboveAll(const std::vector<ExpressionPointer>& children) {
    int depth = 0;
    for (const ExpressionPointer& child : children)
        depth = std::max(depth, child->treeDepth());
    return depth + 1;
}

} // namespace songsweep::interpreter
