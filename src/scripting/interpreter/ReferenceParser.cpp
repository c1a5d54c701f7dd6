// SPDX-License-Identifier: MIT
#include "scripting/interpreter/ReferenceParser.h"

#include "scripting/interpreter/ExpressionParser.h"
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

/// A word that the language itself has no meaning for.
bool isPlainWord(const Token& token) {
    const bool isWord = token.kind == Token::Kind::word || token.kind == Token::Kind::quotedWord;
    return isWord && token.keyword == Keyword::none;
}

} // namespace

/// What is named, before it is known what contains it.
struct ReferenceParser::Specifier {
    explicit Specifier(Position place)
        : position(place) {}

    enum class Kind { property, element, item, beginning, end, posixPath };
    Position position;
    Kind kind = Kind::property;
    std::string name; ///< of a property
    const PropertyTerm* property = nullptr;
    ClassReference elementClass;
    Selector selector;
    ExpressionPointer filter;
    bool isOrdinal = false;

    bool needsContainer() const { return kind != Kind::element && (kind != Kind::property || !property); }
    /// `every track whose …`, `tracks whose …`, `first track whose …`; not `track 1 whose …`, so that a
    /// filter behind `every track of playlist 1` is one of the tracks.
    bool canBeFiltered() const {
        return kind == Kind::element && !filter && (isOrdinal || selector.kind == Selector::Kind::every);
    }
};

ExpressionPointer ReferenceParser::reference() {
    const TokenCursor::Nesting nesting(m_cursor);
    while (m_cursor.at(Keyword::the) || m_cursor.at(Keyword::my) || m_cursor.at(Keyword::its))
        m_cursor.skip();
    if (atProperties()) return properties();
    return possessives(atSpecifier() ? contained(specifier()) : m_expressions.value());
}

/// Whether `{name, bit rate} of` stands here: a list of nothing but words, and what contains them.
bool ReferenceParser::atProperties() const {
    if (!m_cursor.atSymbol(U'{')) return false;
    const std::span<const Token> tokens = m_cursor.upcoming().subspan(1);
    const auto end = std::ranges::find_if_not(tokens, [](const Token& token) {
        const bool isComma = token.kind == Token::Kind::symbol && token.symbol == U',';
        return isComma || token.kind == Token::Kind::word || token.kind == Token::Kind::quotedWord;
    });
    // The last token is the end of the text, so that there always is one behind a brace.
    if (end == tokens.end() || end->kind != Token::Kind::symbol || end->symbol != U'}') return false;
    return end[1].keyword == Keyword::of || end[1].keyword == Keyword::in;
}

ExpressionPointer ReferenceParser::properties() {
    const Position place = m_cursor.position();
    PropertiesReference::Properties properties;
    do {
        m_cursor.skip(); // the brace, or the comma
        properties.push_back(property());
    } while (m_cursor.atSymbol(U','));
    m_cursor.expectSymbol(U'}', "“,” or “}”");
    m_cursor.skip();
    return m_expressions.make<PropertiesReference>(place, std::move(properties), reference());
}

/// A property of what is said behind the list.
std::unique_ptr<const PropertyReference> ReferenceParser::property() {
    const Position place = m_cursor.position();
    const Vocabulary::Entry* const entry = m_cursor.term();
    const PropertyTerm* const term = entry ? entry->property : nullptr;
    if (!term && (entry || !isPlainWord(m_cursor.peek()))) m_cursor.failExpecting("a property");
    std::string name = term ? term->name : std::string(m_cursor.peek().text);
    m_cursor.skip(term ? entry->words.size() : 1);
    return std::make_unique<const PropertyReference>(place, std::move(name),
                                                     term ? m_cursor.terminology() : nullptr, term, nullptr);
}

/// What a specifier is inside of, and the filter, which may stand before and after that.
ExpressionPointer ReferenceParser::contained(Specifier specifier) {
    filter(specifier);
    ExpressionPointer container;
    if (m_cursor.take(Keyword::of) || m_cursor.take(Keyword::in)) container = reference();
    filter(specifier);
    return node(std::move(specifier), std::move(container));
}

