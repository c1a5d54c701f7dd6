// SPDX-License-Identifier: MIT
#include "scripting/interpreter/Terminology.h"

#include "scripting/interpreter/Words.h"

namespace songsweep::interpreter {

const PropertyTerm* Terminology::property(std::string_view name) const {
    for (const PropertyTerm& term : properties) {
        if (isSameWord(term.name, name)) return &term;
    }
    return nullptr;
}

const ClassTerm* Terminology::elementClass(std::string_view singularOrPlural) const {
    for (const ClassTerm& term : classes) {
        if (isSameWord(term.singular, singularOrPlural) || isSameWord(term.plural, singularOrPlural))
            return &term;
    }
    return nullptr;
}

} // namespace songsweep::interpreter
