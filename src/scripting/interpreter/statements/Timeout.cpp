// SPDX-License-Identifier: MIT
#include "scripting/interpreter/Coercion.h"
#include "scripting/interpreter/Try.h"
#include "scripting/interpreter/statements/StatementParser.h"

namespace songsweep::interpreter {
namespace {

Result<Flow> runInTime(Context& context, const Expression& seconds, const Block& body) {
    TRY(const Value& value, seconds.evaluate(context));
    TRY(const std::int64_t time, integerOf(context, seconds.position(), value));
    if (time < 1) {
        return context.fail(seconds.position(), ErrorNumber::general, "a timeout is one second at least");
    }
    return executeBlock(context, body);
}

} // namespace

/// `with timeout of n seconds … end timeout`. Applications answer within the call here, so that the time
/// which they are given never runs out.
StatementPointer timeoutStatement(StatementParser& parser, Position place) {
    TokenCursor& cursor = parser.cursor();
    if (!cursor.takeWords("timeout")) cursor.failExpecting("“timeout”");
    cursor.take(Keyword::of);
    ExpressionPointer seconds = parser.expression();
    if (!cursor.takeWords("seconds") && !cursor.takeWords("second")) cursor.failExpecting("“seconds”");
    cursor.expectLineEnd();
    Block body = parser.block();
    cursor.expect(Keyword::end, "“end timeout”");
    cursor.takeWords("timeout");
    return makeStatement(place, [seconds = std::move(seconds), body = std::move(body)](Context& context) {
        return runInTime(context, *seconds, body);
    });
}

} // namespace songsweep::interpreter
