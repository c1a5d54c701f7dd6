// SPDX-License-Identifier: MIT
#include "scripting/interpreter/Coercion.h"
#include "scripting/interpreter/Try.h"
#include "scripting/interpreter/statements/StatementParser.h"

namespace songsweep::interpreter {
namespace {

Block tellBody(StatementParser& parser) {
    if (parser.cursor().take(Keyword::to)) return parser.oneStatement();
    if (!parser.cursor().atLineEnd()) parser.cursor().failExpecting("“to” or the end of the line");
    Block body = parser.block();
    parser.expectEnd(Keyword::tell, "tell");
    return body;
}

Result<Flow> tell(Context& context, Position place, const Expression& target, const Block& body) {
    TRY(const Value& told, target.evaluate(context));
    const auto* const object = std::get_if<ObjectPointer>(&singleItem(told));
    if (!object) {
        return context.fail(place, ErrorNumber::noSuchObject, kindName(told) + " cannot be told");
    }
    const Applications::Entry* const owner = context.services().applications.owning(**object);
    const Context::TargetScope scope(context, *object,
                                     owner ? owner->application.get() : context.application());
    return executeBlock(context, body);
}

} // namespace

/// `tell x … end tell`, `tell x to …`.
StatementPointer tellStatement(StatementParser& parser, Position place) {
    ExpressionPointer target = parser.expressions().reference();
    const Applications::Entry* const application = target->namedApplication();
    const Vocabulary* const outer = parser.cursor().vocabulary();
    if (application) parser.cursor().setVocabulary(&application->vocabulary);
    Block body = tellBody(parser);
    parser.cursor().setVocabulary(outer);
    return makeStatement(place, [place, target = std::move(target), body = std::move(body)](
                                    Context& context) { return tell(context, place, *target, body); });
}

} // namespace songsweep::interpreter
