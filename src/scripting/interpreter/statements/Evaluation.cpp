// SPDX-License-Identifier: MIT
#include "scripting/interpreter/Try.h"
#include "scripting/interpreter/statements/StatementParser.h"
#include "scripting/interpreter/statements/StatementRules.h"

namespace songsweep::interpreter {
namespace {

/// An expression that stands for itself: its value is the result.
struct ExpressionStatement final : Statement {
    using Statement::Statement;
    Result<Flow> run(Context& context) const override {
        TRY(context.result(), expression->evaluate(context));
        return Flow::onward;
    }

    ExpressionPointer expression;
};

/// A command of an application; its result, if it has one, is the result.
struct CommandStatement final : Statement {
    explicit CommandStatement(CommandCall commandCall)
        : Statement(commandCall.position())
        , call(std::move(commandCall)) {}
    Result<Flow> run(Context& context) const override {
        TRY(context.result(), call.perform(context));
        return Flow::onward;
    }

    CommandCall call;
};

} // namespace

StatementPointer expressionStatement(StatementParser& parser) {
    auto statement = std::make_unique<ExpressionStatement>(parser.cursor().position());
    parser.cursor().take(Keyword::get);
    statement->expression = parser.expression();
    return statement;
}

StatementPointer commandStatement(StatementParser& parser) {
    return std::make_unique<CommandStatement>(parser.expressions().commands().command());
}

} // namespace songsweep::interpreter
