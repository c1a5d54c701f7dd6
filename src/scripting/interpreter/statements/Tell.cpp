// SPDX-License-Identifier: MIT
#include "scripting/interpreter/Coercion.h"
#include "scripting/interpreter/Try.h"
#include "scripting/interpreter/statements/StatementParser.h"
#include "scripting/interpreter/statements/StatementRules.h"

namespace songsweep::interpreter {
namespace {

/// `tell x … end tell`, `tell x to …`.
struct TellStatement final : Statement {
    using Statement::Statement;
    Result<Flow> run(Context& context) const override;

    ExpressionPointer target;
    Block body;
};

Result<Flow> TellStatement::run(Context& context) const {
    TRY(const Value& told, target->evaluate(context));
    const auto* const object = std::get_if<ObjectPointer>(&singleItem(told));
    if (!object) {
        return context.fail(position(), ErrorNumber::noSuchObject, kindName(told) + " cannot be told");
    }
    const Applications::Entry* const owner = context.services().applications.owning(**object);
    const Context::TargetScope scope(context, *object,
                                     owner ? owner->application.get() : context.application());
    return executeBlock(context, body);
}

Block tellBody(StatementParser& parser) {
    if (parser.cursor().take(Keyword::to)) return parser.oneStatement();
    if (!parser.cursor().atLineEnd()) parser.cursor().failExpecting("“to” or the end of the line");
    Block body = parser.block();
    parser.expectEnd(Keyword::tell, "tell");
    return body;
}

} // namespace

StatementPointer tellStatement(StatementParser& parser, Position place) {
    auto statement = std::make_unique<TellStatement>(place);
    statement->target = parser.expressions().reference();
    const Applications::Entry* const application = statement->target->namedApplication();
    const Vocabulary* const outer = parser.cursor().vocabulary();
    if (application) parser.cursor().setVocabulary(&application->vocabulary);
    statement->body = tellBody(parser);
    parser.cursor().setVocabulary(outer);
    return statement;
}

} // namespace songsweep::interpreter
