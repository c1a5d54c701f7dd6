// SPDX-License-Identifier: MIT
#include "scripting/interpreter/Try.h"
#include "scripting/interpreter/statements/StatementParser.h"

namespace songsweep::interpreter {

StatementPointer expressionStatement(StatementParser& parser) {
    const Position place = parser.cursor().position();
    parser.cursor().take(Keyword::get);
    return makeStatement(place, [value = parser.expression()](Context& context) -> Result<Flow> {
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
