// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
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

/// A tag's name and the ">" behind it as a number, to compare them in one step.
struct TagWord {
    std::uint64_t bytes = 0;
    std::uint64_t mask = 0; ///< of the bytes that count
};

/// Of all elements but `other`, whose names have seven letters at most.
constexpr auto tagWords = [] {
    std::array<TagWord, elementNames.size()> words{};
    for (std::size_t i = 0; i < words.size(); ++i) {
        std::array<char, sizeof(std::uint64_t)> name{};
        std::array<char, sizeof(std::uint64_t)> mask{};
        *std::copy(elementNames[i].begin(), elementNames[i].end(), name.begin()) = '>';
        std::fill_n(mask.begin(), elementNames[i].size() + 1, '\xFF');
        words[i] = {std::bit_cast<std::uint64_t>(name), std::bit_cast<std::uint64_t>(mask)};
    }
    return words;
}();

/// Whether the element's name and ">" stand there, where eight bytes can be looked at.
inline bool isTagOf(Element element, const char* name) {
    const TagWord& word = tagWords[static_cast<std::size_t>(element)];
    std::uint64_t bytes = 0;
    std::memcpy(&bytes, name, sizeof bytes);
    return (bytes & word.mask) == word.bytes;
}

} // namespace songsweep
