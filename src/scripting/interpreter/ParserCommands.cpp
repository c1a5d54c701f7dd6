// SPDX-License-Identifier: MIT
#include "scripting/interpreter/ParserSupport.h"
#include "scripting/interpreter/ast/Literals.h"

#include <utility>

namespace songsweep::interpreter {

/// The command of the application that begins here. `set volume to …` is the language's own `set`.
const CommandTerm* Parser::commandAhead() const {
    const Vocabulary::Entry* const term = termAhead();
    if (!term || !term->command) return nullptr;
    const bool isGoal = at(Keyword::set) && at(Keyword::to, term->words.size());
    return isGoal ? nullptr : term->command;
}

Result<CommandCall> Parser::parseCommand() {
    const Position place = position();
    const Vocabulary::Entry& entry = *termAhead();
    const CommandTerm& term = *entry.command;
    skip(entry.words.size());
    ExpressionResult direct = parseDirectParameter(term);
    if (!direct) return direct.error();
    Result<std::vector<CommandCall::Argument>> arguments = parseArguments(term);
    if (!arguments) return arguments.error();
    return CommandCall(place, m_vocabulary->terminology(), term, std::move(direct).value(),
                       std::move(arguments).value());
}

bool Parser::atLabel(const CommandTerm& term) const {
    return std::ranges::any_of(term.parameters, [this](const ParameterTerm& parameter) {
        return wordsAt(upcoming(), parameter.name) > 0;
    });
}

/// The direct parameter, null where none stands.
Parser::ExpressionResult Parser::parseDirectParameter(const CommandTerm& term) {
    const bool isClosed = peek().kind == Token::Kind::symbol && !atSymbol(U'(') && !atSymbol(U'{') &&
                          !atSymbol(U'[') && !atSymbol(U'-');
    const bool isOver = atLineEnd() || isClosed || at(Keyword::with) || at(Keyword::without) ||
                        at(Keyword::else_) || at(Keyword::then);
    if (isOver || atLabel(term)) return ExpressionPointer();
    const CommandTerm* const outer = std::exchange(m_command, &term);
    ExpressionResult direct = parseExpression();
    m_command = outer;
    return direct;
}

Result<std::vector<CommandCall::Argument>> Parser::parseArguments(const CommandTerm& term) {
    std::vector<CommandCall::Argument> arguments;
    while (true) {
        if (at(Keyword::with) || at(Keyword::without)) {
            const bool isOn = take(Keyword::with);
            if (!isOn) skip(1);
            if (Result<void> flags = parseFlags(term, isOn, arguments); !flags) return flags.error();
            continue;
        }
        const ParameterTerm* const label = takeLabel(term);
        if (!label) return arguments;
        ExpressionResult value = parseExpression();
        if (!value) return value.error();
        arguments.push_back({label->code, std::move(value).value()});
    }
}

/// `with a`, `with a and b`, `without c`.
Result<void> Parser::parseFlags(const CommandTerm& term, bool isOn,
                                std::vector<CommandCall::Argument>& arguments) {
    do {
        const Position place = position();
        const ParameterTerm* const label = takeLabel(term);
        if (!label) return expected("a parameter of “" + term.name + "”");
        arguments.push_back({label->code, std::make_unique<const LiteralExpression>(place, Value(isOn))});
    } while (take(Keyword::and_) || takeSymbol(U','));
    return {};
}

/// The parameter whose name stands here, the longest that does.
const ParameterTerm* Parser::takeLabel(const CommandTerm& term) {
    const ParameterTerm* longest = nullptr;
    std::size_t words = 0;
    for (const ParameterTerm& parameter : term.parameters) {
        const std::size_t count = wordsAt(upcoming(), parameter.name);
        if (count > words) {
            longest = &parameter;
            words = count;
        }
    }
    skip(words);
    return longest;
}

} // namespace songsweep::interpreter
