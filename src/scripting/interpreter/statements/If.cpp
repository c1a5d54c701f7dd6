// SPDX-License-Identifier: MIT
#include "scripting/interpreter/Coercion.h"
#include "scripting/interpreter/Try.h"
#include "scripting/interpreter/statements/StatementParser.h"
#include "scripting/interpreter/statements/StatementRules.h"

namespace songsweep::interpreter {
namespace {

/// `if … then … else if … then … else … end if`.
struct IfStatement final : Statement {
    using Statement::Statement;
    Result<Flow> run(Context& context) const override;

    struct Branch {
        ExpressionPointer condition; ///< null for `else`
        Block body;
    };
    std::vector<Branch> branches;
};

Result<Flow> IfStatement::run(Context& context) const {
    for (const Branch& branch : branches) {
        if (!branch.condition) return executeBlock(context, branch.body);
        TRY(const Value& value, branch.condition->evaluate(context));
        TRY(const bool isTrue, truthOf(context, branch.condition->position(), value));
        if (isTrue) return executeBlock(context, branch.body);
    }
    return Flow::onward;
}

/// A condition and its `then`.
ExpressionPointer condition(StatementParser& parser) {
    ExpressionPointer condition = parser.expression();
    if (!parser.cursor().take(Keyword::then) && !parser.cursor().atLineEnd()) {
        parser.cursor().failExpecting("“then”");
    }
    return condition;
}

} // namespace

StatementPointer ifStatement(StatementParser& parser, Position place) {
    auto statement = std::make_unique<IfStatement>(place);
    ExpressionPointer first = condition(parser);
    const bool isOneLine = !parser.cursor().atLineEnd();
    const auto body = [&] { return isOneLine ? parser.oneStatement() : parser.block(); };
    statement->branches.push_back({std::move(first), body()});
    while (parser.cursor().take(Keyword::else_)) {
        const bool isElseIf = !isOneLine && parser.cursor().take(Keyword::if_);
        ExpressionPointer next = isElseIf ? condition(parser) : nullptr;
        statement->branches.push_back({std::move(next), body()});
        if (!isElseIf) break;
    }
    if (!isOneLine) parser.expectEnd(Keyword::if_, "if");
    return statement;
}

} // namespace songsweep::interpreter
