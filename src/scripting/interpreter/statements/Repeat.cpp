// SPDX-License-Identifier: MIT
#include "scripting/interpreter/Coercion.h"
#include "scripting/interpreter/Try.h"
#include "scripting/interpreter/statements/StatementParser.h"

namespace songsweep::interpreter {
namespace {

/// What all kinds of repeat have in common: a body, which `exit repeat` leaves.
struct Loop {
    Position position;
    Block body;

    /// Runs the body once. False when the repeat is over; then `flow` says how the statement leaves.
    Result<bool> runOnce(Context& context, Flow& flow) const {
        if (!context.spend()) return context.exhausted(position);
        TRY(const Flow left, executeBlock(context, body));
        flow = left == Flow::returned ? Flow::returned : Flow::onward;
        return left == Flow::onward;
    }
};

struct Range {
    ExpressionPointer first;
    ExpressionPointer last;
    ExpressionPointer step; ///< null for 1
};

Result<std::int64_t> integerValue(Context& context, const Expression& expression) {
    TRY(const Value& value, expression.evaluate(context));
    return integerOf(context, expression.position(), value);
}

Result<Flow> repeatForever(Context& context, const Loop& loop) {
    Flow flow = Flow::onward;
    while (true) {
        TRY(const bool goesOn, loop.runOnce(context, flow));
        if (!goesOn) return flow;
    }
}

Result<Flow> repeatTimes(Context& context, const Expression& times, const Loop& loop) {
    TRY(const std::int64_t count, integerValue(context, times));
    Flow flow = Flow::onward;
    for (std::int64_t done = 0; done < count; ++done) {
        TRY(const bool goesOn, loop.runOnce(context, flow));
        if (!goesOn) break;
    }
    return flow;
}

/// As long as the condition is what it is to be: true for `while`.
Result<Flow> repeatOn(Context& context, bool isWhile, const Expression& condition, const Loop& loop) {
    Flow flow = Flow::onward;
    while (true) {
        TRY(const Value& value, condition.evaluate(context));
        TRY(const bool isTrue, truthOf(context, condition.position(), value));
        if (isTrue != isWhile) return flow;
        TRY(const bool goesOn, loop.runOnce(context, flow));
        if (!goesOn) return flow;
    }
}

/// The bounds are evaluated once.
Result<Flow> repeatRange(Context& context, const Expression& variable, const Range& range, const Loop& loop) {
    TRY(const std::int64_t first, integerValue(context, *range.first));
    TRY(const std::int64_t last, integerValue(context, *range.last));
    TRY(const std::int64_t step, range.step ? integerValue(context, *range.step) : 1);
    if (step == 0) return context.fail(loop.position, ErrorNumber::general, "a repeat by 0 has no end");
    Flow flow = Flow::onward;
    for (std::int64_t i = first; step > 0 ? i <= last : i >= last;) {
        if (Result<void> assigned = variable.assign(context, Value(i)); !assigned) return assigned.error();
        TRY(const bool goesOn, loop.runOnce(context, flow));
        if (!goesOn || __builtin_add_overflow(i, step, &i)) break;
    }
    return flow;
}

/// Goes through the items that the list has at the start.
Result<Flow> repeatItems(Context& context, const Expression& variable, const Expression& list,
                         const Loop& loop) {
    TRY(const Value& value, list.evaluate(context));
    const auto* const items = listItems(value);
    if (!items) {
        return context.fail(list.position(), ErrorNumber::cannotCoerce,
                            "cannot go through the items of " + kindName(value));
    }
    TRY(const Value& copy, context.makeList(loop.position, *items));
    Flow flow = Flow::onward;
    for (const Value& item : *listItems(copy)) {
        if (Result<void> assigned = variable.assign(context, item); !assigned) return assigned.error();
        TRY(const bool goesOn, loop.runOnce(context, flow));
        if (!goesOn) break;
    }
    return flow;
}

/// `repeat with i from a to b by c`, from `from` on.
StatementPointer rangeStatement(StatementParser& parser, Position place, ExpressionPointer variable) {
    Range range;
    range.first = parser.expression();
    parser.cursor().expect(Keyword::to, "“to”");
    range.last = parser.expression();
    if (parser.cursor().take(Keyword::by)) range.step = parser.expression();
    return makeStatement(place, [variable = std::move(variable), range = std::move(range),
                                 loop = Loop{place, parser.repeatBody()}](Context& context) {
        return repeatRange(context, *variable, range, loop);
    });
}

/// `repeat with x in list`, `repeat with i from a to b`.
StatementPointer repeatWith(StatementParser& parser, Position place) {
    ExpressionPointer variable = parser.variable();
    if (parser.cursor().take(Keyword::from)) return rangeStatement(parser, place, std::move(variable));
    parser.cursor().expect(Keyword::in, "“from” or “in”");
    ExpressionPointer list = parser.expression();
    return makeStatement(place, [variable = std::move(variable), list = std::move(list),
                                 loop = Loop{place, parser.repeatBody()}](Context& context) {
        return repeatItems(context, *variable, *list, loop);
    });
}

StatementPointer conditionStatement(StatementParser& parser, Position place, bool isWhile) {
    ExpressionPointer condition = parser.expression();
    return makeStatement(place,
                         [isWhile, condition = std::move(condition), loop = Loop{place, parser.repeatBody()}](
                             Context& context) { return repeatOn(context, isWhile, *condition, loop); });
}

StatementPointer timesStatement(StatementParser& parser, Position place) {
    ExpressionPointer times = parser.expression();
    parser.cursor().expect(Keyword::times, "“times”");
    return makeStatement(place, [times = std::move(times), loop = Loop{place, parser.repeatBody()}](
                                    Context& context) { return repeatTimes(context, *times, loop); });
}

} // namespace

StatementPointer repeatStatement(StatementParser& parser, Position place) {
    TokenCursor& cursor = parser.cursor();
    if (cursor.take(Keyword::with)) return repeatWith(parser, place);
    if (cursor.take(Keyword::while_)) return conditionStatement(parser, place, true);
    if (cursor.take(Keyword::until)) return conditionStatement(parser, place, false);
    if (!cursor.atLineEnd()) return timesStatement(parser, place);
    return makeStatement(place, [loop = Loop{place, parser.repeatBody()}](Context& context) {
        return repeatForever(context, loop);
    });
}

/// `exit repeat`.
StatementPointer exitStatement(StatementParser& parser, Position place) {
    parser.cursor().take(Keyword::repeat);
    if (!parser.isInRepeat()) parser.cursor().fail(place, "“exit repeat” stands outside of a repeat");
    return makeStatement(place, [](Context&) -> Result<Flow> { return Flow::exitRepeat; });
}

} // namespace songsweep::interpreter
