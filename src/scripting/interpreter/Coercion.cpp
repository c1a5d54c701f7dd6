// SPDX-License-Identifier: MIT
#include "scripting/interpreter/Coercion.h"

#include "platform/HfsPath.h"
#include "scripting/ValueTexts.h"
#include "scripting/interpreter/Limits.h"
#include "scripting/interpreter/TextFolding.h"
#include "scripting/interpreter/Try.h"

#include <array>
#include <charconv>
#include <cmath>

namespace songsweep::interpreter {
namespace {

Error cannotMake(Context& context, Position position, const Value& value, const std::string& kind) {
    return context.fail(position, ErrorNumber::cannotCoerce,
                        "cannot make " + kindName(value) + " into " + kind);
}

/// Gathers the texts of lists in lists into one.
class TextMaker {
  public:
    TextMaker(Context& context, Position position)
        : m_context(context)
        , m_position(position) {}

    Result<void> add(const Value& value, int depth) {
        if (const auto* const items = listItems(value)) return addItems(*items, depth);
        const std::optional<std::string> text = plainText(value);
        if (!text) return cannotMake(m_context, m_position, value, "text");
        if (!m_context.spend(1 + text->size() / textBytesOfOneStep)) return m_context.exhausted(m_position);
        m_text += *text;
        if (m_text.size() <= maximumTextBytes) return {};
        return m_context.fail(m_position, ErrorNumber::general, "the text is too long");
    }
    std::string take() { return std::move(m_text); }

  private:
    Result<void> addItems(const std::vector<Value>& items, int depth) {
        if (depth > maximumListNesting) {
            return m_context.fail(m_position, ErrorNumber::general, "the list lies too deep");
        }
        for (const Value& item : items) {
            if (Result<void> added = add(item, depth + 1); !added) return added;
        }
        return {};
    }
    static std::optional<std::string> plainText(const Value& value) {
        if (const auto* const text = std::get_if<std::string>(&value)) return *text;
        if (const auto* const number = std::get_if<std::int64_t>(&value)) return std::to_string(*number);
        if (const auto* const number = std::get_if<double>(&value)) return realText(*number);
        if (const auto* const truth = std::get_if<bool>(&value)) return *truth ? "true" : "false";
        if (const auto* const date = std::get_if<Date>(&value)) return dateText(date->longDateTime);
        if (const auto* const alias = std::get_if<Alias>(&value)) return hfsPath(alias->posixPath);
        if (const auto* const constant = std::get_if<Constant>(&value)) return std::string(constant->name);
        if (std::holds_alternative<MissingValue>(value)) return "missing value";
        return {};
    }

