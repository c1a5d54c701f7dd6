// SPDX-License-Identifier: MIT
#include "scripting/interpreter/Try.h"
#include "scripting/interpreter/statements/StatementParser.h"

namespace songsweep::interpreter {

namespace {

/// A word alone with something behind it that belongs to no expression: it was meant as a command.
bool wasCommand(const TokenCursor& cursor, const Token& first, Position second) {
    const bool isWord = first.kind == Token::Kind::word && first.keyword == Keyword::none;
    return isWord && cursor.position() == second && !cursor.atLineEnd() && !cursor.at(Keyword::else_);
}

} // namespace

StatementPointer expressionStatement(StatementParser& parser) {
    TokenCursor& cursor = parser.cursor();
    const Token first = cursor.peek();
    const Position second = cursor.peek(1).position;
    cursor.take(Keyword::get);
    ExpressionPointer value = parser.expression();
    if (wasCommand(cursor, first, second)) {
        cursor.fail(first.position, "“" + std::string(first.text) + "” is no command that is known here");
    }
    return makeStatement(first.position, [value = std::move(value)](Context& context) -> Result<Flow> {
        TRY(context.result(), value->evaluate(context));
        return Flow::onward;
    });
}

StatementPointer commandStatement(StatementParser& parser) {
    CommandCall call = parser.expressions().commands().command();
    const Position place = call.position();
    return makeStatement(place, [call = std::move(call)](Context& context) -> Result<Flow> {
        TRY(context.result(), call.perform(context));
        return Flow::onward;
    });
}

} // namespace songsweep::interpreter
