// SPDX-License-Identifier: MIT
#include "scripting/interpreter/Terminology.h"

#include <algorithm>

namespace songsweep::interpreter {
namespace {

char lowered(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool isSameName(std::string_view left, std::string_view right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char a, char b) { return lowered(a) == lowered(b); });
}

} // namespace

const PropertyTerm* Terminology::property(std::string_view name) const {
    for (const PropertyTerm& term : properties) {
        if (isSameName(term.name, name)) return &term;
    }
    return nullptr;
}

const ClassTerm* Terminology::elementClass(std::string_view singularOrPlural) const {
    for (const ClassTerm& term : classes) {
        if (isSameName(term.singular, singularOrPlural) || isSameName(term.plural, singularOrPlural))
            return &term;
    }
    return nullptr;
}

} // namespace songsweep::interpreter
