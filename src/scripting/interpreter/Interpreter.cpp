// SPDX-License-Identifier: MIT
#include "scripting/interpreter/Interpreter.h"

#include "scripting/interpreter/DescriptorMaker.h"
#include "scripting/interpreter/Program.h"
#include "scripting/interpreter/Try.h"

namespace songsweep::interpreter {
namespace {

Result<std::optional<Descriptor>> resultOf(Context& context, const Program& program) {
    TRY([[maybe_unused]] const Flow flow, executeBlock(context, program.body));
    if (!context.result()) return std::optional<Descriptor>();
    TRY(Descriptor && descriptor, descriptorOf(context, *context.result()));
    return std::optional(std::move(descriptor));
}

} // namespace

Interpreter::Interpreter(std::vector<NamedApplication> applications, std::function<Date()> now)
    : m_services{Applications(std::move(applications)), std::move(now)}
    , m_programs(m_services.applications) {}

Result<std::optional<Descriptor>> Interpreter::run(std::string_view source, Places places) {
    const std::lock_guard lock(m_lock);
    if (places == Places::leftOut) {
        TRY(BoundProgram && bound, m_programs.program(source));
        Context context(m_services, bound.program->variableCount, std::move(bound.texts));
        return resultOf(context, *bound.program);
    }
    TRY(const Program& program, parsedProgram(source, m_services.applications));
    Context context(m_services, program.variableCount, unescapedTexts(program.texts));
    Result<std::optional<Descriptor>> result = resultOf(context, program);
    if (result) return result;
    return Error{result.error().code, locatedText(context.errorPosition(), result.error().message)};
}

} // namespace songsweep::interpreter
