// SPDX-License-Identifier: MIT
#include "scripting/interpreter/Program.h"

#include "scripting/interpreter/Lexer.h"
#include "scripting/interpreter/Try.h"
#include "scripting/interpreter/statements/StatementParser.h"

namespace songsweep::interpreter {

Result<Program> parsedProgram(std::string_view source, const Applications& applications) {
    TRY(std::vector<Token> && tokens, Lexer(source).tokens());
    TokenCursor cursor(std::move(tokens));
    ExpressionParser expressions(cursor, applications);
    Block body = StatementParser(cursor, expressions).block();
    cursor.expectTextEnd();
    if (cursor.error()) return *cursor.error();
    return Program{std::move(body), expressions.variableCount(), expressions.texts()};
}

} // namespace songsweep::interpreter
