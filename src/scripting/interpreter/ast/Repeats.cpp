// SPDX-License-Identifier: MIT
#include "scripting/interpreter/ast/Repeats.h"

#include "scripting/interpreter/Coercion.h"

namespace songsweep::interpreter {
namespace {

Result<std::int64_t> integerValue(Context& context, const Expression& expression) {
    const Result<Value> value = expression.evaluate(context);
    if (!value) return value.error();
    return integerOf(context, expression.position(), value.value());
}

} // namespace

Result<bool> RepeatStatement::runOnce(Context& context, Flow& flow) const {
    if (!context.spend()) return context.exhausted(position());
    const Result<Flow> left = executeBlock(context, m_body);
    if (!left) return left.error();
    flow = left.value() == Flow::returned ? Flow::returned : Flow::onward;
    return left.value() == Flow::onward;
}

Result<Flow> RepeatForeverStatement::run(Context& context) const {
    Flow flow = Flow::onward;
    while (true) {
        const Result<bool> goesOn = runOnce(context, flow);
        if (!goesOn) return goesOn.error();
        if (!goesOn.value()) return flow;
    }
}

Result<Flow> RepeatTimesStatement::run(Context& context) const {
    const Result<std::int64_t> times = integerValue(context, *m_times);
    if (!times) return times.error();
    Flow flow = Flow::onward;
    for (std::int64_t done = 0; done < times.value(); ++done) {
        const Result<bool> goesOn = runOnce(context, flow);
        if (!goesOn) return goesOn.error();
        if (!goesOn.value()) break;
    }
    return flow;
}

Result<Flow> RepeatConditionStatement::run(Context& context) const {
    Flow flow = Flow::onward;
    while (true) {
        const Result<Value> value = m_condition->evaluate(context);
        if (!value) return value.error();
        const Result<bool> truth = truthOf(context, m_condition->position(), value.value());
        if (!truth) return truth.error();
        if (truth.value() != (m_mode == Mode::whileTrue)) return flow;
        const Result<bool> goesOn = runOnce(context, flow);
        if (!goesOn) return goesOn.error();
        if (!goesOn.value()) return flow;
    }
}

Result<Flow> RepeatRangeStatement::run(Context& context) const {
    const Result<std::int64_t> first = integerValue(context, *m_range.first);
    if (!first) return first.error();
    const Result<std::int64_t> last = integerValue(context, *m_range.last);
    if (!last) return last.error();
    const Result<std::int64_t> step = m_range.step ? integerValue(context, *m_range.step) : 1;
    if (!step) return step.error();
    if (step.value() == 0) return context.fail(position(), ErrorNumber::general, "a repeat by 0 has no end");
    Flow flow = Flow::onward;
    for (std::int64_t i = first.value(); step.value() > 0 ? i <= last.value() : i >= last.value();) {
        const Result<void> assigned = m_variable->assign(context, Value(i));
        if (!assigned) return assigned.error();
        const Result<bool> goesOn = runOnce(context, flow);
        if (!goesOn) return goesOn.error();
        if (!goesOn.value() || __builtin_add_overflow(i, step.value(), &i)) break;
    }
    return flow;
}

Result<Flow> RepeatListStatement::run(Context& context) const {
    const Result<Value> list = m_list->evaluate(context);
    if (!list) return list.error();
    const auto* const items = listItems(list.value());
    if (!items) {
        return context.fail(m_list->position(), ErrorNumber::cannotCoerce,
                            "cannot go through the items of " + kindName(list.value()));
    }
    const std::size_t count = items->size();
    Flow flow = Flow::onward;
    for (std::size_t i = 0; i < count && i < items->size(); ++i) {
        const Result<void> assigned = m_variable->assign(context, (*items)[i]);
        if (!assigned) return assigned.error();
        const Result<bool> goesOn = runOnce(context, flow);
        if (!goesOn) return goesOn.error();
        if (!goesOn.value()) break;
    }
    return flow;
}

} // namespace songsweep::interpreter
