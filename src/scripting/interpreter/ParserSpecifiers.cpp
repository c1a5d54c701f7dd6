// SPDX-License-Identifier: MIT
#include "scripting/interpreter/ParserSupport.h"
#include "scripting/interpreter/ast/Literals.h"
#include "scripting/interpreter/ast/Operators.h"

#include <array>

namespace songsweep::interpreter {
namespace {

struct Ordinal {
    Keyword keyword;
    std::int64_t index;
};

constexpr std::array ordinals{Ordinal{Keyword::first, 1}, Ordinal{Keyword::second, 2},
                              Ordinal{Keyword::third, 3}, Ordinal{Keyword::last, -1}};

bool isWord(const Token& token) {
    return token.kind == Token::Kind::word || token.kind == Token::Kind::quotedWord;
}

} // namespace

/// Whether a property, an element or a place begins here, and not a plain value.
bool Parser::atSpecifier() const {
    const Vocabulary::Entry* const term = termAhead();
    if (term && (term->property || term->elementClass)) return true;
    if (term) return false;
    switch (peek().keyword) {
    case Keyword::every:
    case Keyword::first:
    case Keyword::second:
    case Keyword::third:
    case Keyword::last:
    case Keyword::middle:
    case Keyword::item:
    case Keyword::items:
    case Keyword::character:
    case Keyword::characters:
        return true;
    case Keyword::beginning:
    case Keyword::end:
        return at(Keyword::of, 1);
    case Keyword::posix:
        return wordsAt(upcoming(), "POSIX path") > 0;
    case Keyword::none:
        return isWord(peek()) && at(Keyword::of, 1);
    default:
        return false;
    }
}

Result<Parser::Specifier> Parser::parseSpecifier() {
    Specifier specifier;
    specifier.position = position();
    if (termAhead()) return parseTerm();
    if (take(Keyword::every)) return parseElements(true);
    if (takeWords("POSIX path")) {
        specifier.kind = Specifier::Kind::posixPath;
    } else if (take(Keyword::beginning)) {
        specifier.kind = Specifier::Kind::beginning;
    } else if (take(Keyword::end)) {
        specifier.kind = Specifier::Kind::end;
    } else if (at(Keyword::item) || at(Keyword::items) || at(Keyword::character) || at(Keyword::characters)) {
        return parseElements(false);
    } else if (at(Keyword::none) && isWord(peek())) {
        specifier.name = peek().text;
        skip(1);
    } else {
        return parseOrdinal();
    }
    return specifier;
}

/// `track …`, `tracks …`, `item …`; with `every` before them no index follows.
Result<Parser::Specifier> Parser::parseElements(bool isEvery) {
    Specifier specifier;
    specifier.position = position();
    const Vocabulary::Entry* const term = termAhead();
    if (term && term->elementClass) {
        specifier.kind = Specifier::Kind::element;
        specifier.elementClass = {&m_vocabulary->terminology(), term->elementClass};
        skip(term->words.size());
    } else if (at(Keyword::item) || at(Keyword::items) || at(Keyword::character) || at(Keyword::characters)) {
        specifier.kind = Specifier::Kind::item;
        skip(1);
    } else {
        return expected("a class of elements");
    }
    if (isEvery) return specifier;
    if (Result<void> selected = parseSelector(specifier); !selected) return selected.error();
    return specifier;
}

/// `first track …`, `last item …`.
Result<Parser::Specifier> Parser::parseOrdinal() {
    const Position place = position();
    const auto ordinal = std::ranges::find(ordinals, peek().keyword, &Ordinal::keyword);
    const bool isMiddle = at(Keyword::middle);
    if (ordinal == ordinals.end() && !isMiddle) return expected("a property or an element");
    skip(1);
    Result<Specifier> specifier = parseElements(true);
    if (!specifier) return specifier;
    specifier.value().isOrdinal = true;
    Selector& selector = specifier.value().selector;
    selector.kind = isMiddle ? Selector::Kind::middle : Selector::Kind::index;
    if (!isMiddle) selector.first = std::make_unique<const LiteralExpression>(place, Value(ordinal->index));
    return specifier;
}

/// A word of the application. What is a property and a class is a class where an index or a filter follows.
Result<Parser::Specifier> Parser::parseTerm() {
    const Vocabulary::Entry& term = *termAhead();
    if (!term.property && !term.elementClass) return expected("a property or an element");
    if (!term.property) return parseElements(false);
    Specifier specifier;
    specifier.position = position();
    const std::size_t before = m_next;
    skip(term.words.size());
    if (term.elementClass && (atIndex() || at(Keyword::whose) || at(Keyword::where))) {
        m_next = before;
        return parseElements(false);
    }
    specifier.name = term.property->name;
    specifier.property = term.property;
    return specifier;
}

Result<void> Parser::parseSelector(Specifier& specifier) {
    Selector& selector = specifier.selector;
    const bool isElement = specifier.kind == Specifier::Kind::element;
    if (isElement && take(Keyword::named)) {
        selector.kind = Selector::Kind::name;
    } else if (isElement && take(Keyword::id)) {
        selector.kind = Selector::Kind::id;
    } else if (take(Keyword::from)) {
        selector.kind = Selector::Kind::range;
    } else if (atIndex()) {
        selector.kind = Selector::Kind::index;
    } else {
        return {};
    }
    ExpressionResult first = parseIndex();
    if (!first) return first.error();
    selector.first = std::move(first).value();
    return parseRangeEnd(specifier);
}

/// `thru 5` after an index, `to 5` after `from 1`.
Result<void> Parser::parseRangeEnd(Specifier& specifier) {
    Selector& selector = specifier.selector;
    const bool isThrough = take(Keyword::thru) || take(Keyword::through);
    if (!isThrough && selector.kind != Selector::Kind::range) return {};
    if (!isThrough && !take(Keyword::to)) return expected("“to”");
    ExpressionResult last = parseIndex();
    if (!last) return last.error();
    selector.kind = Selector::Kind::range;
    selector.last = std::move(last).value();
    return {};
}

bool Parser::atIndex() const {
    const Token& token = peek();
    switch (token.kind) {
    case Token::Kind::integer:
    case Token::Kind::text:
    case Token::Kind::quotedWord:
        return true;
    case Token::Kind::symbol:
        return atSymbol(U'(') || atSymbol(U'{') || atSymbol(U'[') || atSymbol(U'-');
    case Token::Kind::word:
        if (m_command && atLabel(*m_command)) return false;
        return token.keyword == Keyword::none && !termAhead();
    default:
        return false;
    }
}

/// An index is a plain value, so that `track i of x` is not read as `track (i of x)`.
Parser::ExpressionResult Parser::parseIndex() {
    if (!atIndex()) return expected("an index");
    const Position place = position();
    if (!takeSymbol(U'-')) return parseValue();
    ExpressionResult index = parseValue();
    if (!index) return index;
    return make<NegateExpression>(place, std::move(index).value());
}

} // namespace songsweep::interpreter
