// SPDX-License-Identifier: MIT
#include "scripting/interpreter/ast/References.h"

#include "scripting/interpreter/Coercion.h"
#include "scripting/interpreter/ValueProperties.h"

namespace songsweep::interpreter {

Result<Value> Reference::compute(Context& context) const {
    Result<Referent> referent = computeReferent(context);
    if (!referent) return referent.error();
    if (const auto* const set = std::get_if<ElementSet>(&referent.value().what)) {
        return listOf(context, position(), *set);
    }
    return std::get<Value>(std::move(referent.value().what));
}

Result<Referent> TargetReference::computeReferent(Context& context) const {
    if (!context.target())
        return context.fail(position(), ErrorNumber::noSuchObject, "no application is told");
    return Referent{Value(context.target())};
}

Result<Referent> ApplicationReference::computeReferent(Context&) const {
    return Referent{Value(ObjectPointer(m_application.application))};
}

Result<Referent> ContainedReference::resolveContainer(Context& context) const {
    if (m_container) return m_container->resolve(context);
    if (!context.target())
        return context.fail(position(), ErrorNumber::noSuchObject, "no application is told");
    return Referent{Value(context.target())};
}

Result<ObjectPointer> ContainedReference::objectOf(Context& context, const Value& value) const {
    if (const auto* const object = std::get_if<ObjectPointer>(&value)) return *object;
    if (context.application()) {
        Result<ObjectPointer> object = context.application()->objectFor(value);
        if (object) return object;
        if (std::holds_alternative<Alias>(value)) return context.fail(position(), object.error());
    }
    return context.fail(position(), ErrorNumber::noSuchObject, kindName(value) + " has no such part");
}

Result<Referent> ContainedReference::insideEach(Context& context, const Referent& containers,
                                                const Inside& inside) const {
    if (const auto* const set = std::get_if<ElementSet>(&containers.what)) {
        return insideElements(context, *set, inside);
    }
    const Value& value = std::get<Value>(containers.what);
    return containers.isGathered ? insideItems(context, *listItems(value), inside) : inside(value);
}

Result<Referent> ContainedReference::insideElements(Context& context, const ElementSet& elements,
                                                    const Inside& inside) const {
    std::vector<Value> values;
    const auto visit = [&](const ObjectPointer& element) -> Result<bool> {
        Result<Value> value = insideOne(context, Value(element), inside);
        if (!value) return value.error();
        values.push_back(std::move(value).value());
        return true;
    };
    const Result<void> walked = forEachElement(context, position(), elements, visit);
    if (!walked) return walked.error();
    return gathered(context, std::move(values));
}

Result<Referent> ContainedReference::insideItems(Context& context, const std::vector<Value>& items,
                                                 const Inside& inside) const {
    std::vector<Value> values;
    for (const Value& item : items) {
        Result<Value> value = insideOne(context, item, inside);
        if (!value) return value.error();
        values.push_back(std::move(value).value());
    }
    return gathered(context, std::move(values));
}

/// What is inside of one of several, as a value; what was gathered before is gone into.
Result<Value> ContainedReference::insideOne(Context& context, const Value& value,
                                            const Inside& inside) const {
    const auto* const several = listItems(value);
    Result<Referent> result = several ? insideItems(context, *several, inside) : inside(value);
    if (!result) return result.error();
    const auto* const set = std::get_if<ElementSet>(&result.value().what);
    if (set) return listOf(context, position(), *set);
    return std::get<Value>(std::move(result.value().what));
}

Result<Referent> ContainedReference::gathered(Context& context, std::vector<Value> values) const {
    Result<Value> list = context.makeList(position(), std::move(values));
    if (!list) return list.error();
    return Referent{std::move(list).value(), true};
}

std::optional<TermCode> PropertyReference::codeIn(const Terminology& words) const {
    if (&words == m_origin) return m_term->code;
    const PropertyTerm* const term = words.property(m_name);
    return term ? std::optional(term->code) : std::nullopt;
}

std::optional<TermCode> PropertyReference::ownProperty(const Terminology& words) const {
    return container() ? std::nullopt : codeIn(words);
}

Result<TermCode> PropertyReference::codeFor(Context& context, const HostObject& object) const {
    const std::optional<TermCode> code = codeIn(object.terminology());
    if (!code) {
        return context.fail(position(), ErrorNumber::noSuchObject,
                            object.specifier() + " has no property “" + m_name + "”");
    }
    return *code;
}

Result<Value> PropertyReference::propertyOf(Context& context, const Value& value) const {
    if (!std::holds_alternative<ObjectPointer>(value)) {
        if (std::optional<Result<Value>> part = valueProperty(context, position(), value, m_name))
            return *part;
    }
    const Result<ObjectPointer> object = objectOf(context, value);
    if (!object) return object.error();
    const Result<TermCode> code = codeFor(context, *object.value());
    if (!code) return code.error();
    Result<Value> property = object.value()->property(code.value());
    if (!property) return context.fail(position(), property.error());
    return property;
}

Result<Referent> PropertyReference::computeReferent(Context& context) const {
    Result<Referent> containers = resolveContainer(context);
    if (!containers) return containers;
    return insideEach(context, containers.value(), [&](const Value& value) -> Result<Referent> {
        Result<Value> property = propertyOf(context, value);
        if (!property) return property.error();
        return Referent{std::move(property).value()};
    });
}

Result<void> PropertyReference::assign(Context& context, const Value& value) const {
    const Result<Referent> containers = resolveContainer(context);
    if (!containers) return containers.error();
    const Result<Referent> done =
        insideEach(context, containers.value(), [&](const Value& container) -> Result<Referent> {
            const Result<ObjectPointer> object = objectOf(context, container);
            if (!object) return object.error();
            const Result<TermCode> code = codeFor(context, *object.value());
            if (!code) return code.error();
            const Result<void> set = object.value()->setProperty(code.value(), value);
            if (!set) return context.fail(position(), set.error());
            return Referent{Value(MissingValue())};
        });
    return done ? Result<void>() : done.error();
}

Result<Referent> PosixPathReference::computeReferent(Context& context) const {
    Result<Referent> containers = resolveContainer(context);
    if (!containers) return containers;
    const auto* const set = std::get_if<ElementSet>(&containers.value().what);
    const Result<Value> value =
        set ? listOf(context, position(), *set) : std::get<Value>(containers.value().what);
    if (!value) return value.error();
    Result<std::string> path = posixPathOf(context, position(), value.value());
    if (!path) return path.error();
    return Referent{Value(std::move(path).value())};
}

} // namespace songsweep::interpreter
