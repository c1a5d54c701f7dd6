// SPDX-License-Identifier: MIT
#include "scripting/interpreter/Try.h"
#include "scripting/interpreter/statements/StatementParser.h"

namespace songsweep::interpreter {

/// `return x`, `return`.
StatementPointer returnStatement(StatementParser& parser, Position place) {
    const bool hasValue = !parser.cursor().atLineEnd() && !parser.cursor().at(Keyword::else_);
    ExpressionPointer value = hasValue ? parser.expression() : nullptr;
    return makeStatement(place, [value = std::move(value)](Context& context) -> Result<Flow> {
        context.result().reset();
        if (!value) return Flow::returned;
        TRY(context.result(), value->evaluate(context));
        return Flow::returned;
    });
}

} // namespace songsweep::interpreter
