// SPDX-License-Identifier: MIT
#include "scripting/interpreter/ast/Literals.h"

#include "scripting/interpreter/Limits.h"
#include "scripting/interpreter/Try.h"

#include <algorithm>

namespace songsweep::interpreter {
namespace {

/// The steps that copying a value takes: texts are copied, all else is shared.
std::size_t copyCost(const std::string& text) { return text.size() / textBytesOfOneStep; }

std::size_t copyCost(const Value& value) {
    const auto* const text = std::get_if<std::string>(&value);
    return text ? copyCost(*text) : 0;
}

} // namespace

Result<Value> LiteralExpression::compute(Context& context) const {
    if (!context.spend(copyCost(m_value))) return context.exhausted(position());
    return m_value;
}

Result<Value> TextExpression::compute(Context& context) const {
    const std::string& text = context.text(m_number);
    if (!context.spend(copyCost(text))) return context.exhausted(position());
    return Value(text);
}

Result<Value> ListExpression::compute(Context& context) const {
    std::vector<Value> items;
    items.reserve(m_items.size());
    for (const ExpressionPointer& item : m_items) {
        TRY(Value && value, item->evaluate(context));
        items.push_back(std::move(value));
    }
    return context.makeList(position(), std::move(items));
}

bool ListExpression::isAssignable() const {
    return !m_items.empty() &&
           std::ranges::all_of(m_items, [](const ExpressionPointer& item) { return item->isAssignable(); });
}

bool ListExpression::dependsOnTarget() const {
    return std::ranges::any_of(m_items,
                               [](const ExpressionPointer& item) { return item->dependsOnTarget(); });
}

Result<void> ListExpression::assign(Context& context, const Value& value) const {
    const auto* const values = listItems(value);
    if (!values || values->size() < m_items.size()) {
        return context.fail(position(), ErrorNumber::noSuchObject,
                            "there are too few values to set these to");
    }
    // A copy, since setting may change the list itself.
    const std::vector<Value> items = *values;
    for (std::size_t i = 0; i < m_items.size(); ++i) {
        if (Result<void> assigned = m_items[i]->assign(context, items[i]); !assigned) return assigned;
    }
    return {};
}

Result<Value> VariableExpression::compute(Context& context) const {
    const std::optional<Value>& value = context.variable(m_slot);
    if (!value) {
        return context.fail(position(), ErrorNumber::undefinedVariable,
                            "“" + m_name + "” is not known: no variable has that name, nor any word here");
    }
    if (!context.spend(copyCost(*value))) return context.exhausted(position());
    return *value;
}

Result<void> VariableExpression::assign(Context& context, const Value& value) const {
    context.variable(m_slot) = value;
    return {};
}

Result<Value> CurrentDateExpression::compute(Context& context) const {
    return Value(context.services().now());
}

Result<Value> ResultExpression::compute(Context& context) const {
    const std::optional<Value>& value = context.result();
    if (!value) return context.fail(position(), ErrorNumber::undefinedVariable, "there is no result");
    if (!context.spend(copyCost(*value))) return context.exhausted(position());
    return *value;
}

} // namespace songsweep::interpreter
