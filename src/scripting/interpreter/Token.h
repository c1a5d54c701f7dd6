// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/interpreter/Position.h"

#include <cstdint>
#include <string_view>

namespace songsweep::interpreter {

/// The words that mean something to the language itself.
enum class Keyword : std::uint8_t {
    none,
    alias_,
    and_,
    application,
    as,
    beginning,
    begins,
    by,
    character,
    characters,
    before,
    after,
    come,
    comes,
    contain,
    contained,
    contains,
    copy,
    count,
    date,
    div,
    does,
    doesnt,
    else_,
    end,
    ends,
    equal,
    equals,
    error,
    every,
    exists,
    exit,
    false_,
    first,
    from,
    get,
    greater,
    id,
    if_,
    in,
    is,
    isnt,
    it,
    item,
    items,
    its,
    last,
    less,
    me,
    middle,
    missing,
    mod,
    my,
    named,
    not_,
    number,
    of,
    on,
    or_,
    posix,
    repeat,
    return_,
    second,
    set,
    start,
    starts,
    tell,
    than,
    the,
    then,
    third,
    through,
    thru,
    times,
    to,
    true_,
    try_,
    until,
    where,
    while_,
    whose,
    with,
    without,
};

/// A piece of a text. `text` is its place in the source, which must outlive it; of a quoted text and of a
/// |word| without the delimiters.
struct Token {
    enum class Kind : std::uint8_t { word, quotedWord, text, integer, real, symbol, lineEnd, end };

    Kind kind = Kind::end;
    Keyword keyword = Keyword::none;
    char32_t symbol = 0; ///< of a symbol its character; ≠ ≤ ≥ also where they are written with two
    Position position;
    std::string_view text;
};

/// The keyword of a word, `none` for all others. Letter case does not count.
Keyword keywordOf(std::string_view word);

/// Whether a keyword is taken: it cannot be a variable, or the term of an application by itself.
bool isReserved(Keyword keyword);

} // namespace songsweep::interpreter
