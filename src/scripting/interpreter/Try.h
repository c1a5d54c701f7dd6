// SPDX-License-Identifier: MIT
#pragma once

#include <utility>

/// Declares a variable of the value of a `Result`, or sets one; returns the error of a failed one:
///
///     TRY(const Value& first, left().evaluate(context));
///     TRY(Value&& second, right().evaluate(context));
///
/// The only macro here. Evaluation is a chain of calls that may each fail, and a tenth of its lines did
/// nothing but hand errors on. A function cannot return from its caller; passing what follows as a lambda
/// (`andThen`) nests one level deeper for each value and does not leave a loop; a statement-expression is no
/// standard C++. The result lives to the end of the block, so that a reference to its value costs nothing;
/// `&&` is for a value that is moved on. For .cpp files only; one to a line.
#define TRY(declaration, ...) TRY_ON_LINE(__LINE__, declaration, __VA_ARGS__)
#define TRY_ON_LINE(line, declaration, ...) TRY_AS(line, declaration, __VA_ARGS__)
#define TRY_AS(line, declaration, ...)                                                                       \
    auto resultOfLine##line = __VA_ARGS__;                                                                   \
    if (!resultOfLine##line) return resultOfLine##line.error();                                              \
    declaration = std::move(resultOfLine##line).value()
