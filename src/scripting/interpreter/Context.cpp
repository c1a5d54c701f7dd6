// SPDX-License-Identifier: MIT
#include "scripting/interpreter/Context.h"

#include "scripting/interpreter/Limits.h"

#include <algorithm>
#include <utility>

namespace songsweep::interpreter {
namespace {

ErrorNumber numberOf(Error::Code code) {
    switch (code) {
    case Error::Code::notFound:
        return ErrorNumber::noSuchObject;
    case Error::Code::invalid:
        return ErrorNumber::cannotCoerce;
    case Error::Code::notSupported:
        return ErrorNumber::notUnderstood;
    default:
        return ErrorNumber::general;
    }
}

Error::Code codeOf(ErrorNumber number) {
    switch (number) {
    case ErrorNumber::noSuchObject:
        return Error::Code::notFound;
    case ErrorNumber::cannotCoerce:
        return Error::Code::invalid;
    case ErrorNumber::notUnderstood:
        return Error::Code::notSupported;
    default:
        return Error::Code::failed;
    }
}

int depthOf(const Value& value) {
    const auto* const list = std::get_if<ListPointer>(&value);
    return list ? (*list)->depth : 0;
}

} // namespace

Context::~Context() {
    // What a tracked list holds is freed only here, so freeing never runs down a long chain of lists.
    for (const ListPointer& list : m_trackedLists)
        std::exchange(list->items, {}).clear();
}

bool Context::spend(std::size_t steps) {
    m_spent += m_isFiltering ? steps : steps * filterNodesOfOneStep;
    if (m_spent > maximumSteps * filterNodesOfOneStep) m_isExhausted = true;
    return !m_isExhausted;
}

Error Context::exhausted(Position position) {
    return fail(position, ErrorNumber::general, "the script takes too many steps");
}

Error Context::fail(Position position, ErrorNumber number, std::string reason) {
    m_errorPosition = position;
    m_errorNumber = static_cast<int>(number);
    return {codeOf(number), std::move(reason)};
}

Error Context::fail(Position position, int number, std::string reason) {
    m_errorPosition = position;
    m_errorNumber = number;
    return {Error::Code::failed, std::move(reason)};
}

Error Context::fail(Position position, const Error& error) {
    m_errorPosition = position;
    m_errorNumber = static_cast<int>(numberOf(error.code));
    return error;
}

Result<Value> Context::makeList(Position position, std::vector<Value> items) {
    if (items.size() > maximumListItems) return fail(position, ErrorNumber::general, "the list is too long");
    std::size_t cost = items.size() / listItemsOfOneStep;
    int depth = 0;
    for (const Value& item : items) {
        depth = std::max(depth, depthOf(item));
        if (const auto* const text = std::get_if<std::string>(&item))
            cost += text->size() / textBytesOfOneStep;
    }
    if (!spend(cost)) return exhausted(position);
    if (depth >= maximumListNesting) return fail(position, ErrorNumber::general, "the list lies too deep");
    auto list = std::make_shared<ListStorage>();
    list->items = std::move(items);
    list->depth = depth + 1;
    return Value(std::move(list));
}

void Context::replaceInList(const ListPointer& list, std::size_t index, Value value) {
    track(list, value);
    list->items[index] = std::move(value);
}

Result<void> Context::insertInList(Position position, const ListPointer& list, std::size_t index,
                                   Value value) {
    if (list->items.size() >= maximumListItems) {
        return fail(position, ErrorNumber::general, "the list is too long");
    }
    const std::size_t moved = list->items.size() - index;
    if (!spend(moved)) return exhausted(position);
    track(list, value);
    list->items.insert(list->items.begin() + static_cast<std::ptrdiff_t>(index), std::move(value));
    return {};
}

void Context::track(const ListPointer& list, const Value& added) {
    if (list->isTracked || !std::holds_alternative<ListPointer>(added)) return;
    list->isTracked = true;
    m_trackedLists.push_back(list);
}

Context::TargetScope::TargetScope(Context& context, ObjectPointer target, HostApplication* application)
    : m_context(context)
    , m_target(std::exchange(context.m_target, std::move(target)))
    , m_application(std::exchange(context.m_application, application))
    , m_wasFiltering(std::exchange(context.m_isFiltering, false)) {}

Context::TargetScope::~TargetScope() {
    m_context.m_target = std::move(m_target);
    m_context.m_application = m_application;
    m_context.m_isFiltering = m_wasFiltering;
}

Context::FilterScope::FilterScope(Context& context)
    : m_context(context)
    , m_target(context.m_target)
    , m_wasFiltering(std::exchange(context.m_isFiltering, true)) {}

Context::FilterScope::~FilterScope() {
    m_context.m_target = std::move(m_target);
    m_context.m_isFiltering = m_wasFiltering;
}

} // namespace songsweep::interpreter