    Context& m_context;
    Position m_position;
    std::string m_text;
};

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

template <class Kind>
std::optional<Number> wholeNumber(std::string_view text) {
    Kind number{};
    const auto parsed = std::from_chars(text.data(), text.data() + text.size(), number);
    if (parsed.ec != std::errc() || parsed.ptr != text.data() + text.size()) return {};
    return number;
}

std::optional<Number> numberIn(std::string_view text) {
    text = trimmed(text);
    if (text.size() > 1 && text.front() == '+' && text[1] != '-') text.remove_prefix(1);
    if (text.find_first_not_of("0123456789+-.eE") != std::string_view::npos) return {};
    if (const auto integer = wholeNumber<std::int64_t>(text)) return integer;
    return wholeNumber<double>(text);
}

std::optional<std::int64_t> rounded(double number) {
    // 2 to the power of 63 is the first real that a 64-bit integer cannot hold.
    constexpr double bound = 9223372036854775808.0;
    if (!(number > -bound && number < bound)) return {};
    return std::llround(number);
}

std::optional<std::int64_t> integerIn(const Value& value) {
    if (const auto* const truth = std::get_if<bool>(&value)) return *truth ? 1 : 0;
    const std::optional<Number> number = numberOf(value);
    if (!number) return {};
    if (const auto* const integer = std::get_if<std::int64_t>(&*number)) return *integer;
    return rounded(std::get<double>(*number));
}

std::optional<bool> truthIn(const Value& value) {
    if (const auto* const truth = std::get_if<bool>(&value)) return *truth;
    if (const auto* const text = std::get_if<std::string>(&value)) {
        if (isSameText(*text, "true")) return true;
        if (isSameText(*text, "false")) return false;
    }
    return {};
}

Result<Value> coercedToNumber(Context& context, Position position, const Value& value, Kind kind) {
    const std::optional<Number> number = numberOf(value);
    if (!number) return cannotMake(context, position, value, "a number");
    return kind == Kind::real ? Value(realOf(*number)) : valueOf(*number);
}

Result<Value> coercedToBoolean(Context& context, Position position, const Value& value) {
    if (const auto* const number = std::get_if<std::int64_t>(&value);
        number && (*number == 0 || *number == 1)) {
        return Value(*number == 1);
    }
    TRY(const bool truth, truthOf(context, position, value));
    return Value(truth);
}

Result<Value> coercedToAlias(Context& context, Position position, const Value& value) {
    TRY(const std::string& path, posixPathOf(context, position, value));
    return Value(Alias{path});
}

} // namespace

double realOf(const Number& number) {
    return std::visit([](auto plain) { return static_cast<double>(plain); }, number);
}

Value valueOf(const Number& number) {
    return std::visit([](auto plain) { return Value(plain); }, number);
}

const Value& singleItem(const Value& value) {
    const auto* const items = listItems(value);
    return items && items->size() == 1 ? items->front() : value;
}

Result<std::string> textOf(Context& context, Position position, const Value& value) {
    TextMaker maker(context, position);
    if (Result<void> added = maker.add(value, 0); !added) return added.error();
    return maker.take();
}

std::optional<Number> numberOf(const Value& value) {
    const Value& single = singleItem(value);
    if (const auto* const integer = std::get_if<std::int64_t>(&single)) return *integer;
    if (const auto* const real = std::get_if<double>(&single)) return *real;
    if (const auto* const text = std::get_if<std::string>(&single)) return numberIn(*text);
    return {};
}

Result<std::int64_t> integerOf(Context& context, Position position, const Value& value) {
    const std::optional<std::int64_t> integer = integerIn(singleItem(value));
    if (!integer) return cannotMake(context, position, value, "an integer");
    return *integer;
}

Result<bool> truthOf(Context& context, Position position, const Value& value) {
    const std::optional<bool> truth = truthIn(singleItem(value));
    if (!truth) return cannotMake(context, position, value, "a truth value");
    return *truth;
}

Result<std::string> posixPathOf(Context& context, Position position, const Value& value) {
    const Value& single = singleItem(value);
    if (const auto* const alias = std::get_if<Alias>(&single)) return alias->posixPath;
    if (const auto* const text = std::get_if<std::string>(&single)) {
        if (std::optional<std::string> path = posixPath(*text)) return *path;
    }
    return cannotMake(context, position, value, "a file path");
}

Result<Value> coerced(Context& context, Position position, const Value& value, Kind kind) {
    const auto* const constant = std::get_if<Constant>(&singleItem(value));
    if (constant && (kind == Kind::integer || kind == Kind::number)) return Value(constant->number);
    switch (kind) {
    case Kind::text: {
        TRY(std::string && text, textOf(context, position, value));
        return Value(std::move(text));
    }
    case Kind::integer: {
        TRY(const std::int64_t integer, integerOf(context, position, value));
        return Value(integer);
    }
    case Kind::real:
    case Kind::number:
        return coercedToNumber(context, position, value, kind);
    case Kind::boolean:
        return coercedToBoolean(context, position, value);
    case Kind::list:
        if (listItems(value)) return value;
        return context.makeList(position, {value});
    case Kind::alias:
        return coercedToAlias(context, position, value);
    }
    return value;
}

std::string kindName(const Value& value) {
    static constexpr std::array names{
        "the missing value", "a truth value", "a number", "a number", "a text", "a date", "a file", "a list",
        "an object",         "a constant"};
    const auto* const items = listItems(value);
    if (items && items->empty()) return "an empty list";
    return names.at(value.index());
}

} // namespace songsweep::interpreter
