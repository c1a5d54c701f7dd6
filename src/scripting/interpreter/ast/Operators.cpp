// SPDX-License-Identifier: MIT
#include "scripting/interpreter/ast/Operators.h"

#include "scripting/interpreter/Comparing.h"
#include "scripting/interpreter/Limits.h"
#include "scripting/interpreter/TextFolding.h"
#include "scripting/interpreter/Try.h"

namespace songsweep::interpreter {
namespace {

bool isMissing(const Value& value) { return std::holds_alternative<MissingValue>(value); }

/// A truth value; in a filter the missing value too, which says neither yes nor no.
Result<Value> verdictOf(Context& context, const Expression& expression) {
    TRY(const Value& value, expression.evaluate(context));
    if (context.isFiltering() && isMissing(value)) return value;
    TRY(const bool truth, truthOf(context, expression.position(), value));
    return Value(truth);
}

} // namespace

Result<Value> LogicExpression::compute(Context& context) const {
    const Value deciding(m_connective == Connective::disjunction);
    Result<Value> first = verdictOf(context, left());
    if (!first || first.value() == deciding) return first;
    Result<Value> second = verdictOf(context, right());
    if (!second || second.value() == deciding) return second;
    return isMissing(first.value()) ? first : second;
}

void LogicExpression::collectTests(std::vector<const CompareExpression*>& tests) const {
    if (m_connective != Connective::conjunction) return;
    left().collectTests(tests);
    right().collectTests(tests);
}

Result<Value> CompareExpression::compute(Context& context) const {
    TRY(const Value& first, left().evaluate(context));
    TRY(const Value& second, right().evaluate(context));
    // Only `is missing value` can be said of what an element does not have; other tests stay undecided.
    const bool isUndecided = context.isFiltering() && isMissing(first) && !isMissing(second);
    if (isUndecided) return Value(MissingValue());
    TRY(const bool holds, compared(context, position(), m_comparison, first, second));
    return Value(holds != m_isNegated);
}

Result<std::optional<PropertyTest>> CompareExpression::propertyTest(Context& context,
                                                                    const Terminology& words) const {
    if (m_isNegated || right().dependsOnTarget()) return std::optional<PropertyTest>();
    const std::optional<TermCode> property = left().ownProperty(words);
    if (!property) return std::optional<PropertyTest>();
    TRY(Value && operand, right().evaluate(context));
    return std::optional(PropertyTest{*property, m_comparison, std::move(operand)});
}

Result<Value> ArithmeticExpression::compute(Context& context) const {
    TRY(const Value& first, left().evaluate(context));
    TRY(const Value& second, right().evaluate(context));
    return evaluated(context, position(), m_operation, first, second);
}

Result<Value> ConcatenateExpression::compute(Context& context) const {
    TRY(const Value& first, left().evaluate(context));
    TRY(const Value& second, right().evaluate(context));
    if (const auto* const text = std::get_if<std::string>(&first)) {
        return joinedTexts(context, *text, second);
    }
    return joinedLists(context, first, second);
}

Result<Value> ConcatenateExpression::joinedTexts(Context& context, const std::string& first,
                                                 const Value& second) const {
    TRY(const std::string& text, textOf(context, position(), second));
    if (!context.spend(first.size() / textBytesOfOneStep)) return context.exhausted(position());
    if (first.size() + text.size() > maximumTextBytes) {
        return context.fail(position(), ErrorNumber::general, "the text is too long");
    }
    return Value(first + text);
}

Result<Value> ConcatenateExpression::joinedLists(Context& context, const Value& first,
                                                 const Value& second) const {
    std::vector<Value> items;
    for (const Value* const part : {&first, &second}) {
        if (const auto* const several = listItems(*part)) {
            items.insert(items.end(), several->begin(), several->end());
        } else {
            items.push_back(*part);
        }
    }
    return context.makeList(position(), std::move(items));
}

Result<Value> NotExpression::compute(Context& context) const {
    Result<Value> verdict = verdictOf(context, operand());
    if (!verdict || isMissing(verdict.value())) return verdict;
    return Value(!std::get<bool>(verdict.value()));
}

Result<Value> NegateExpression::compute(Context& context) const {
    TRY(const Value& value, operand().evaluate(context));
    return negated(context, position(), value);
}

Result<Value> CoerceExpression::compute(Context& context) const {
    TRY(const Value& value, operand().evaluate(context));
    return coerced(context, position(), value, m_kind);
}

Result<Value> CountExpression::compute(Context& context) const {
    TRY(const Referent& referent, operand().resolve(context));
    if (referent.isGathered) {
        return context.fail(position(), ErrorNumber::notUnderstood,
                            "cannot count the elements of several objects");
    }
    if (const auto* const set = std::get_if<ElementSet>(&referent.what)) {
        TRY(const std::int64_t count, countOf(context, position(), *set));
        return Value(count);
    }
    const Value& value = std::get<Value>(referent.what);
    if (const auto* const items = listItems(value)) return Value(static_cast<std::int64_t>(items->size()));
    if (const auto* const text = std::get_if<std::string>(&value)) {
        return Value(static_cast<std::int64_t>(characterCount(*text)));
    }
    return context.fail(position(), ErrorNumber::notUnderstood,
                        "cannot count the items of " + kindName(value));
}

Result<Value> ExistsExpression::compute(Context& context) const {
    const Result<Referent> referent = operand().resolve(context);
    if (!referent) {
        const bool isAbsent = referent.error().code == Error::Code::notFound && !context.isExhausted();
        return isAbsent ? Result<Value>(Value(false)) : referent.error();
    }
    const auto* const set = std::get_if<ElementSet>(&referent.value().what);
    if (!set) return Value(!isMissing(std::get<Value>(referent.value().what)));
    TRY(const std::int64_t count, countOf(context, position(), *set));
    return Value(count > 0);
}

Result<Value> RunningExpression::compute(Context& context) const {
    TRY(const Value& value, operand().evaluate(context));
    const auto* const object = std::get_if<ObjectPointer>(&value);
    const Applications::Entry* const owner =
        object ? context.services().applications.owning(**object) : nullptr;
    if (owner && owner->application == *object) return Value(true);
    return context.fail(position(), ErrorNumber::notUnderstood, kindName(value) + " is no application");
}

Result<Value> AliasExpression::compute(Context& context) const {
    TRY(const Value& value, operand().evaluate(context));
    return coerced(context, position(), value, Kind::alias);
}

Result<Value> PosixFileExpression::compute(Context& context) const {
    TRY(const Value& value, operand().evaluate(context));
    TRY(std::string && path, textOf(context, position(), value));
    return Value(Alias{std::move(path)});
}

} // namespace songsweep::interpreter
