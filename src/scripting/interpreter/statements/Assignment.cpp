// SPDX-License-Identifier: MIT
#include "scripting/interpreter/Limits.h"
#include "scripting/interpreter/Try.h"
#include "scripting/interpreter/statements/StatementParser.h"

namespace songsweep::interpreter {
namespace {

/// A value with lists of its own, all the way down.
Result<Value> deepCopy(Context& context, Position position, const Value& value, int depth) {
    const auto* const items = listItems(value);
    if (!items) return value;
    if (depth > maximumListNesting)
        return context.fail(position, ErrorNumber::general, "the list lies too deep");
    std::vector<Value> copies;
    for (const Value& item : *items) {
        if (!context.spend()) return context.exhausted(position);
        TRY(Value && copy, deepCopy(context, position, item, depth + 1));
        copies.push_back(std::move(copy));
    }
    return context.makeList(position, std::move(copies));
}

Result<Flow> assign(Context& context, const Expression& target, Value&& value) {
    if (Result<void> assigned = target.assign(context, value); !assigned) return assigned.error();
    context.result() = std::move(value);
    return Flow::onward;
}

} // namespace

/// `set a to b`.
StatementPointer setStatement(StatementParser& parser, Position place) {
    ExpressionPointer target = parser.assignable();
    parser.cursor().expect(Keyword::to, "“to”");
    ExpressionPointer value = parser.expression();
    return makeStatement(
        place, [target = std::move(target), value = std::move(value)](Context& context) -> Result<Flow> {
            TRY(Value && evaluated, value->evaluate(context));
            return assign(context, *target, std::move(evaluated));
        });
}

/// `copy b to a`: lists are copied as a whole.
StatementPointer copyStatement(StatementParser& parser, Position place) {
    ExpressionPointer value = parser.expression();
    parser.cursor().expect(Keyword::to, "“to”");
    ExpressionPointer target = parser.assignable();
    return makeStatement(
        place,
        [place, target = std::move(target), value = std::move(value)](Context& context) -> Result<Flow> {
            TRY(const Value& evaluated, value->evaluate(context));
            TRY(Value && copy, deepCopy(context, place, evaluated, 0));
            return assign(context, *target, std::move(copy));
        });
}

} // namespace songsweep::interpreter
