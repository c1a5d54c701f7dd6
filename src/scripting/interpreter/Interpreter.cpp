// SPDX-License-Identifier: MIT
#include "scripting/interpreter/Interpreter.h"

#include "scripting/interpreter/DescriptorMaker.h"
#include "scripting/interpreter/Lexer.h"
#include "scripting/interpreter/Parser.h"

namespace songsweep::interpreter {
namespace {

Result<Program> parsed(std::string_view source, const Applications& applications) {
    Result<std::vector<Token>> tokens = Lexer(source).tokens();
    if (!tokens) return tokens.error();
    return Parser(std::move(tokens).value(), applications).program();
}

Error located(const Context& context, Error error) {
    error.message = locatedText(context.errorPosition(), error.message);
    return error;
}

} // namespace

Interpreter::Interpreter(std::vector<NamedApplication> applications)
    : m_applications(std::move(applications)) {}

Result<std::optional<Descriptor>> Interpreter::run(std::string_view source) {
    const std::lock_guard lock(m_lock);
    const Result<Program> program = parsed(source, m_applications);
    if (!program) return program.error();
    Context context(m_applications, program.value().variableCount);
    const Result<Flow> flow = executeBlock(context, program.value().body);
    if (!flow) return located(context, flow.error());
    if (!context.result()) return std::optional<Descriptor>();
    Result<Descriptor> descriptor = descriptorOf(context, *context.result());
    if (!descriptor) return located(context, descriptor.error());
    return std::optional(std::move(descriptor).value());
}

} // namespace songsweep::interpreter
