// SPDX-License-Identifier: MIT
#include "scripting/interpreter/Coercion.h"
#include "scripting/interpreter/TextFolding.h"
#include "scripting/interpreter/ast/References.h"

#include <algorithm>

namespace songsweep::interpreter {
namespace {

std::int64_t middleOf(std::int64_t count) { return (count + 1) / 2; }

} // namespace

Result<Referent> ElementReference::computeReferent(Context& context) const {
    Result<Referent> containers = resolveContainer(context);
    if (!containers) return containers;
    return insideEach(context, containers.value(), [&](const Value& value) -> Result<Referent> {
        const Result<ObjectPointer> object = objectOf(context, value);
        if (!object) return object.error();
        return selectedFrom(context, {object.value(), m_class, m_filter.get()});
    });
}

Result<Referent> ElementReference::selectedFrom(Context& context, const ElementSet& set) const {
    if (m_selector.kind == Selector::Kind::every) return Referent{set};
    if (m_selector.kind == Selector::Kind::range) return rangeOf(context, set);
    Result<ObjectPointer> element = elementOf(context, set);
    if (!element) return element.error();
    return Referent{Value(std::move(element).value())};
}

Result<Referent> ElementReference::rangeOf(Context& context, ElementSet set) const {
    const Result<Value> first = m_selector.first->evaluate(context);
    if (!first) return first.error();
    const Result<Value> last = m_selector.last->evaluate(context);
    if (!last) return last.error();
    const Result<std::int64_t> begin = integerOf(context, m_selector.first->position(), first.value());
    if (!begin) return begin.error();
    const Result<std::int64_t> end = integerOf(context, m_selector.last->position(), last.value());
    if (!end) return end.error();
    set.first = begin.value();
    set.last = end.value();
    return Referent{std::move(set)};
}

Result<ObjectPointer> ElementReference::elementOf(Context& context, const ElementSet& set) const {
    switch (m_selector.kind) {
    case Selector::Kind::middle: {
        const Result<std::int64_t> count = countOf(context, position(), set);
        if (!count) return count.error();
        return elementAt(context, position(), set, middleOf(count.value()));
    }
    case Selector::Kind::name:
    case Selector::Kind::id: {
        const Result<Value> value = m_selector.first->evaluate(context);
        if (!value) return value.error();
        const char* const property = m_selector.kind == Selector::Kind::id ? "id" : "name";
        return elementBy(context, position(), set, property, singleItem(value.value()));
    }
    default:
        return indexedOf(context, set);
    }
}

/// An index may be a number or a name, and a list of one of them.
Result<ObjectPointer> ElementReference::indexedOf(Context& context, const ElementSet& set) const {
    const Result<Value> value = m_selector.first->evaluate(context);
    if (!value) return value.error();
    const Value& which = singleItem(value.value());
    if (std::holds_alternative<std::string>(which) && !set.filter) {
        return elementBy(context, position(), set, "name", which);
    }
    const Result<std::int64_t> index = integerOf(context, m_selector.first->position(), which);
    if (!index) return index.error();
    return elementAt(context, position(), set, index.value());
}

Result<Referent> ItemReference::computeReferent(Context& context) const {
    Result<Referent> container = resolveContainer(context);
    if (!container) return container;
    const auto* const set = std::get_if<ElementSet>(&container.value().what);
    const Result<Value> value =
        set ? listOf(context, position(), *set) : std::get<Value>(container.value().what);
    if (!value) return value.error();
    Result<Value> selected = Value();
    if (const auto* const items = listItems(value.value())) {
        selected = selectedItems(context, *items);
    } else if (const auto* const text = std::get_if<std::string>(&value.value())) {
        selected = selectedCharacters(context, *text);
    } else {
        return context.fail(position(), ErrorNumber::noSuchObject, kindName(value.value()) + " has no items");
    }
    if (!selected) return selected.error();
    return Referent{std::move(selected).value()};
}

Result<ItemReference::Range> ItemReference::rangeIn(Context& context, std::int64_t count) const {
    if (m_selector.kind == Selector::Kind::every) return Range{0, static_cast<std::size_t>(count)};
    std::int64_t begin = middleOf(count);
    std::int64_t end = begin;
    if (m_selector.kind != Selector::Kind::middle) {
        const Result<Value> first = m_selector.first->evaluate(context);
        if (!first) return first.error();
        const Result<std::int64_t> index = integerOf(context, m_selector.first->position(), first.value());
        if (!index) return index.error();
        begin = end = fromBeginning(index.value(), count);
    }
    if (m_selector.kind == Selector::Kind::range) {
        const Result<Value> last = m_selector.last->evaluate(context);
        if (!last) return last.error();
        const Result<std::int64_t> index = integerOf(context, m_selector.last->position(), last.value());
        if (!index) return index.error();
        end = fromBeginning(index.value(), count);
    }
    if (begin < 1 || end > count || begin > end) {
        return context.fail(position(), ErrorNumber::noSuchObject, "there is no such item");
    }
    return Range{static_cast<std::size_t>(begin) - 1, static_cast<std::size_t>(end)};
}

Result<Value> ItemReference::selectedItems(Context& context, const std::vector<Value>& items) const {
    const Result<Range> range = rangeIn(context, static_cast<std::int64_t>(items.size()));
    if (!range) return range.error();
    const bool isSingle =
        m_selector.kind == Selector::Kind::index || m_selector.kind == Selector::Kind::middle;
    if (isSingle) return items[range.value().begin];
    const auto begin = items.begin() + static_cast<std::ptrdiff_t>(range.value().begin);
    const auto end = items.begin() + static_cast<std::ptrdiff_t>(range.value().end);
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
    const Result<Referent> container = resolveContainer(context);
    if (!container) return container.error();
    const auto* const whole = std::get_if<Value>(&container.value().what);
    const auto* const list = whole ? std::get_if<ListPointer>(whole) : nullptr;
    if (!list)
        return context.fail(position(), ErrorNumber::noSuchObject, "only an item of a list can be set");
    const Result<Range> range = rangeIn(context, static_cast<std::int64_t>((*list)->items.size()));
    if (!range) return range.error();
    context.replaceInList(*list, range.value().begin, value);
    return {};
}

Result<Referent> InsertionReference::computeReferent(Context& context) const {
    return context.fail(position(), ErrorNumber::noSuchObject, "a place in a list has no value");
}

Result<void> InsertionReference::assign(Context& context, const Value& value) const {
    const Result<Referent> container = resolveContainer(context);
    if (!container) return container.error();
    const auto* const whole = std::get_if<Value>(&container.value().what);
    const auto* const list = whole ? std::get_if<ListPointer>(whole) : nullptr;
    if (!list) return context.fail(position(), ErrorNumber::noSuchObject, "only a list can be added to");
    const std::size_t index = m_place == Place::end ? (*list)->items.size() : 0;
    return context.insertInList(position(), *list, index, value);
}

} // namespace songsweep::interpreter
