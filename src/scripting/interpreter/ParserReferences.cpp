// SPDX-License-Identifier: MIT
#include "scripting/interpreter/ParserSupport.h"

namespace songsweep::interpreter {

Parser::ExpressionResult Parser::parseReference() {
    const Nesting nesting(*this);
    if (nesting.isTooDeep()) return nesting.error();
    while (at(Keyword::the) || at(Keyword::my) || at(Keyword::its))
        skip(1);
    ExpressionResult reference = parseUnowned();
    if (!reference) return reference;
    return parsePossessives(std::move(reference).value());
}

Parser::ExpressionResult Parser::parseUnowned() {
    if (!atSpecifier()) return parseValue();
    Result<Specifier> specifier = parseSpecifier();
    if (!specifier) return specifier.error();
    return parseContained(std::move(specifier).value());
}

/// What a specifier is inside of, and the filter, which may stand before and after that.
Parser::ExpressionResult Parser::parseContained(Specifier specifier) {
    if (Result<void> filtered = parseFilter(specifier); !filtered) return filtered.error();
    ExpressionPointer container;
    if (at(Keyword::of) || at(Keyword::in)) {
        skip(1);
        ExpressionResult parsed = parseReference();
        if (!parsed) return parsed;
        container = std::move(parsed).value();
    }
    if (Result<void> filtered = parseFilter(specifier); !filtered) return filtered.error();
    return built(std::move(specifier), std::move(container));
}

Result<void> Parser::parseFilter(Specifier& specifier) {
    if (!specifier.canBeFiltered()) return {};
    if (!at(Keyword::whose) && !at(Keyword::where)) return {};
    skip(1);
    ExpressionResult filter = parseExpression();
    if (!filter) return filter.error();
    specifier.filter = std::move(filter).value();
    return {};
}

/// `playlist 1's name`.
Parser::ExpressionResult Parser::parsePossessives(ExpressionPointer owner) {
    while (takeSymbol(U'\'')) {
        const bool isPlainWord = at(Keyword::none) && (peek().kind == Token::Kind::word);
        if (!isPlainWord && !atSpecifier()) return expected("a property or an element");
        Result<Specifier> specifier = parseSpecifier();
        if (!specifier) return specifier.error();
        if (Result<void> filtered = parseFilter(specifier.value()); !filtered) return filtered.error();
        ExpressionResult part = built(std::move(specifier).value(), std::move(owner));
        if (!part) return part;
        owner = std::move(part).value();
    }
    return owner;
}

Parser::ExpressionResult Parser::built(Specifier specifier, ExpressionPointer container) {
    const Position place = specifier.position;
    const Terminology* const origin = specifier.property ? &m_vocabulary->terminology() : nullptr;
    if (!container && specifier.needsContainer()) return expected("“of”");
    switch (specifier.kind) {
    case Specifier::Kind::property:
        return make<PropertyReference>(place, std::move(specifier.name), origin, specifier.property,
                                       std::move(container));
    case Specifier::Kind::element:
        return make<ElementReference>(place, specifier.elementClass, std::move(specifier.selector),
                                      std::move(specifier.filter), std::move(container));
    case Specifier::Kind::item:
        return make<ItemReference>(place, std::move(specifier.selector), std::move(container));
    case Specifier::Kind::posixPath:
        return make<PosixPathReference>(place, std::move(container));
    case Specifier::Kind::beginning:
        return make<InsertionReference>(place, InsertionReference::Place::beginning, std::move(container));
    case Specifier::Kind::end:
        break;
    }
    return make<InsertionReference>(place, InsertionReference::Place::end, std::move(container));
}

} // namespace songsweep::interpreter