bool ReferenceParser::atFilter() const { return m_cursor.at(Keyword::whose) || m_cursor.at(Keyword::where); }

void ReferenceParser::filter(Specifier& specifier) {
    if (!specifier.canBeFiltered() || !atFilter()) return;
    m_cursor.skip();
    specifier.filter = m_expressions.expression();
}

/// `playlist 1's name`.
ExpressionPointer ReferenceParser::possessives(ExpressionPointer owner) {
    while (m_cursor.takeSymbol(U'\'')) {
        const bool isPlain = m_cursor.peek().kind == Token::Kind::word && m_cursor.at(Keyword::none);
        if (!isPlain && !atSpecifier()) m_cursor.failExpecting("a property or an element");
        Specifier part = specifier();
        filter(part);
        owner = node(std::move(part), std::move(owner));
    }
    return owner;
}

ExpressionPointer ReferenceParser::node(Specifier specifier, ExpressionPointer container) {
    using Place = InsertionReference::Place;
    const Position place = specifier.position;
    if (!container && specifier.needsContainer()) m_cursor.failExpecting("“of”");
    switch (specifier.kind) {
    case Specifier::Kind::property:
        return m_expressions.make<PropertyReference>(place, std::move(specifier.name),
                                                     specifier.property ? m_cursor.terminology() : nullptr,
                                                     specifier.property, std::move(container));
    case Specifier::Kind::element:
        return m_expressions.make<ElementReference>(place, specifier.elementClass,
                                                    std::move(specifier.selector),
                                                    std::move(specifier.filter), std::move(container));
    case Specifier::Kind::item:
        return m_expressions.make<ItemReference>(place, std::move(specifier.selector), std::move(container));
    case Specifier::Kind::posixPath:
        return m_expressions.make<PosixPathReference>(place, std::move(container));
    case Specifier::Kind::beginning:
        return m_expressions.make<InsertionReference>(place, Place::beginning, std::move(container));
    case Specifier::Kind::end:
        break;
    }
    return m_expressions.make<InsertionReference>(place, Place::end, std::move(container));
}

bool ReferenceParser::atItems() const {
    return m_cursor.at(Keyword::item) || m_cursor.at(Keyword::items) || m_cursor.at(Keyword::character) ||
           m_cursor.at(Keyword::characters);
}

/// Whether a property, an element or a place begins here, and not a plain value.
bool ReferenceParser::atSpecifier() const {
    if (const Vocabulary::Entry* const term = m_cursor.term()) return term->property || term->elementClass;
    switch (m_cursor.peek().keyword) {
    case Keyword::every:
    case Keyword::first:
    case Keyword::second:
    case Keyword::third:
    case Keyword::last:
    case Keyword::middle:
        return true;
    case Keyword::beginning:
    case Keyword::end:
        return m_cursor.at(Keyword::of, 1);
    case Keyword::posix:
        return m_cursor.atWords("POSIX path");
    case Keyword::none:
        return isPlainWord(m_cursor.peek()) && m_cursor.at(Keyword::of, 1);
    default:
        return atItems();
    }
}

ReferenceParser::Specifier ReferenceParser::specifier() {
    if (m_cursor.term()) return term();
    Specifier specifier(m_cursor.position());
    if (m_cursor.take(Keyword::every)) return elements();
    if (m_cursor.takeWords("POSIX path")) {
        specifier.kind = Specifier::Kind::posixPath;
    } else if (m_cursor.take(Keyword::beginning)) {
        specifier.kind = Specifier::Kind::beginning;
    } else if (m_cursor.take(Keyword::end)) {
        specifier.kind = Specifier::Kind::end;
    } else if (atItems()) {
        specifier = elements();
        selector(specifier);
    } else if (isPlainWord(m_cursor.peek())) {
        specifier.name = m_cursor.peek().text;
        m_cursor.skip();
    } else {
        return ordinal();
    }
    return specifier;
}

