// SPDX-License-Identifier: MIT
#include "scripting/interpreter/Try.h"

#include "scripting/interpreter/Coercion.h"
#include "scripting/interpreter/statements/StatementParser.h"

namespace songsweep::interpreter {
namespace {

/// What follows `on error`.
struct Handler {
    ExpressionPointer message; ///< a variable, or null
    ExpressionPointer number;  ///< a variable, or null
    Block body;
};

Result<void> assign(Context& context, const ExpressionPointer& variable, const Value& value) {
    return variable ? variable->assign(context, value) : Result<void>();
}

Result<Flow> tryBlock(Context& context, const Block& body, const Handler& handler) {
    Result<Flow> flow = executeBlock(context, body);
    if (flow || context.isExhausted()) return flow;
    const Result<void> told = assign(context, handler.message, Value(flow.error().message));
    if (!told) return told.error();
    const Result<void> numbered = assign(context, handler.number, Value(std::int64_t(context.errorNumber())));
    if (!numbered) return numbered.error();
    return executeBlock(context, handler.body);
}

Result<Flow> raise(Context& context, Position place, const Expression* message, const Expression* number) {
    std::string reason = "an error";
    if (message) {
        TRY(const Value& value, message->evaluate(context));
        TRY(reason, textOf(context, place, value));
    }
    if (!number) return context.fail(place, ErrorNumber::general, std::move(reason));
    TRY(const Value& value, number->evaluate(context));
    TRY(const std::int64_t integer, integerOf(context, place, value));
    return context.fail(place, static_cast<int>(integer), std::move(reason));
}

Handler errorHandler(StatementParser& parser) {
    TokenCursor& cursor = parser.cursor();
    Handler handler;
    if (!cursor.at(Keyword::on) || !cursor.at(Keyword::error, 1)) return handler;
    cursor.skip(2);
    if (!cursor.atLineEnd() && !cursor.at(Keyword::number)) handler.message = parser.variable();
    if (cursor.take(Keyword::number)) handler.number = parser.variable();
    cursor.expectLineEnd();
    handler.body = parser.block();
    return handler;
}

} // namespace

/// `try … on error message number n … end try`.
StatementPointer tryStatement(StatementParser& parser, Position place) {
    parser.cursor().expectLineEnd();
    Block body = parser.block();
    Handler handler = errorHandler(parser);
    parser.expectEnd(Keyword::try_, "try");
    parser.cursor().take(Keyword::error);
    return makeStatement(place, [body = std::move(body), handler = std::move(handler)](Context& context) {
        return tryBlock(context, body, handler);
    });
}

/// `error "message" number n`.
StatementPointer errorStatement(StatementParser& parser, Position place) {
    TokenCursor& cursor = parser.cursor();
    const bool hasMessage = !cursor.atLineEnd() && !cursor.at(Keyword::number) && !cursor.at(Keyword::else_);
    ExpressionPointer message = hasMessage ? parser.expression() : nullptr;
    ExpressionPointer number = cursor.take(Keyword::number) ? parser.expression() : nullptr;
    return makeStatement(place,
                         [place, message = std::move(message), number = std::move(number)](Context& context) {
                             return raise(context, place, message.get(), number.get());
                         });
}

} // namespace songsweep::interpreter
