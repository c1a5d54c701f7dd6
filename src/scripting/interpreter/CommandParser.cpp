// SPDX-License-Identifier: MIT
#include "scripting/interpreter/CommandParser.h"

#include "scripting/interpreter/ExpressionParser.h"
#include "scripting/interpreter/ast/Literals.h"

#include <utility>

namespace songsweep::interpreter {

bool CommandParser::atCommand() const {
    const Vocabulary::Entry* const term = m_cursor.term();
    if (!term || !term->command) return false;
    return !m_cursor.at(Keyword::set) || !m_cursor.at(Keyword::to, term->words.size());
}

CommandCall CommandParser::command() {
    const Position place = m_cursor.position();
    const Terminology& words = *m_cursor.terminology();
    const Vocabulary::Entry& entry = *m_cursor.term();
    m_cursor.skip(entry.words.size());
    ExpressionPointer direct = directParameter(*entry.command);
    return {place, words, *entry.command, std::move(direct), arguments(*entry.command)};
}

bool CommandParser::atLabel(const CommandTerm& term) const {
    return std::ranges::any_of(
        term.parameters, [this](const ParameterTerm& parameter) { return m_cursor.atWords(parameter.name); });
}

/// The direct parameter, null where none stands.
ExpressionPointer CommandParser::directParameter(const CommandTerm& term) {
    const bool isClosed = m_cursor.peek().kind == Token::Kind::symbol && !m_cursor.atSymbol(U'(') &&
                          !m_cursor.atSymbol(U'{') && !m_cursor.atSymbol(U'[') && !m_cursor.atSymbol(U'-');
    const bool isOver = m_cursor.atLineEnd() || isClosed || m_cursor.at(Keyword::with) ||
                        m_cursor.at(Keyword::without) || m_cursor.at(Keyword::else_) ||
                        m_cursor.at(Keyword::then);
    if (isOver || atLabel(term)) return {};
    const CommandTerm* const outer = std::exchange(m_command, &term);
    ExpressionPointer direct = m_expressions.expression();
    m_command = outer;
    return direct;
}

std::vector<CommandCall::Argument> CommandParser::arguments(const CommandTerm& term) {
    std::vector<CommandCall::Argument> arguments;
    while (true) {
        if (m_cursor.take(Keyword::with)) {
            flags(term, true, arguments);
        } else if (m_cursor.take(Keyword::without)) {
            flags(term, false, arguments);
        } else if (const ParameterTerm* const label = takeLabel(term)) {
            arguments.push_back({label->code, m_expressions.expression()});
        } else {
            return arguments;
        }
    }
}

/// `with a`, `with a and b`, `without c`.
void CommandParser::flags(const CommandTerm& term, bool isOn, std::vector<CommandCall::Argument>& arguments) {
    do {
        const Position place = m_cursor.position();
        if (const ParameterTerm* const label = takeLabel(term)) {
            arguments.push_back({label->code, std::make_unique<const LiteralExpression>(place, Value(isOn))});
        } else {
            m_cursor.failExpecting("a parameter of “" + term.name + "”");
        }
    } while (m_cursor.take(Keyword::and_) || m_cursor.takeSymbol(U','));
}

/// The parameter whose name stands here, the longest that does.
const ParameterTerm* CommandParser::takeLabel(const CommandTerm& term) {
    const ParameterTerm* longest = nullptr;
    std::size_t words = 0;
    for (const ParameterTerm& parameter : term.parameters) {
        const std::size_t count = wordsAt(m_cursor.upcoming(), parameter.name);
        if (count <= words) continue;
        longest = &parameter;
        words = count;
    }
    m_cursor.skip(words);
    return longest;
}

} // namespace songsweep::interpreter
