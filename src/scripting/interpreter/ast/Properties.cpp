// SPDX-License-Identifier: MIT
#include "scripting/interpreter/Try.h"
#include "scripting/interpreter/ast/References.h"

namespace songsweep::interpreter {

Result<Referent> PropertiesReference::computeReferent(Context& context) const {
    TRY(const Referent& containers, resolveContainer(context));
    const auto* const elements = std::get_if<ElementSet>(&containers.what);
    TRY(Value && values, elements ? columnsOf(context, *elements) : valuesIn(context, containers));
    return Referent{std::move(values)};
}

Result<Value> PropertiesReference::columnsOf(Context& context, const ElementSet& elements) const {
    Columns columns(m_properties.size());
    const auto visit = [&](const ObjectPointer& element) -> Result<bool> {
        if (!context.spend(columns.size())) return context.exhausted(position());
        for (std::size_t i = 0; i < columns.size(); ++i) {
            TRY(Value && value, m_properties[i]->propertyOf(context, Value(element)));
            columns[i].push_back(std::move(value));
        }
        return true;
    };
    const Result<void> walked = forEachElement(context, position(), elements, visit);
    if (!walked) return walked.error();
    std::vector<Value> lists;
    for (std::vector<Value>& column : columns) {
        TRY(Value && list, context.makeList(position(), std::move(column)));
        lists.push_back(std::move(list));
    }
    return context.makeList(position(), std::move(lists));
}

/// Of one value, or of what was gathered before.
Result<Value> PropertiesReference::valuesIn(Context& context, const Referent& containers) const {
    std::vector<Value> values;
    for (const auto& property : m_properties) {
        if (!context.spend()) return context.exhausted(position());
        const auto inside = [&](const Value& value) -> Result<Referent> {
            TRY(Value && part, property->propertyOf(context, value));
            return Referent{std::move(part)};
        };
        TRY(Referent && inEach, insideEach(context, containers, inside));
        values.push_back(std::get<Value>(std::move(inEach.what)));
    }
    return context.makeList(position(), std::move(values));
}

} // namespace songsweep::interpreter
