// SPDX-License-Identifier: MIT
#include "scripting/interpreter/ast/Statements.h"

#include "scripting/interpreter/Coercion.h"
#include "scripting/interpreter/Limits.h"

namespace songsweep::interpreter {
namespace {

/// A value with lists of its own, all the way down.
Result<Value> deepCopy(Context& context, Position position, const Value& value, int depth) {
    const auto* const items = listItems(value);
    if (!items) return value;
    if (depth > maximumListNesting)
        return context.fail(position, ErrorNumber::general, "the list lies too deep");
    std::vector<Value> copies;
    for (const Value& item : *items) {
        if (!context.spend()) return context.exhausted(position);
        Result<Value> copy = deepCopy(context, position, item, depth + 1);
        if (!copy) return copy;
        copies.push_back(std::move(copy).value());
    }
    return context.makeList(position, std::move(copies));
}

} // namespace

Result<Flow> Statement::execute(Context& context) const {
    if (!context.spend()) return context.exhausted(m_position);
    return run(context);
}

Result<Flow> executeBlock(Context& context, const Block& block) {
    for (const StatementPointer& statement : block) {
        const Result<Flow> flow = statement->execute(context);
        if (!flow || flow.value() != Flow::onward) return flow;
    }
    return Flow::onward;
}

Result<Flow> ExpressionStatement::run(Context& context) const {
    Result<Value> value = m_expression->evaluate(context);
    if (!value) return value.error();
    context.result() = std::move(value).value();
    return Flow::onward;
}

Result<Flow> SetStatement::run(Context& context) const {
    Result<Value> value = m_value->evaluate(context);
    if (!value) return value.error();
    if (Result<void> assigned = m_goal->assign(context, value.value()); !assigned) return assigned.error();
    context.result() = std::move(value).value();
    return Flow::onward;
}

Result<Flow> CopyStatement::run(Context& context) const {
    const Result<Value> value = m_value->evaluate(context);
    if (!value) return value.error();
    Result<Value> copy = deepCopy(context, position(), value.value(), 0);
    if (!copy) return copy.error();
    if (Result<void> assigned = m_goal->assign(context, copy.value()); !assigned) return assigned.error();
    context.result() = std::move(copy).value();
    return Flow::onward;
}

Result<Flow> TellStatement::run(Context& context) const {
    const Result<Value> target = m_target->evaluate(context);
    if (!target) return target.error();
    const auto* const object = std::get_if<ObjectPointer>(&singleItem(target.value()));
    if (!object) {
        return context.fail(position(), ErrorNumber::noSuchObject,
                            kindName(target.value()) + " cannot be told");
    }
    const Applications::Entry* const owner = context.applications().owning(**object);
    const Context::TargetScope scope(context, *object,
                                     owner ? owner->application.get() : context.application());
    return executeBlock(context, m_body);
}

Result<Flow> IfStatement::run(Context& context) const {
    for (const Branch& branch : m_branches) {
        if (!branch.condition) return executeBlock(context, branch.body);
        const Result<Value> value = branch.condition->evaluate(context);
        if (!value) return value.error();
        const Result<bool> truth = truthOf(context, branch.condition->position(), value.value());
        if (!truth) return truth.error();
        if (truth.value()) return executeBlock(context, branch.body);
    }
    return Flow::onward;
}

Result<Flow> TryStatement::run(Context& context) const {
    const Result<Flow> flow = executeBlock(context, m_body);
    if (flow || context.isExhausted()) return flow;
    if (m_handler.message) {
        const Result<void> assigned = m_handler.message->assign(context, Value(flow.error().message));
        if (!assigned) return assigned.error();
    }
    if (m_handler.number) {
        const Result<void> assigned =
            m_handler.number->assign(context, Value(std::int64_t(context.errorNumber())));
        if (!assigned) return assigned.error();
    }
    return executeBlock(context, m_handler.body);
}

Result<Flow> ErrorStatement::run(Context& context) const {
    std::string reason = "an error";
    if (m_message) {
        const Result<Value> message = m_message->evaluate(context);
        if (!message) return message.error();
        Result<std::string> text = textOf(context, position(), message.value());
        if (!text) return text.error();
        reason = std::move(text).value();
    }
    if (!m_number) return context.fail(position(), ErrorNumber::general, std::move(reason));
    const Result<Value> number = m_number->evaluate(context);
    if (!number) return number.error();
    const Result<std::int64_t> integer = integerOf(context, position(), number.value());
    if (!integer) return integer.error();
    return context.fail(position(), static_cast<int>(integer.value()), std::move(reason));
}

Result<Flow> ReturnStatement::run(Context& context) const {
    context.result().reset();
    if (!m_value) return Flow::returned;
    Result<Value> value = m_value->evaluate(context);
    if (!value) return value.error();
    context.result() = std::move(value).value();
    return Flow::returned;
}

} // namespace songsweep::interpreter
