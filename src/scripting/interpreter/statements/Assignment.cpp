// SPDX-License-Identifier: MIT
#include "scripting/interpreter/Limits.h"
#include "scripting/interpreter/Try.h"
#include "scripting/interpreter/statements/StatementParser.h"
#include "scripting/interpreter/statements/StatementRules.h"

namespace songsweep::interpreter {
namespace {

/// `set a to b`.
struct SetStatement final : Statement {
    using Statement::Statement;
    Result<Flow> run(Context& context) const override;

    ExpressionPointer target;
    ExpressionPointer value;
};

/// `copy b to a`: lists are copied as a whole.
struct CopyStatement final : Statement {
    using Statement::Statement;
    Result<Flow> run(Context& context) const override;

    ExpressionPointer value;
    ExpressionPointer target;
};

/// A value with lists of its own, all the way down.
Result<Value> deepCopy(Context& context, Position position, const Value& value, int depth) {
    const auto* const items = listItems(value);
    if (!items) return value;
    if (depth > maximumListNesting)
        return context.fail(position, ErrorNumber::general, "the list lies too deep");
    std::vector<Value> copies;
    for (const Value& item : *items) {
        if (!context.spend()) return context.exhausted(position);
        TRY(Value copy, deepCopy(context, position, item, depth + 1));
        copies.push_back(std::move(copy));
    }
    return context.makeList(position, std::move(copies));
}

Result<Flow> assign(Context& context, const Expression& target, Value value) {
    if (Result<void> assigned = target.assign(context, value); !assigned) return assigned.error();
    context.result() = std::move(value);
    return Flow::onward;
}

Result<Flow> SetStatement::run(Context& context) const {
    TRY(Value evaluated, value->evaluate(context));
    return assign(context, *target, std::move(evaluated));
}

Result<Flow> CopyStatement::run(Context& context) const {
    TRY(const Value& evaluated, value->evaluate(context));
    TRY(Value copy, deepCopy(context, position(), evaluated, 0));
    return assign(context, *target, std::move(copy));
}

} // namespace

StatementPointer setStatement(StatementParser& parser, Position place) {
    auto statement = std::make_unique<SetStatement>(place);
    statement->target = parser.assignable();
    parser.cursor().expect(Keyword::to, "“to”");
    statement->value = parser.expression();
    return statement;
}

StatementPointer copyStatement(StatementParser& parser, Position place) {
    auto statement = std::make_unique<CopyStatement>(place);
    statement->value = parser.expression();
    parser.cursor().expect(Keyword::to, "“to”");
    statement->target = parser.assignable();
    return statement;
}

} // namespace songsweep::interpreter
