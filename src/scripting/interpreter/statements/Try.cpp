// SPDX-License-Identifier: MIT
#include "scripting/interpreter/Try.h"

#include "scripting/interpreter/Coercion.h"
#include "scripting/interpreter/statements/StatementParser.h"
#include "scripting/interpreter/statements/StatementRules.h"

namespace songsweep::interpreter {
namespace {

/// `try … on error message number n … end try`.
struct TryStatement final : Statement {
    using Statement::Statement;
    Result<Flow> run(Context& context) const override;

    Block body;
    ExpressionPointer message; ///< a variable, or null
    ExpressionPointer number;  ///< a variable, or null
    Block handler;
};

/// `error "message" number n`.
struct ErrorStatement final : Statement {
    using Statement::Statement;
    Result<Flow> run(Context& context) const override;

    ExpressionPointer message; ///< or null
    ExpressionPointer number;  ///< or null
};

Result<void> assign(Context& context, const ExpressionPointer& variable, const Value& value) {
    return variable ? variable->assign(context, value) : Result<void>();
}

Result<Flow> TryStatement::run(Context& context) const {
    const Result<Flow> flow = executeBlock(context, body);
    if (flow || context.isExhausted()) return flow;
    const std::int64_t errorNumber = context.errorNumber();
    const Result<void> told = assign(context, message, Value(flow.error().message));
    if (!told) return told.error();
    const Result<void> numbered = assign(context, number, Value(errorNumber));
    if (!numbered) return numbered.error();
    return executeBlock(context, handler);
}

Result<Flow> ErrorStatement::run(Context& context) const {
    std::string reason = "an error";
    if (message) {
        TRY(const Value& value, message->evaluate(context));
        TRY(reason, textOf(context, position(), value));
    }
    if (!number) return context.fail(position(), ErrorNumber::general, std::move(reason));
    TRY(const Value& value, number->evaluate(context));
    TRY(const std::int64_t integer, integerOf(context, position(), value));
    return context.fail(position(), static_cast<int>(integer), std::move(reason));
}

/// What follows `on error`: the variables for message and number, and the body.
void errorHandler(StatementParser& parser, TryStatement& statement) {
    TokenCursor& cursor = parser.cursor();
    if (!cursor.atLineEnd() && !cursor.at(Keyword::number)) statement.message = parser.variable();
    if (cursor.take(Keyword::number)) statement.number = parser.variable();
    cursor.expectLineEnd();
    statement.handler = parser.block();
}

} // namespace

StatementPointer tryStatement(StatementParser& parser, Position place) {
    TokenCursor& cursor = parser.cursor();
    auto statement = std::make_unique<TryStatement>(place);
    cursor.expectLineEnd();
    statement->body = parser.block();
    if (cursor.at(Keyword::on) && cursor.at(Keyword::error, 1)) {
        cursor.skip(2);
        errorHandler(parser, *statement);
    }
    parser.expectEnd(Keyword::try_, "try");
    cursor.take(Keyword::error);
    return statement;
}

StatementPointer errorStatement(StatementParser& parser, Position place) {
    TokenCursor& cursor = parser.cursor();
    auto statement = std::make_unique<ErrorStatement>(place);
    const bool hasMessage = !cursor.atLineEnd() && !cursor.at(Keyword::number) && !cursor.at(Keyword::else_);
    if (hasMessage) statement->message = parser.expression();
    if (cursor.take(Keyword::number)) statement->number = parser.expression();
    return statement;
}

} // namespace songsweep::interpreter
