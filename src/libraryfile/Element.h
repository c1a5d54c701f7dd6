// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace songsweep {

/// The elements of a property list; `other` is any other name.
enum class Element : std::uint8_t {
    plist,
    dict,
    array,
    key,
    string,
    integer,
    real,
    date,
    data,
    isTrue,
    isFalse,
    other
};

/// The names of the elements, in their order.
constexpr std::array<std::string_view, 12> elementNames{"plist", "dict", "array", "key",  "string", "integer",
                                                        "real",  "date", "data",  "true", "false",  ""};

/// "key"; nothing of `other`.
constexpr std::string_view nameOf(Element element) { return elementNames[static_cast<std::size_t>(element)]; }

/// The only element of those inside a property list that can begin with these four letters.
constexpr Element usualElement(const char* name) {
    switch (*name) {
    case 'k':
        return Element::key;
    case 's':
        return Element::string;
    case 'i':
        return Element::integer;
    case 'd':
        if (name[1] == 'i') return Element::dict;
        return name[2] == 't' && name[3] == 'e' ? Element::date : Element::data;
    case 'r':
        return Element::real;
    case 'a':
        return Element::array;
    case 't':
        return Element::isTrue;
    case 'f':
        return Element::isFalse;
    default:
        return Element::other;
    }
}

} // namespace songsweep
