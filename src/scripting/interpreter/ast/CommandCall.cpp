// SPDX-License-Identifier: MIT
#include "scripting/interpreter/ast/CommandCall.h"

#include "scripting/interpreter/Try.h"

namespace songsweep::interpreter {

int CommandCall::depth() const {
    int depth = depthAbove(m_direct);
    for (const Argument& argument : m_arguments)
        depth = std::max(depth, depthAbove(argument.value));
    return depth;
}

Result<std::optional<Value>> CommandCall::directParameter(Context& context) const {
    if (m_direct) {
        TRY(Value && value, m_direct->evaluate(context));
        return std::optional(std::move(value));
    }
    if (context.target().get() == context.application()) return std::optional<Value>();
    return std::optional<Value>(context.target());
}

Result<std::optional<Value>> CommandCall::perform(Context& context) const {
    HostApplication* const application = context.application();
    if (!application || &application->terminology() != &m_origin) {
        return context.fail(m_position, ErrorNumber::notUnderstood,
                            "no application is told to " + m_term.name);
    }
    Command command;
    command.code = m_term.code;
    TRY(std::optional<Value> && direct, directParameter(context));
    command.direct = std::move(direct);
    for (const Argument& argument : m_arguments) {
        TRY(Value && value, argument.value->evaluate(context));
        command.arguments.push_back({argument.parameter, std::move(value)});
    }
    return context.located(m_position, application->perform(command));
}

Result<Value> CommandExpression::compute(Context& context) const {
    TRY(std::optional<Value> && result, m_call.perform(context));
    if (!result) {
        return context.fail(position(), ErrorNumber::noSuchObject, "the command has no result");
    }
    return *std::move(result);
}

} // namespace songsweep::interpreter
