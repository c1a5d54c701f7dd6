// SPDX-License-Identifier: MIT
#include "scripting/interpreter/Coercion.h"
#include "scripting/interpreter/TextFolding.h"
#include "scripting/interpreter/Try.h"
#include "scripting/interpreter/ast/References.h"

#include <algorithm>

namespace songsweep::interpreter {
namespace {

std::int64_t middleOf(std::int64_t count) { return (count + 1) / 2; }

} // namespace

Result<Referent> ElementReference::computeReferent(Context& context) const {
    TRY(const Referent& containers, resolveContainer(context));
    return insideEach(context, containers, [&](const Value& value) -> Result<Referent> {
        TRY(const ObjectPointer& object, objectOf(context, value));
        return selectedFrom(context, {object, m_class, m_filter.get()});
    });
}

Result<Referent> ElementReference::selectedFrom(Context& context, const ElementSet& set) const {
    if (m_selector.kind == Selector::Kind::every) return Referent{set};
    if (m_selector.kind == Selector::Kind::range) return rangeOf(context, set);
    TRY(ObjectPointer && element, elementOf(context, set));
    return Referent{Value(std::move(element))};
}

Result<Referent> ElementReference::rangeOf(Context& context, ElementSet set) const {
    TRY(const Value& first, m_selector.first->evaluate(context));
    TRY(const Value& last, m_selector.last->evaluate(context));
    TRY(const std::int64_t begin, integerOf(context, m_selector.first->position(), first));
    TRY(const std::int64_t end, integerOf(context, m_selector.last->position(), last));
    set.first = begin;
    set.last = end;
    return Referent{std::move(set)};
}

Result<ObjectPointer> ElementReference::elementOf(Context& context, const ElementSet& set) const {
    switch (m_selector.kind) {
    case Selector::Kind::middle: {
        TRY(const std::int64_t count, countOf(context, position(), set));
        return elementAt(context, position(), set, middleOf(count));
    }
    case Selector::Kind::name:
    case Selector::Kind::id: {
        TRY(const Value& value, m_selector.first->evaluate(context));
        const char* const property = m_selector.kind == Selector::Kind::id ? "id" : "name";
        return elementBy(context, position(), set, property, singleItem(value));
    }
    default:
        return indexedOf(context, set);
    }
}

/// An index may be a number or a name, and a list of one of them.
Result<ObjectPointer> ElementReference::indexedOf(Context& context, const ElementSet& set) const {
    TRY(const Value& value, m_selector.first->evaluate(context));
    const Value& which = singleItem(value);
    if (std::holds_alternative<std::string>(which) && !set.filter) {
        return elementBy(context, position(), set, "name", which);
    }
    TRY(const std::int64_t index, integerOf(context, m_selector.first->position(), which));
    return elementAt(context, position(), set, index);
}

Result<Referent> ItemReference::computeReferent(Context& context) const {
    TRY(const Referent& container, resolveContainer(context));
    const auto* const set = std::get_if<ElementSet>(&container.what);
    TRY(const Value& value, set ? listOf(context, position(), *set) : std::get<Value>(container.what));
    TRY(Value && selected, selectedFrom(context, value));
    return Referent{std::move(selected)};
}

Result<Value> ItemReference::selectedFrom(Context& context, const Value& value) const {
    if (const auto* const items = listItems(value)) return selectedItems(context, *items);
    if (const auto* const text = std::get_if<std::string>(&value)) return selectedCharacters(context, *text);
    return context.fail(position(), ErrorNumber::noSuchObject, kindName(value) + " has no items");
}

Result<ItemReference::Range> ItemReference::rangeIn(Context& context, std::int64_t count) const {
    if (m_selector.kind == Selector::Kind::every) return Range{0, static_cast<std::size_t>(count)};
    std::int64_t begin = middleOf(count);
    std::int64_t end = begin;
    if (m_selector.kind != Selector::Kind::middle) {
        TRY(const Value& first, m_selector.first->evaluate(context));
        TRY(const std::int64_t index, integerOf(context, m_selector.first->position(), first));
        begin = end = fromBeginning(index, count);
    }
    if (m_selector.kind == Selector::Kind::range) {
        TRY(const Value& last, m_selector.last->evaluate(context));
        TRY(const std::int64_t index, integerOf(context, m_selector.last->position(), last));
        end = fromBeginning(index, count);
    }
    if (begin < 1 || end > count || begin > end) {
        return context.fail(position(), ErrorNumber::noSuchObject, "there is no such item");
    }
    return Range{static_cast<std::size_t>(begin) - 1, static_cast<std::size_t>(end)};
}

Result<Value> ItemReference::selectedItems(Context& context, const std::vector<Value>& items) const {
    TRY(const Range range, rangeIn(context, static_cast<std::int64_t>(items.size())));
    const bool isSingle =
        m_selector.kind == Selector::Kind::index || m_selector.kind == Selector::Kind::middle;
    if (isSingle) return items[range.begin];
    const auto begin = items.begin() + static_cast<std::ptrdiff_t>(range.begin);
    const auto end = items.begin() + static_cast<std::ptrdiff_t>(range.end);
    return context.makeList(position(), std::vector<Value>(begin, end));
}

Result<Value> ItemReference::selectedCharacters(Context& context, const std::string& text) const {
    std::vector<Value> characters;
    if (!context.spend(text.size())) return context.exhausted(position());
    for (std::size_t offset = 0; offset < text.size();) {
        const std::size_t length = characterOffset(std::string_view(text).substr(offset), 1);
        characters.emplace_back(text.substr(offset, length));
        offset += length;
    }
    return selectedItems(context, characters);
}

Result<void> ItemReference::assign(Context& context, const Value& value) const {
    TRY(const Referent& container, resolveContainer(context));
    const auto* const whole = std::get_if<Value>(&container.what);
    const auto* const list = whole ? std::get_if<ListPointer>(whole) : nullptr;
    if (!list)
        return context.fail(position(), ErrorNumber::noSuchObject, "only an item of a list can be set");
    TRY(const Range range, rangeIn(context, static_cast<std::int64_t>((*list)->items.size())));
    context.replaceInList(*list, range.begin, value);
    return {};
}

Result<Referent> InsertionReference::computeReferent(Context& context) const {
    return context.fail(position(), ErrorNumber::noSuchObject, "a place in a list has no value");
}

Result<void> InsertionReference::assign(Context& context, const Value& value) const {
    TRY(const Referent& container, resolveContainer(context));
    const auto* const whole = std::get_if<Value>(&container.what);
    const auto* const list = whole ? std::get_if<ListPointer>(whole) : nullptr;
    if (!list) return context.fail(position(), ErrorNumber::noSuchObject, "only a list can be added to");
    const std::size_t index = m_place == Place::end ? (*list)->items.size() : 0;
    return context.insertInList(position(), *list, index, value);
}

} // namespace songsweep::interpreter
