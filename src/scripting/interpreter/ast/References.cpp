// SPDX-License-Identifier: MIT
#include "scripting/interpreter/ast/References.h"

#include "scripting/interpreter/Coercion.h"
#include "scripting/interpreter/Try.h"
#include "scripting/interpreter/ValueProperties.h"

namespace songsweep::interpreter {

Result<Value> Reference::compute(Context& context) const {
    TRY(Referent && referent, computeReferent(context));
    if (const auto* const set = std::get_if<ElementSet>(&referent.what)) {
        return listOf(context, position(), *set);
    }
    return std::get<Value>(std::move(referent.what));
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
        TRY(Value && value, insideOne(context, Value(element), inside));
        values.push_back(std::move(value));
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
        TRY(Value && value, insideOne(context, item, inside));
        values.push_back(std::move(value));
    }
    return gathered(context, std::move(values));
}

/// What is inside of one of several, as a value; what was gathered before is gone into.
Result<Value> ContainedReference::insideOne(Context& context, const Value& value,
                                            const Inside& inside) const {
    const auto* const several = listItems(value);
    TRY(Referent && result, several ? insideItems(context, *several, inside) : inside(value));
    const auto* const set = std::get_if<ElementSet>(&result.what);
    if (set) return listOf(context, position(), *set);
    return std::get<Value>(std::move(result.what));
}

Result<Referent> ContainedReference::gathered(Context& context, std::vector<Value> values) const {
    TRY(Value && list, context.makeList(position(), std::move(values)));
    return Referent{std::move(list), true};
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
    TRY(const ObjectPointer& object, objectOf(context, value));
    TRY(const TermCode code, codeFor(context, *object));
    return context.located(position(), object->property(code));
}

Result<Referent> PropertyReference::computeReferent(Context& context) const {
    TRY(const Referent& containers, resolveContainer(context));
    return insideEach(context, containers, [&](const Value& value) -> Result<Referent> {
        TRY(Value && property, propertyOf(context, value));
        return Referent{std::move(property)};
    });
}

Result<void> PropertyReference::assign(Context& context, const Value& value) const {
    TRY(const Referent& containers, resolveContainer(context));
    const Result<Referent> done =
        insideEach(context, containers, [&](const Value& container) -> Result<Referent> {
            TRY(const ObjectPointer& object, objectOf(context, container));
            TRY(const TermCode code, codeFor(context, *object));
            const Result<void> set = context.located(position(), object->setProperty(code, value));
            return set ? Result<Referent>(Referent()) : set.error();
        });
    return done ? Result<void>() : done.error();
}

Result<Referent> PosixPathReference::computeReferent(Context& context) const {
    TRY(const Referent& containers, resolveContainer(context));
    const auto* const set = std::get_if<ElementSet>(&containers.what);
    TRY(const Value& value, set ? listOf(context, position(), *set) : std::get<Value>(containers.what));
    TRY(std::string && path, posixPathOf(context, position(), value));
    return Referent{Value(std::move(path))};
}

} // namespace songsweep::interpreter
