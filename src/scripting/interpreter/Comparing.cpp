// SPDX-License-Identifier: MIT
#include "scripting/interpreter/Comparing.h"

#include "scripting/interpreter/Coercion.h"
#include "scripting/interpreter/Limits.h"
#include "scripting/interpreter/TextFolding.h"
#include "scripting/interpreter/Try.h"

#include <compare>

namespace songsweep::interpreter {
namespace {

using Items = std::vector<Value>;

/// One comparison: what its helpers have in common.
class Comparer {
  public:
    Comparer(Context& context, Position position)
        : m_context(context)
        , m_position(position) {}

    Result<bool> areEqual(const Value& left, const Value& right, int depth = 0);
    Result<std::partial_ordering> order(const Value& left, const Value& right);
    Result<bool> holds(Comparison comparison, const Value& whole, const Value& part);

  private:
    Result<bool> areListsEqual(const Items& left, const Items& right, int depth);
    Result<bool> standsAt(const Items& whole, std::size_t offset, const Items& part);
    Result<bool> holdsInList(Comparison comparison, const Items& whole, const Value& part);
    Result<bool> holdsInText(Comparison comparison, const Value& whole, const Value& part);
    Error cannotCompare(const Value& left, const Value& right);
    bool spendOn(const Value& left, const Value& right);

    Context& m_context;
    Position m_position;
};

std::size_t textBytes(const Value& value) {
    const auto* const text = std::get_if<std::string>(&value);
    return text ? text->size() : 0;
}

bool isNumber(const Value& value) {
    return std::holds_alternative<std::int64_t>(value) || std::holds_alternative<double>(value);
}

std::optional<std::partial_ordering> dateOrder(const Value& left, const Value& right) {
    const auto* const earlier = std::get_if<Date>(&left);
    const auto* const later = std::get_if<Date>(&right);
    if (!earlier || !later) return {};
    return earlier->longDateTime <=> later->longDateTime;
}

std::partial_ordering numberOrder(const Number& left, const Number& right) {
    if (const auto* const integer = std::get_if<std::int64_t>(&left)) {
        if (const auto* const other = std::get_if<std::int64_t>(&right)) return *integer <=> *other;
    }
    return realOf(left) <=> realOf(right);
}

bool isOrdered(Comparison comparison, std::partial_ordering order) {
    switch (comparison) {
    case Comparison::less:
        return std::is_lt(order);
    case Comparison::lessOrEqual:
        return std::is_lteq(order);
    case Comparison::greater:
        return std::is_gt(order);
    default:
        return std::is_gteq(order);
    }
}

bool textHolds(Comparison comparison, const std::string& whole, const std::string& part) {
    if (comparison == Comparison::beginsWith) return whole.starts_with(part);
    if (comparison == Comparison::endsWith) return whole.ends_with(part);
    return whole.find(part) != std::string::npos;
}

bool Comparer::spendOn(const Value& left, const Value& right) {
    return m_context.spend(1 + (textBytes(left) + textBytes(right)) / textBytesOfOneStep);
}

Error Comparer::cannotCompare(const Value& left, const Value& right) {
    return m_context.fail(m_position, ErrorNumber::cannotCoerce,
                          "cannot compare " + kindName(left) + " with " + kindName(right));
}

Result<bool> Comparer::areEqual(const Value& left, const Value& right, int depth) {
    if (!spendOn(left, right)) return m_context.exhausted(m_position);
    if (isNumber(left) && isNumber(right)) return std::is_eq(numberOrder(*numberOf(left), *numberOf(right)));
    if (left.index() != right.index()) return false;
    if (const auto* const text = std::get_if<std::string>(&left)) {
        return isSameText(*text, std::get<std::string>(right));
    }
    if (const Items* const items = listItems(left)) return areListsEqual(*items, *listItems(right), depth);
    if (const auto* const object = std::get_if<ObjectPointer>(&left)) {
        return (*object)->isSame(*std::get<ObjectPointer>(right));
    }
    return left == right;
}

Result<bool> Comparer::areListsEqual(const Items& left, const Items& right, int depth) {
    if (left.size() != right.size()) return false;
    if (depth > maximumListNesting) {
        return m_context.fail(m_position, ErrorNumber::general, "the list lies too deep");
    }
    for (std::size_t i = 0; i < left.size(); ++i) {
        Result<bool> same = areEqual(left[i], right[i], depth + 1);
        if (!same || !same.value()) return same;
    }
    return true;
}

Result<std::partial_ordering> Comparer::order(const Value& left, const Value& right) {
    if (!spendOn(left, right)) return m_context.exhausted(m_position);
    if (const auto dates = dateOrder(left, right)) return *dates;
    if (std::holds_alternative<std::string>(left)) {
        const Result<std::string> text = textOf(m_context, m_position, right);
        if (!text || listItems(right)) return cannotCompare(left, right);
        return std::partial_ordering(foldedText(std::get<std::string>(left)) <=> foldedText(text.value()));
    }
    const std::optional<Number> number = isNumber(left) ? numberOf(left) : std::nullopt;
    const std::optional<Number> other = numberOf(right);
    if (!number || !other) return cannotCompare(left, right);
    return numberOrder(*number, *other);
}

Result<bool> Comparer::holds(Comparison comparison, const Value& whole, const Value& part) {
    if (const Items* const items = listItems(whole)) return holdsInList(comparison, *items, part);
    return holdsInText(comparison, whole, part);
}

Result<bool> Comparer::holdsInText(Comparison comparison, const Value& whole, const Value& part) {
    if (!std::holds_alternative<std::string>(whole)) return cannotCompare(whole, part);
    if (!spendOn(whole, part)) return m_context.exhausted(m_position);
    TRY(const std::string& text, textOf(m_context, m_position, part));
    return textHolds(comparison, foldedText(std::get<std::string>(whole)), foldedText(text));
}

Result<bool> Comparer::standsAt(const Items& whole, std::size_t offset, const Items& part) {
    for (std::size_t i = 0; i < part.size(); ++i) {
        Result<bool> same = areEqual(whole[offset + i], part[i]);
        if (!same || !same.value()) return same;
    }
    return true;
}

Result<bool> Comparer::holdsInList(Comparison comparison, const Items& whole, const Value& part) {
    const Items* const several = listItems(part);
    const Items single = several ? Items() : Items{part};
    const Items& items = several ? *several : single;
    if (items.size() > whole.size()) return false;
    const std::size_t lastOffset = whole.size() - items.size();
    const std::size_t first = comparison == Comparison::endsWith ? lastOffset : 0;
    const std::size_t last = comparison == Comparison::beginsWith ? 0 : lastOffset;
    for (std::size_t offset = first; offset <= last; ++offset) {
        Result<bool> stands = standsAt(whole, offset, items);
        if (!stands || stands.value()) return stands;
    }
    return false;
}

} // namespace

Result<bool> compared(Context& context, Position position, Comparison comparison, const Value& left,
                      const Value& right) {
    Comparer comparer(context, position);
    switch (comparison) {
    case Comparison::equal:
        return comparer.areEqual(left, right);
    case Comparison::notEqual: {
        TRY(const bool same, comparer.areEqual(left, right));
        return !same;
    }
    case Comparison::contains:
    case Comparison::beginsWith:
    case Comparison::endsWith:
        return comparer.holds(comparison, left, right);
    case Comparison::isIn:
        return comparer.holds(Comparison::contains, right, left);
    default:
        break;
    }
    TRY(const std::partial_ordering order, comparer.order(left, right));
    return isOrdered(comparison, order);
}

} // namespace songsweep::interpreter
