// SPDX-License-Identifier: MIT
#include "scripting/interpreter/Coercion.h"
#include "scripting/interpreter/Try.h"
#include "scripting/interpreter/statements/StatementParser.h"
#include "scripting/interpreter/statements/StatementRules.h"

namespace songsweep::interpreter {
namespace {

/// What all kinds of repeat have in common: a body, which `exit repeat` leaves. By itself it repeats without
/// end.
struct RepeatStatement : Statement {
    using Statement::Statement;
    Result<Flow> run(Context& context) const override;
    /// Runs the body once. False when the repeat is over; then `flow` says how the statement leaves.
    Result<bool> runOnce(Context& context, Flow& flow) const;

    Block body;
};

/// `repeat n times`.
struct RepeatTimesStatement final : RepeatStatement {
    using RepeatStatement::RepeatStatement;
    Result<Flow> run(Context& context) const override;

    ExpressionPointer times;
};

/// `repeat while x`, `repeat until x`.
struct RepeatConditionStatement final : RepeatStatement {
    using RepeatStatement::RepeatStatement;
    Result<Flow> run(Context& context) const override;

    bool isWhile = true;
    ExpressionPointer condition;
};

/// `repeat with i from a to b by c`. The bounds are evaluated once.
struct RepeatRangeStatement final : RepeatStatement {
    using RepeatStatement::RepeatStatement;
    Result<Flow> run(Context& context) const override;

    ExpressionPointer variable;
    ExpressionPointer first;
    ExpressionPointer last;
    ExpressionPointer step; ///< null for 1
};

/// `repeat with x in list`. Goes through the items that the list has at the start.
struct RepeatListStatement final : RepeatStatement {
    using RepeatStatement::RepeatStatement;
    Result<Flow> run(Context& context) const override;

    ExpressionPointer variable;
    ExpressionPointer list;
};

Result<std::int64_t> integerValue(Context& context, const Expression& expression) {
    TRY(const Value& value, expression.evaluate(context));
    return integerOf(context, expression.position(), value);
}

Result<bool> RepeatStatement::runOnce(Context& context, Flow& flow) const {
    if (!context.spend()) return context.exhausted(position());
    TRY(const Flow left, executeBlock(context, body));
    flow = left == Flow::returned ? Flow::returned : Flow::onward;
    return left == Flow::onward;
}

Result<Flow> RepeatStatement::run(Context& context) const {
    Flow flow = Flow::onward;
    while (true) {
        TRY(const bool goesOn, runOnce(context, flow));
        if (!goesOn) return flow;
    }
}

Result<Flow> RepeatTimesStatement::run(Context& context) const {
    TRY(const std::int64_t count, integerValue(context, *times));
    Flow flow = Flow::onward;
    for (std::int64_t done = 0; done < count; ++done) {
        TRY(const bool goesOn, runOnce(context, flow));
        if (!goesOn) break;
    }
    return flow;
}

Result<Flow> RepeatConditionStatement::run(Context& context) const {
    Flow flow = Flow::onward;
    while (true) {
        TRY(const Value& value, condition->evaluate(context));
        TRY(const bool isTrue, truthOf(context, condition->position(), value));
        if (isTrue != isWhile) return flow;
        TRY(const bool goesOn, runOnce(context, flow));
        if (!goesOn) return flow;
    }
}

Result<Flow> RepeatRangeStatement::run(Context& context) const {
    TRY(const std::int64_t begin, integerValue(context, *first));
    TRY(const std::int64_t end, integerValue(context, *last));
    TRY(const std::int64_t by, step ? integerValue(context, *step) : 1);
    if (by == 0) return context.fail(position(), ErrorNumber::general, "a repeat by 0 has no end");
    Flow flow = Flow::onward;
    for (std::int64_t i = begin; by > 0 ? i <= end : i >= end;) {
        if (Result<void> assigned = variable->assign(context, Value(i)); !assigned) return assigned.error();
        TRY(const bool goesOn, runOnce(context, flow));
        if (!goesOn || __builtin_add_overflow(i, by, &i)) break;
    }
    return flow;
}

Result<Flow> RepeatListStatement::run(Context& context) const {
    TRY(const Value& evaluated, list->evaluate(context));
    const auto* const items = listItems(evaluated);
    if (!items) {
        return context.fail(list->position(), ErrorNumber::cannotCoerce,
                            "cannot go through the items of " + kindName(evaluated));
    }
    const std::size_t count = items->size();
    Flow flow = Flow::onward;
    for (std::size_t i = 0; i < count && i < items->size(); ++i) {
        if (Result<void> assigned = variable->assign(context, (*items)[i]); !assigned)
            return assigned.error();
        TRY(const bool goesOn, runOnce(context, flow));
        if (!goesOn) break;
    }
    return flow;
}

StatementPointer repeatRange(StatementParser& parser, Position place, ExpressionPointer variable) {
    auto statement = std::make_unique<RepeatRangeStatement>(place);
    statement->variable = std::move(variable);
    statement->first = parser.expression();
    parser.cursor().expect(Keyword::to, "“to”");
    statement->last = parser.expression();
    if (parser.cursor().take(Keyword::by)) statement->step = parser.expression();
    statement->body = parser.repeatBody();
    return statement;
}

/// `repeat with x in list`, `repeat with i from a to b`.
StatementPointer repeatWith(StatementParser& parser, Position place) {
    ExpressionPointer variable = parser.variable();
    if (parser.cursor().take(Keyword::from)) return repeatRange(parser, place, std::move(variable));
    auto statement = std::make_unique<RepeatListStatement>(place);
    statement->variable = std::move(variable);
    parser.cursor().expect(Keyword::in, "“from” or “in”");
    statement->list = parser.expression();
    statement->body = parser.repeatBody();
    return statement;
}

StatementPointer repeatCondition(StatementParser& parser, Position place, bool isWhile) {
    auto statement = std::make_unique<RepeatConditionStatement>(place);
    statement->isWhile = isWhile;
    statement->condition = parser.expression();
    statement->body = parser.repeatBody();
    return statement;
}

StatementPointer repeatTimes(StatementParser& parser, Position place) {
    auto statement = std::make_unique<RepeatTimesStatement>(place);
    statement->times = parser.expression();
    parser.cursor().expect(Keyword::times, "“times”");
    statement->body = parser.repeatBody();
    return statement;
}

/// `exit repeat`.
struct ExitRepeatStatement final : Statement {
    using Statement::Statement;
    Result<Flow> run(Context&) const override { return Flow::exitRepeat; }
};

} // namespace

StatementPointer repeatStatement(StatementParser& parser, Position place) {
    TokenCursor& cursor = parser.cursor();
    if (cursor.take(Keyword::with)) return repeatWith(parser, place);
    if (cursor.take(Keyword::while_)) return repeatCondition(parser, place, true);
    if (cursor.take(Keyword::until)) return repeatCondition(parser, place, false);
    if (!cursor.atLineEnd()) return repeatTimes(parser, place);
    auto statement = std::make_unique<RepeatStatement>(place);
    statement->body = parser.repeatBody();
    return statement;
}

StatementPointer exitStatement(StatementParser& parser, Position place) {
    parser.cursor().take(Keyword::repeat);
    if (!parser.isInRepeat()) parser.cursor().fail(place, "“exit repeat” stands outside of a repeat");
    return std::make_unique<ExitRepeatStatement>(place);
}

} // namespace songsweep::interpreter
