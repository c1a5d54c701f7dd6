// SPDX-License-Identifier: MIT
#include "scripting/interpreter/statements/Statement.h"

namespace songsweep::interpreter {

Result<Flow> Statement::execute(Context& context) const {
    if (!context.spend()) return context.exhausted(m_position);
    return run(context);
}

Result<Flow> executeBlock(Context& context, const Block& block) {
    for (const StatementPointer& statement : block) {
        Result<Flow> flow = statement->execute(context);
        if (!flow || flow.value() != Flow::onward) return flow;
    }
    return Flow::onward;
}

} // namespace songsweep::interpreter