/// A word of the application. What is a property and a class is a class where an index or a filter follows.
ReferenceParser::Specifier ReferenceParser::term() {
    const Vocabulary::Entry& term = *m_cursor.term();
    Specifier specifier(m_cursor.position());
    if (!term.property && !term.elementClass) m_cursor.failExpecting("a property or an element");
    m_cursor.skip(term.words.size());
    if (term.elementClass && (!term.property || atIndex() || atFilter())) {
        specifier.kind = Specifier::Kind::element;
        specifier.elementClass = {m_cursor.terminology(), term.elementClass};
        selector(specifier);
    } else if (term.property) {
        specifier.name = term.property->name;
        specifier.property = term.property;
    }
    return specifier;
}

/// `tracks`, `items`: all of them.
ReferenceParser::Specifier ReferenceParser::elements() {
    Specifier specifier(m_cursor.position());
    const Vocabulary::Entry* const term = m_cursor.term();
    if (term && term->elementClass) {
        specifier.kind = Specifier::Kind::element;
        specifier.elementClass = {m_cursor.terminology(), term->elementClass};
        m_cursor.skip(term->words.size());
    } else if (atItems()) {
        specifier.kind = Specifier::Kind::item;
        m_cursor.skip();
    } else {
        m_cursor.failExpecting("a class of elements");
    }
    return specifier;
}

/// `first track …`, `last item …`.
ReferenceParser::Specifier ReferenceParser::ordinal() {
    const Position place = m_cursor.position();
    const auto ordinal = std::ranges::find(ordinals, m_cursor.peek().keyword, &Ordinal::keyword);
    const bool isMiddle = m_cursor.take(Keyword::middle);
    if (ordinal == ordinals.end() && !isMiddle) m_cursor.failExpecting("a property or an element");
    if (!isMiddle) m_cursor.skip();
    Specifier specifier = elements();
    specifier.isOrdinal = true;
    specifier.selector.kind = isMiddle ? Selector::Kind::middle : Selector::Kind::index;
    if (ordinal != ordinals.end()) {
        specifier.selector.first = std::make_unique<const LiteralExpression>(place, Value(ordinal->index));
    }
    return specifier;
}

void ReferenceParser::selector(Specifier& specifier) {
    Selector& selector = specifier.selector;
    const bool isElement = specifier.kind == Specifier::Kind::element;
    if (isElement && m_cursor.take(Keyword::named)) {
        selector.kind = Selector::Kind::name;
    } else if (isElement && m_cursor.take(Keyword::id)) {
        selector.kind = Selector::Kind::id;
    } else if (m_cursor.take(Keyword::from)) {
        selector.kind = Selector::Kind::range;
    } else if (atIndex()) {
        selector.kind = Selector::Kind::index;
    } else {
        return;
    }
    selector.first = index();
    rangeEnd(specifier);
}

/// `thru 5` after an index, `to 5` after `from 1`.
void ReferenceParser::rangeEnd(Specifier& specifier) {
    Selector& selector = specifier.selector;
    const bool isThrough = m_cursor.take(Keyword::thru) || m_cursor.take(Keyword::through);
    if (!isThrough && selector.kind != Selector::Kind::range) return;
    if (!isThrough) m_cursor.expect(Keyword::to, "“to”");
    selector.last = index();
    selector.kind = Selector::Kind::range;
}

bool ReferenceParser::atIndex() const {
    const Token& token = m_cursor.peek();
    switch (token.kind) {
    case Token::Kind::integer:
    case Token::Kind::text:
    case Token::Kind::quotedWord:
        return true;
    case Token::Kind::symbol:
        return m_cursor.atSymbol(U'(') || m_cursor.atSymbol(U'{') || m_cursor.atSymbol(U'[') ||
               m_cursor.atSymbol(U'-');
    case Token::Kind::word:
        return token.keyword == Keyword::none && !m_cursor.term() && !m_expressions.commands().atLabel();
    default:
        return false;
    }
}

/// An index is a plain value, so that `track i of x` is not read as `track (i of x)`.
ExpressionPointer ReferenceParser::index() {
    if (!atIndex()) m_cursor.failExpecting("an index");
    const Position place = m_cursor.position();
    const bool isNegative = m_cursor.takeSymbol(U'-');
    ExpressionPointer index = m_expressions.value();
    return isNegative ? m_expressions.make<NegateExpression>(place, std::move(index)) : std::move(index);
}

} // namespace songsweep::interpreter
