// SPDX-License-Identifier: MIT
#include "scripting/interpreter/Try.h"
#include "scripting/interpreter/statements/StatementParser.h"
#include "scripting/interpreter/statements/StatementRules.h"

namespace songsweep::interpreter {
namespace {

/// `return x`, `return`.
struct ReturnStatement final : Statement {
    using Statement::Statement;
    Result<Flow> run(Context& context) const override;

    ExpressionPointer value; ///< or null
};

Result<Flow> ReturnStatement::run(Context& context) const {
    context.result().reset();
    if (!value) return Flow::returned;
    TRY(context.result(), value->evaluate(context));
    return Flow::returned;
}

} // namespace

StatementPointer returnStatement(StatementParser& parser, Position place) {
    auto statement = std::make_unique<ReturnStatement>(place);
    const bool hasValue = !parser.cursor().atLineEnd() && !parser.cursor().at(Keyword::else_);
    if (hasValue) statement->value = parser.expression();
    return statement;
}

} // namespace songsweep::interpreter
