// SPDX-License-Identifier: MIT
#include "scripting/interpreter/Arithmetic.h"

#include "scripting/interpreter/Coercion.h"

#include <cmath>
#include <limits>

namespace songsweep::interpreter {
namespace {

// Sums of dates and seconds lie between the years 3 and 9983.
constexpr std::int64_t firstDate = -60'000'000'000;
constexpr std::int64_t lastDate = 255'000'000'000;

/// The result in whole numbers, nothing where it leaves their range or is not whole.
std::optional<std::int64_t> wholeResult(Operation operation, std::int64_t left, std::int64_t right) {
    std::int64_t result = 0;
    const bool hasNoQuotient = left == std::numeric_limits<std::int64_t>::min() && right == -1;
    switch (operation) {
    case Operation::add:
        if (__builtin_add_overflow(left, right, &result)) return {};
        return result;
    case Operation::subtract:
        if (__builtin_sub_overflow(left, right, &result)) return {};
        return result;
    case Operation::multiply:
        if (__builtin_mul_overflow(left, right, &result)) return {};
        return result;
    case Operation::wholeDivide:
        if (hasNoQuotient) return {};
        return left / right;
    case Operation::remainder:
        return hasNoQuotient ? 0 : left % right;
    case Operation::divide:
    case Operation::power:
        break;
    }
    return {};
}

double realResult(Operation operation, double left, double right) {
    switch (operation) {
    case Operation::add:
        return left + right;
    case Operation::subtract:
        return left - right;
    case Operation::multiply:
        return left * right;
    case Operation::divide:
        return left / right;
    case Operation::wholeDivide:
        return std::trunc(left / right);
    case Operation::remainder:
        return std::fmod(left, right);
    case Operation::power:
        break;
    }
    return std::pow(left, right);
}

bool divides(Operation operation) {
    return operation == Operation::divide || operation == Operation::wholeDivide ||
           operation == Operation::remainder;
}

Result<Value> evaluatedNumbers(Context& context, Position position, Operation operation, const Number& left,
                               const Number& right) {
    if (divides(operation) && realOf(right) == 0) {
        return context.fail(position, ErrorNumber::divisionByZero, "a number cannot be divided by zero");
    }
    const auto* const wholeLeft = std::get_if<std::int64_t>(&left);
    const auto* const wholeRight = std::get_if<std::int64_t>(&right);
    if (wholeLeft && wholeRight) {
        if (const auto whole = wholeResult(operation, *wholeLeft, *wholeRight)) return Value(*whole);
    }
    const double result = realResult(operation, realOf(left), realOf(right));
    if (!std::isfinite(result)) {
        return context.fail(position, ErrorNumber::general, "the result is too large, or no number");
    }
    return Value(result);
}

std::optional<std::int64_t> seconds(const Value& value) {
    if (const auto* const date = std::get_if<Date>(&value)) return date->longDateTime;
    const std::optional<Number> number = numberOf(value);
    if (!number || !(std::abs(realOf(*number)) < double(lastDate))) return {};
    return static_cast<std::int64_t>(realOf(*number));
}

/// date + seconds, date - seconds and date - date; nothing for anything else.
std::optional<Value> evaluatedDates(Operation operation, const Value& left, const Value& right) {
    const bool bothDates = std::holds_alternative<Date>(left) && std::holds_alternative<Date>(right);
    if (operation != Operation::subtract && (operation != Operation::add || bothDates)) return {};
    if (operation == Operation::subtract && !std::holds_alternative<Date>(left)) return {};
    const auto first = seconds(left);
    const auto second = seconds(right);
    if (!first || !second) return {};
    const auto result = wholeResult(operation, *first, *second);
    if (!result || (!bothDates && (*result < firstDate || *result > lastDate))) return {};
    return bothDates ? Value(*result) : Value(Date{*result});
}

} // namespace

Result<Value> evaluated(Context& context, Position position, Operation operation, const Value& left,
                        const Value& right) {
    const bool hasDate = std::holds_alternative<Date>(left) || std::holds_alternative<Date>(right);
    if (hasDate) {
        if (std::optional<Value> value = evaluatedDates(operation, left, right)) return *value;
    } else if (const auto leftNumber = numberOf(left), rightNumber = numberOf(right);
               leftNumber && rightNumber) {
        return evaluatedNumbers(context, position, operation, *leftNumber, *rightNumber);
    }
    return context.fail(position, ErrorNumber::cannotCoerce,
                        "cannot calculate with " + kindName(left) + " and " + kindName(right));
}

Result<Value> negated(Context& context, Position position, const Value& value) {
    return evaluated(context, position, Operation::subtract, Value(std::int64_t(0)), value);
}

} // namespace songsweep::interpreter
