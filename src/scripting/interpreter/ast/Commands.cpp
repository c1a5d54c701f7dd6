// SPDX-License-Identifier: MIT
#include "scripting/interpreter/ast/Statements.h"

namespace songsweep::interpreter {

int CommandCall::depth() const {
    int depth = depthAbove(m_direct);
    for (const Argument& argument : m_arguments)
        depth = std::max(depth, depthAbove(argument.value));
    return depth;
}

Result<std::optional<Value>> CommandCall::directParameter(Context& context) const {
    if (m_direct) {
        Result<Value> value = m_direct->evaluate(context);
        if (!value) return value.error();
        return std::optional(std::move(value).value());
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
    Result<std::optional<Value>> direct = directParameter(context);
    if (!direct) return direct.error();
    command.direct = std::move(direct).value();
    for (const Argument& argument : m_arguments) {
        Result<Value> value = argument.value->evaluate(context);
        if (!value) return value.error();
        command.arguments.push_back({argument.parameter, std::move(value).value()});
    }
    Result<std::optional<Value>> result = application->perform(command);
    if (!result) return context.fail(m_position, result.error());
    return result;
}

Result<Flow> CommandStatement::run(Context& context) const {
    Result<std::optional<Value>> result = m_call.perform(context);
    if (!result) return result.error();
    context.result() = std::move(result).value();
    return Flow::onward;
}

Result<Value> CommandExpression::compute(Context& context) const {
    Result<std::optional<Value>> result = m_call.perform(context);
    if (!result) return result.error();
    if (!result.value()) {
        return context.fail(position(), ErrorNumber::noSuchObject, "the command has no result");
    }
    return *std::move(result).value();
}

} // namespace songsweep::interpreter
