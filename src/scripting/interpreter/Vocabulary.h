// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/interpreter/Terminology.h"
#include "scripting/interpreter/Token.h"

#include <span>
#include <string>
#include <vector>

namespace songsweep::interpreter {

/// The terms of one application, arranged for the parser: the longest term that stands at a place of a text
/// is found by a binary search for its first word.
///
/// Holds pointers into the terminology, which must outlive it and not change.
class Vocabulary {
  public:
    /// A name and what it means; a name may be a property and a class at once.
    struct Entry {
        std::vector<std::string> words;
        const PropertyTerm* property = nullptr;
        const ClassTerm* elementClass = nullptr;
        const CommandTerm* command = nullptr;
    };

    explicit Vocabulary(const Terminology& terminology);

    const Terminology& terminology() const { return m_terminology; }

    /// The longest term at the beginning of the tokens, null where there is none. A term of one word is not
    /// found where that word is a reserved word of the language.
    const Entry* longestAt(std::span<const Token> tokens) const;

  private:
    Entry& entryOf(const std::string& name);

    const Terminology& m_terminology;
    std::vector<Entry> m_entries; // sorted by first word, then longest first
};

/// Whether a name's words, separated by one space, stand at the beginning of the tokens; their number, or 0.
std::size_t wordsAt(std::span<const Token> tokens, std::string_view name);

} // namespace songsweep::interpreter
