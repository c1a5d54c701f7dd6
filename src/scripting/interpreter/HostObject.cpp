// SPDX-License-Identifier: MIT
#include "scripting/interpreter/HostObject.h"

namespace songsweep::interpreter {

Result<void> HostObject::setProperty(TermCode, const Value&) {
    return Error{Error::Code::notSupported, "the property cannot be set"};
}

Result<std::size_t> HostObject::count(TermCode) {
    return Error{Error::Code::notFound, "there are no such elements"};
}

Result<ObjectPointer> HostObject::element(TermCode, std::size_t) {
    return Error{Error::Code::notFound, "there are no such elements"};
}

Result<std::optional<Candidates>> HostObject::candidates(TermCode, const PropertyTest&) {
    return std::optional<Candidates>();
}

bool HostObject::isSame(const HostObject& other) const {
    return this == &other || (&terminology() == &other.terminology() && specifier() == other.specifier());
}

Result<ObjectPointer> HostApplication::objectFor(const Value&) {
    return Error{Error::Code::notFound, "the value is no object"};
}

const Value* Command::argument(TermCode parameter) const {
    for (const CommandArgument& argument : arguments) {
        if (argument.parameter == parameter) return &argument.value;
    }
    return nullptr;
}

} // namespace songsweep::interpreter
