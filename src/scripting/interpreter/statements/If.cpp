// SPDX-License-Identifier: MIT
#include "scripting/interpreter/Coercion.h"
#include "scripting/interpreter/Try.h"
#include "scripting/interpreter/statements/StatementParser.h"

namespace songsweep::interpreter {
namespace {

struct Branch {
    ExpressionPointer condition; ///< null for `else`
    Block body;
};

Result<Flow> takeBranch(Context& context, const std::vector<Branch>& branches) {
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

/// `if … then … else if … then … else … end if`.
StatementPointer ifStatement(StatementParser& parser, Position place) {
    std::vector<Branch> branches;
    ExpressionPointer first = condition(parser);
    const bool isOneLine = !parser.cursor().atLineEnd();
    const auto body = [&] { return isOneLine ? parser.oneStatement() : parser.block(); };
    branches.push_back({std::move(first), body()});
    while (parser.cursor().take(Keyword::else_)) {
        const bool isElseIf = !isOneLine && parser.cursor().take(Keyword::if_);
        ExpressionPointer next = isElseIf ? condition(parser) : nullptr;
        branches.push_back({std::move(next), body()});
        if (!isElseIf) break;
    }
    if (!isOneLine) parser.expectEnd(Keyword::if_, "if");
    return makeStatement(
        place, [branches = std::move(branches)](Context& context) { return takeBranch(context, branches); });
}

} // namespace songsweep::interpreter
