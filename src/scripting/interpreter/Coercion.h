// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"
#include "scripting/interpreter/Context.h"
#include "scripting/interpreter/Value.h"

#include <optional>
#include <string>
#include <variant>

namespace songsweep::interpreter {

/// Values made into other kinds, where the language allows it; an error of number -1700 where it does not.
/// A list of one item stands for its item.

using Number = std::variant<std::int64_t, double>;

double realOf(const Number& number);
Value valueOf(const Number& number);

/// The kinds that `as` names.
enum class Kind { text, integer, real, number, boolean, list, alias };

Result<Value> coerced(Context& context, Position position, const Value& value, Kind kind);

/// The text of a value; of a list the texts of its items, one after another.
Result<std::string> textOf(Context& context, Position position, const Value& value);

/// A number, or a text that is one as a whole; nothing for anything else.
std::optional<Number> numberOf(const Value& value);

/// A whole number, for an index or a count.
Result<std::int64_t> integerOf(Context& context, Position position, const Value& value);

/// The POSIX path of an alias, or of a text in HFS notation.
Result<std::string> posixPathOf(Context& context, Position position, const Value& value);

/// true or false, or a text that says so.
Result<bool> truthOf(Context& context, Position position, const Value& value);

/// What a value is, for messages: "a list".
std::string kindName(const Value& value);

/// The item of a list of one item; any other value itself.
const Value& singleItem(const Value& value);

} // namespace songsweep::interpreter
